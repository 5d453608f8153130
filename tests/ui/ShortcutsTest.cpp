#include "Program.h"
#include "framework/ShortcutFile.h"
#include "platform/Platform.h"
#include "ui/sheets/KeyField.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

namespace dyeworks {
namespace {

class ShortcutsPage : public Restart {
protected:
    /// Lets `use` have the page in the options, which end with OK.
    void withPage(const std::function<void(QWidget& page)>& use) {
        withNextDialog([&](QDialog& sheet) {
            auto& tabs = *sheet.findChild<QTabWidget*>();
            tabs.setCurrentIndex(tabs.count() - 1);
            use(*tabs.currentWidget());
            sheet.accept();
        });
        ASSERT_TRUE(run(ID_OPTIONS));
    }
    template <typename Widget>
    static Widget& the(QWidget& page, const char* name) {
        return *page.findChild<Widget*>(QString::fromLatin1(name));
    }
    static void choose(QWidget& page, const char* typed) {
        the<QLineEdit>(page, "IDC_SHORTCUT_FIND").setText(QString::fromLatin1(typed));
    }
    static std::string press(QWidget& page, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        auto& field = the<KeyField>(page, "IDC_SHORTCUT_KEYS");
        field.setFocus();
        QTest::keyClick(&field, key, modifiers);
        return the<QLabel>(page, "IDC_SHORTCUT_TOLD").text().toStdString();
    }
    QKeySequence keysOf(CommandId command) { return frame().commandActions().action(command)->shortcut(); }
};

TEST_F(ShortcutsPage, KeysArePressedTakenFromOthersAndKept) {
    withPage([](QWidget& page) {
        choose(page, "box fill");
        EXPECT_EQ(press(page, Qt::Key_Space),
                  "Space is needed to move about in windows and images, and cannot "
                  "be given to a command.");
        EXPECT_FALSE(the<QPushButton>(page, "IDC_SHORTCUT_SET").isEnabled());
        EXPECT_EQ(press(page, Qt::Key_F, Qt::ControlModifier), "Ctrl+F is free.");
        EXPECT_EQ(press(page, Qt::Key_S, Qt::ControlModifier), "Ctrl+S belongs to Save, which will lose it.");
        EXPECT_EQ(press(page, Qt::Key_Return), "");
        EXPECT_EQ(the<QComboBox>(page, "IDC_SHORTCUT_PRESET").currentIndex(), 2);
    });
    EXPECT_EQ(keysOf(ID_TOOL_BOX_FILL), QKeySequence(QStringLiteral("Ctrl+S")));
    EXPECT_TRUE(keysOf(ID_FILE_SAVE).isEmpty());
    leaveAndStart();
    EXPECT_EQ(keysOf(ID_TOOL_BOX_FILL), QKeySequence(QStringLiteral("Ctrl+S")));

    const std::string chosen = "c:\\keys.shortcuts";
    fake_.dialogs.answerWith(chosen);
    withPage([&](QWidget& page) {
        the<QPushButton>(page, "IDC_SHORTCUT_EXPORT").click();
        the<QPushButton>(page, "IDC_SHORTCUT_RESET_ALL").click();
        EXPECT_EQ(the<QComboBox>(page, "IDC_SHORTCUT_PRESET").currentIndex(), 0);
    });
    EXPECT_EQ(keysOf(ID_FILE_SAVE), QKeySequence(QStringLiteral("Ctrl+S")));
    EXPECT_THAT(fake_.profile.entries("Shortcuts"), testing::IsEmpty());
    fake_.dialogs.answerWith(chosen);
    withPage([&](QWidget& page) { the<QPushButton>(page, "IDC_SHORTCUT_IMPORT").click(); });
    EXPECT_EQ(keysOf(ID_TOOL_BOX_FILL), QKeySequence(QStringLiteral("Ctrl+S")));
}

TEST_F(ShortcutsPage, NoKeyChangesAnImageFromAField) {
    withPage([](QWidget& page) {
        choose(page, "flip x");
        press(page, Qt::Key_H, Qt::ControlModifier);
        press(page, Qt::Key_Return);
    });
    QLineEdit field(&frame());
    field.show();
    field.setFocus();
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_H, Qt::ControlModifier);
    override.ignore();
    QApplication::sendEvent(&field, &override);
    EXPECT_TRUE(override.isAccepted()) << "it is the field's";
    override.ignore();
    QApplication::sendEvent(&frame(), &override);
    EXPECT_FALSE(override.isAccepted());
}

} // namespace
} // namespace dyeworks
