#include "Program.h"
#include "ui/sheets/CFileNewPalettePage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/CFileNewTexturePage.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QShowEvent>
#include <QTabBar>
#include <QTabWidget>

#include <tuple>

namespace dyeworks {
namespace {

class NewSheet : public testing::Test {
protected:
    void show() {
        sheet_.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet_));
    }
    void showOnly(const PropertyPage& page) {
        sheet_.keepOnly(page);
        show();
    }
    template <typename Widget>
    Widget& find(const char* name) {
        return *sheet_.findChild<Widget*>(name);
    }
    void type(const char* field, const char* text) {
        auto& edit = find<QLineEdit>(field);
        edit.setFocus();
        edit.clear();
        QTest::keyClicks(&edit, text);
    }
    void press(const char* button) { find<QAbstractButton>(button).click(); }
    QTabBar& tabs() { return *sheet_.findChild<QTabBar*>(); }

    FakePlatform fake_;
    CFileNewSheet sheet_;
};

TEST_F(NewSheet, StaysOpenAtTheFieldThatIsOutOfRange) {
    showOnly(sheet_.texturePage());
    for (const char* text : {"1025", "-1", "", "6x", "99999999999"}) {
        fake_.messages.shown.clear();
        type("IDC_TEXTURE_HEIGHT", text);
        find<QLineEdit>("IDC_TEXTURE_WIDTH").setFocus();
        press("IDOK");
        EXPECT_THAT(texts(fake_), ElementsAre("Please enter an integer between 0 and 1024.")) << text;
        EXPECT_EQ(sheet_.focusWidget(), &find<QWidget>("IDC_TEXTURE_HEIGHT_SPIN")) << text;
        EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_HEIGHT").selectedText(), text);
    }
    type("IDC_TEXTURE_HEIGHT", "0");
    press("IDOK");
    EXPECT_FALSE(sheet_.isVisible());
    EXPECT_EQ(sheet_.texturePage().imageHeight(), 0);
}

TEST_F(NewSheet, SpinButtonsStopShortOfTheTypedZero) {
    showOnly(sheet_.texturePage());
    const std::tuple<const char*, Qt::Key, const char*> cases[] = {
        {"2", Qt::Key_Down, "1"},        {"1", Qt::Key_Down, "1"},     {"0", Qt::Key_Up, "1"},
        {"0", Qt::Key_Down, "0"},        {"1023", Qt::Key_Up, "1024"}, {"1024", Qt::Key_Up, "1024"},
        {"1020", Qt::Key_PageUp, "1024"}};
    for (const auto& [from, key, to] : cases) {
        type("IDC_TEXTURE_WIDTH", from);
        QTest::keyClick(&find<QWidget>("IDC_TEXTURE_WIDTH_SPIN"), key);
        EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_WIDTH").text(), to) << from;
    }
}

TEST_F(NewSheet, AlphaGoesAsFarAsTheColourType) {
    showOnly(sheet_.palettePage());
    const char* const rgba = "IDC_COLORTYPE_RGBA";
    const char* const ia = "IDC_COLORTYPE_IA";
    const std::string none, upTo1 = "Please enter an integer between 0 and 1.",
                            upTo255 = "Please enter an integer between 0 and 255.";
    const std::tuple<const char*, const char*, std::string> cases[] = {
        {rgba, "1", none},    {rgba, "2", upTo1}, {ia, "2", none},     {ia, "255", none},
        {ia, "256", upTo255}, {ia, "", upTo255},  {rgba, "200", upTo1}};
    for (const auto& [colourType, alpha, refusal] : cases) {
        SCOPED_TRACE(std::string(colourType) + " " + alpha);
        show();
        type("IDC_DEFAULT_ALPHA", alpha);
        press(colourType); // After the number, which the new range then has to hold.
        fake_.messages.shown.clear();
        press("IDOK");
        EXPECT_EQ(sheet_.isVisible(), !refusal.empty());
        EXPECT_EQ(fake_.messages.lastText(), refusal);
        const auto& field = find<QLineEdit>("IDC_DEFAULT_ALPHA");
        if (refusal.empty())
            EXPECT_EQ(sheet_.palettePage().defaultAlpha(), std::stoi(alpha));
        else
            EXPECT_TRUE(field.hasFocus() || sheet_.focusWidget() == field.parentWidget());
    }
    EXPECT_EQ(sheet_.palettePage().colourType(), ColourType::Ia) << "what was refused is not taken over";
}

