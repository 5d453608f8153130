#include "Program.h"
#include "framework/CommandTable.h"
#include "framework/widgets/ControlHelp.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QWhatsThis>

namespace dyeworks {
namespace {

using WhatsThis = Program;

/// Whether a question mark over this widget gets an answer.
bool answers(QWidget& widget) {
    QHelpEvent question(QEvent::QueryWhatsThis, {1, 1}, widget.mapToGlobal(QPoint(1, 1)));
    return QApplication::sendEvent(&widget, &question) && question.isAccepted();
}

TEST_F(WhatsThis, EveryPartOfTheWindowSaysWhatItIs) {
    openBlank();
    int asked = 0;
    for (QWidget* bar : frame().findChildren<QToolBar*>()) {
        for (QToolButton* button : bar->findChildren<QToolButton*>()) {
            if (button->objectName() == "qt_toolbar_ext_button")
                continue;
            EXPECT_TRUE(answers(*button)) << qPrintable(button->text());
            ++asked;
        }
        EXPECT_TRUE(answers(*bar)) << qPrintable(bar->objectName());
    }
    EXPECT_GT(asked, 20);
    for (QWidget* pane : frame().statusBar()->findChildren<QLabel*>())
        EXPECT_TRUE(answers(*pane)) << qPrintable(pane->objectName());
    EXPECT_TRUE(answers(*view().viewport()));
    EXPECT_TRUE(answers(*frame().area().viewport()));
    EXPECT_TRUE(answers(frame().paletteBar()));
}

TEST_F(WhatsThis, HelpCommandsAskOrOpenThePages) {
    fake_.files.setProgramFolder("c:\\bin\\");
    ASSERT_TRUE(run(ID_CONTEXT_HELP));
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    QWhatsThis::leaveWhatsThisMode();
    openBlank();
    // While it shows, the palette bar may have the keys.
    ASSERT_TRUE(run(ID_VIEW_PALETTEBAR));
    frame().activateWindow();
    view().setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::focusWidget() == &view(); }));
    for (const CommandId id : {ID_HELP_INDEX, ID_HELP, ID_DEFAULT_HELP})
        ASSERT_TRUE(run(id));
    EXPECT_EQ(fake_.shell.opened.size(), 3U);
    auto* pictures = frame().findChild<QComboBox*>("IDC_PICTURE_LIST");
    pictures->setEnabled(true);
    pictures->setFocus();
    ASSERT_TRUE(run(ID_HELP));
    EXPECT_EQ(fake_.shell.opened.size(), 3U) << "the bar speaks for itself";
    for (const std::string& page : fake_.shell.opened)
        EXPECT_TRUE(page.ends_with("..\\doc\\index.html")) << page;
    EXPECT_THAT(texts(fake_), IsEmpty());
    fake_.shell.opens = false;
    ASSERT_TRUE(run(ID_HELP_INDEX));
    EXPECT_THAT(
        texts(fake_),
        ElementsAre("can not open help. Please, check exist help file, and check browser installed."));
}

/// Those that the Tab key reaches and that say nothing about themselves, nor does what they are a part of.
QStringList silentControls(QWidget& window) {
    QStringList silent;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        // OK and Cancel, and the pages of a tab, have their text.
        const bool speaksForItself = qobject_cast<QDialogButtonBox*>(control->parentWidget()) != nullptr ||
                                     qobject_cast<QTabBar*>(control) != nullptr ||
                                     qobject_cast<QTabWidget*>(control) != nullptr;
        if (!control->isVisibleTo(&window) || (control->focusPolicy() & Qt::TabFocus) == 0 || speaksForItself)
            continue;
        bool told = false;
        for (QWidget* each = control; each != nullptr && !told;
             each = each == &window ? nullptr : each->parentWidget())
            told = !helpOf(*each).isEmpty();
        if (!told)
            silent << QString::fromLatin1(control->metaObject()->className()) + ' ' + control->objectName();
    }
    return silent;
}

TEST_F(WhatsThis, EveryControlOfEverySheetAndBarSaysWhatItIs) {
    openBlank();
    openProject({"Sky"});
    frame().activateWindowOf(*app_.imageTemplate().documents().front());
    for (const CommandId id :
         {ID_FILE_NEW, ID_TEXTURE_NEW, ID_PALETTE_NEW, ID_OPTIONS, ID_APP_ABOUT, ID_IMAGE_RESIZE,
          ID_IMAGE_SCALE, ID_IMAGE_SHIFT, ID_PALETTE_EDIT, ID_RANGE_ADJUST, ID_PALETTE_MOVE, ID_PALETTE_SWAP,
          ID_PALETTE_SORT, ID_PICTURE_ADD, ID_PROJECT_PROPERTY, ID_PROJECT_RULES, ID_PALETTE_EXPORT}) {
        bool came = false;
        withNextDialog([&](QDialog& sheet) {
            came = true;
            EXPECT_EQ(silentControls(sheet), QStringList()) << sheet.objectName().toStdString();
            sheet.reject();
        });
        app_.router().run(id);
        EXPECT_TRUE(came) << id;
    }
    EXPECT_EQ(silentControls(frame().paletteBar()), QStringList());
    for (QWidget* bar : frame().findChildren<QToolBar*>())
        EXPECT_EQ(silentControls(*bar), QStringList());
}

TEST_F(WhatsThis, KeysAskInDialogsAndATipAnswers) {
    openBlank();
    withNextDialog([](QDialog& sheet) {
        auto* const width = sheet.findChild<QLineEdit*>("IDC_TEXTURE_WIDTH");
        EXPECT_TRUE(answers(*width->parentWidget()));
        width->setFocus();
        QTest::keyClick(width, Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
        QWhatsThis::leaveWhatsThisMode();
        sheet.reject();
    });
    run(ID_FILE_NEW);
}

TEST_F(WhatsThis, PromptsShowWhileAMenuIsWalkedAndLeaveTheMessageBehind) {
    const auto prompt = [](CommandId id) { return QString::fromStdString(statusText(*findCommand(id))); };
    QStatusBar& bar = *frame().statusBar();
    QLabel& message = *bar.findChild<QLabel*>("ID_SEPARATOR");
    frame().SetStatusText("three files", 0, 0);
    QAction* file = frame().menuBar()->actions().front();
    QMenu& menu = *file->menu();
    frame().menuBar()->setActiveAction(file);
    menu.setActiveAction(nullptr);
    for (const CommandId id : {ID_FILE_NEW, ID_FILE_OPEN}) {
        QTest::keyClick(&menu, Qt::Key_Down);
        EXPECT_EQ(bar.currentMessage(), prompt(id));
        EXPECT_FALSE(message.isVisible());
    }
    menu.close();
    EXPECT_EQ(bar.currentMessage(), QString());
    EXPECT_TRUE(message.isVisible());
    EXPECT_EQ(message.text(), "three files");
}

} // namespace
} // namespace dyeworks
