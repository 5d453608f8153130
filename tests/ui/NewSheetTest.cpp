#include "Program.h"
#include "ui/CFileNewSheet.h"

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>

namespace dyeworks {
namespace {

class NewSheet : public testing::Test {
protected:
    NewSheet() { sheet_.show(); }
    template <typename Widget>
    Widget& find(const char* name) {
        return *sheet_.findChild<Widget*>(QString::fromLatin1(name));
    }
    void type(const char* field, const char* text) {
        auto& edit = find<QLineEdit>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }

    FakePlatform fake_;
    CFileNewSheet sheet_;
};

TEST_F(NewSheet, StaysOpenAtTheFieldThatIsOutOfRange) {
    for (const char* text : {"1025", "-1", "", "6x", "99999999999"}) {
        fake_.messages.shown.clear();
        type("IDC_TEXTURE_HEIGHT", text);
        if (*text == '\0')
            find<QLineEdit>("IDC_TEXTURE_HEIGHT").clear();
        find<QLineEdit>("IDC_TEXTURE_WIDTH").setFocus();
        sheet_.accept();
        EXPECT_TRUE(sheet_.isVisible()) << text;
        ASSERT_EQ(fake_.messages.shown.size(), 1U) << text;
        EXPECT_EQ(fake_.messages.shown[0].text, "Enter an integer between 0 and 1024.");
        EXPECT_EQ(sheet_.focusWidget(), &find<QWidget>("IDC_TEXTURE_HEIGHT_SPIN")) << text;
    }
    type("IDC_TEXTURE_HEIGHT", "0");
    sheet_.accept();
    EXPECT_FALSE(sheet_.isVisible());
}

class NewCommand : public Program {
protected:
    /// Runs New and lets `answer` use the sheet.
    void runNew(const std::function<void(CFileNewSheet&)>& answer) {
        QMetaObject::invokeMethod(
            &app_.mainFrame(),
            [&] {
                auto* sheet = qobject_cast<CFileNewSheet*>(QApplication::activeModalWidget());
                ASSERT_NE(sheet, nullptr);
                answer(*sheet);
            },
            Qt::QueuedConnection);
        ASSERT_TRUE(run(ID_FILE_NEW));
    }
};

TEST_F(NewCommand, MakesTheImageThatTheSheetAsksFor) {
    runNew([](CFileNewSheet& sheet) {
        sheet.findChild<QLineEdit*>(QStringLiteral("IDC_TEXTURE_WIDTH"))->setText(QStringLiteral("33"));
        sheet.findChild<QRadioButton*>(QStringLiteral("IDC_BITMODE_8BIT"))->click();
        sheet.accept();
    });
    EXPECT_EQ(image().title(), "Texture1");
    EXPECT_FALSE(image().isModified());
    EXPECT_EQ(image().canvas().width(), 33);
    EXPECT_EQ(image().canvas().height(), 64);
    EXPECT_EQ(image().canvas().bitsPerPixel(), 8);

    runNew([](CFileNewSheet& sheet) { sheet.reject(); });
    EXPECT_EQ(app_.mainFrame().childFrames().size(), 1U);
    runNew([](CFileNewSheet& sheet) { sheet.accept(); });
    EXPECT_EQ(image().title(), "Texture2") << "cancelling uses up no number";
    EXPECT_EQ(image().canvas().bitsPerPixel(), 4);

    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_TRUE(fake_.profile.sections.empty()) << "an image without a file leaves no settings";
}

} // namespace
} // namespace dyeworks