TEST_F(NewSheet, KnowsThePageThatWasInFront) {
    show();
    ASSERT_EQ(tabs().count(), 3);
    EXPECT_TRUE(tabs().isVisible());
    tabs().setCurrentIndex(2);
    press("IDOK");
    EXPECT_EQ(sheet_.activePage(), 2) << "not the last one that was taken over";
    show();
    tabs().setCurrentIndex(1);
    press("IDCANCEL");
    EXPECT_EQ(sheet_.activePage(), 1);

    show();
    type("IDC_TEXTURE_WIDTH", "x");
    tabs().setCurrentIndex(0);
    press("IDOK");
    EXPECT_TRUE(sheet_.isVisible());
    EXPECT_EQ(sheet_.activePage(), 1) << "the page that refuses comes to the front";
    EXPECT_EQ(sheet_.focusWidget(), &find<QWidget>("IDC_TEXTURE_WIDTH_SPIN"));
}

TEST_F(NewSheet, TellsTheSizeOfAPalettesFileAndCancelChangesNoValue) {
    show();
    type("IDC_TEXTURE_WIDTH", "7");
    EXPECT_EQ(find<QLabel>("IDC_PALETTE_SIZE").text(), "96 bytes");
    sheet_.palettePage().findChild<QRadioButton*>("IDC_BITMODE_8BIT")->click();
    EXPECT_EQ(find<QLabel>("IDC_PALETTE_SIZE").text(), "576 bytes");
    press("IDCANCEL");
    EXPECT_EQ(sheet_.texturePage().imageWidth(), 64);
    EXPECT_EQ(sheet_.palettePage().entryCount(), 16);
    show();
    EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_WIDTH").text(), "64");
    press("IDOK");
    EXPECT_EQ(sheet_.palettePage().entryCount(), 16);
}

TEST_F(NewSheet, KeepsWhatIsTypedWhileItIsAnIcon) {
    showOnly(sheet_.texturePage());
    type("IDC_TEXTURE_HEIGHT", "31");
    QShowEvent back;
    QSpontaneKeyEvent::setSpontaneous(&back);
    // Not by sendEvent, which calls every event one of the program.
    qApp->notify(&sheet_, &back);
    EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_HEIGHT").text(), "31");
    EXPECT_EQ(sheet_.focusWidget(), &find<QWidget>("IDC_TEXTURE_HEIGHT_SPIN"));
}

TEST_F(NewSheet, PagesTakenOutHoldNothingUp) {
    find<QLineEdit>("IDC_TEXTURE_WIDTH").setText("x");
    showOnly(sheet_.palettePage());
    ASSERT_EQ(tabs().count(), 1);
    EXPECT_EQ(tabs().tabText(0), "Palette");
    press("IDOK");
    EXPECT_FALSE(sheet_.isVisible());
    EXPECT_EQ(sheet_.texturePage().imageWidth(), 64);
}

using NewCommand = Program;

TEST_F(NewCommand, LeavesNothingBehindThatWasCancelledOrHasNoFile) {
    fake_.profile.setInteger("Settings", "UseNotify_AskUseProject", 0);
    for (const auto end : {&QDialog::accept, &QDialog::reject, &QDialog::accept}) {
        withNextDialog(end);
        ASSERT_TRUE(run(ID_FILE_NEW));
    }
    EXPECT_EQ(frame().childFrames().size(), 2U);
    EXPECT_EQ(image().title(), "Texture2") << "cancelling uses up no number";

    ASSERT_TRUE(run(ID_FILE_CLOSE));
    fake_.profile.sections.erase("Start Page");
    EXPECT_EQ(fake_.profile.sections.size(), 1U) << "an image without a file leaves no settings";
}

} // namespace
} // namespace dyeworks
