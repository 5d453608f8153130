#include "Program.h"
#include "ui/CFileNewPalettePage.h"
#include "ui/CFileNewSheet.h"
#include "ui/CFileNewTexturePage.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QShowEvent>
#include <QTabBar>

namespace dyeworks {
namespace {

class NewSheet : public testing::Test {
protected:
    void show() {
        sheet_.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet_));
    }
    template <typename Widget>
    Widget& find(const char* name) {
        return *sheet_.findChild<Widget*>(QString::fromLatin1(name));
    }
    void type(const char* field, const char* text) {
        auto& edit = find<QLineEdit>(field);
        edit.setFocus();
        edit.clear();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }
    void press(const char* button) { find<QAbstractButton>(button).click(); }
    QTabBar& tabs() { return *sheet_.findChild<QTabBar*>(); }

    FakePlatform fake_;
    CFileNewSheet sheet_;
};

TEST_F(NewSheet, StaysOpenAtTheFieldThatIsOutOfRange) {
    sheet_.keepOnly(sheet_.texturePage());
    show();
    for (const char* text : {"1025", "-1", "", "6x", "99999999999"}) {
        fake_.messages.shown.clear();
        type("IDC_TEXTURE_HEIGHT", text);
        find<QLineEdit>("IDC_TEXTURE_WIDTH").setFocus();
        press("IDOK");
        EXPECT_TRUE(sheet_.isVisible()) << text;
        ASSERT_EQ(fake_.messages.shown.size(), 1U) << text;
        EXPECT_EQ(fake_.messages.shown[0].text, "Please enter an integer between 0 and 1024.");
        EXPECT_EQ(sheet_.focusWidget(), &find<QWidget>("IDC_TEXTURE_HEIGHT_SPIN")) << text;
        EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_HEIGHT").selectedText(), QString::fromLatin1(text));
    }
    type("IDC_TEXTURE_HEIGHT", "0");
    press("IDOK");
    EXPECT_FALSE(sheet_.isVisible());
    EXPECT_EQ(sheet_.texturePage().imageHeight(), 0);
}

TEST_F(NewSheet, SpinButtonsStopShortOfTheTypedZero) {
    sheet_.keepOnly(sheet_.texturePage());
    show();
    const struct {
        const char* from;
        Qt::Key key;
        const char* to;
    } cases[] = {{"2", Qt::Key_Down, "1"},        {"1", Qt::Key_Down, "1"},     {"0", Qt::Key_Up, "1"},
                 {"0", Qt::Key_Down, "0"},        {"1023", Qt::Key_Up, "1024"}, {"1024", Qt::Key_Up, "1024"},
                 {"1020", Qt::Key_PageUp, "1024"}};
    for (const auto& [from, key, to] : cases) {
        type("IDC_TEXTURE_WIDTH", from);
        QTest::keyClick(&find<QWidget>("IDC_TEXTURE_WIDTH_SPIN"), key);
        EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_WIDTH").text().toStdString(), to) << from;
    }
}

TEST_F(NewSheet, AlphaGoesAsFarAsTheColourType) {
    sheet_.keepOnly(sheet_.palettePage());
    show();
    const struct {
        const char* type;
        const char* alpha;
        const char* refusal; // Null: taken.
    } cases[] = {
        {"IDC_COLORTYPE_RGBA", "1", nullptr},
        {"IDC_COLORTYPE_RGBA", "2", "Please enter an integer between 0 and 1."},
        {"IDC_COLORTYPE_IA", "2", nullptr},
        {"IDC_COLORTYPE_IA", "255", nullptr},
        {"IDC_COLORTYPE_IA", "256", "Please enter an integer between 0 and 255."},
        {"IDC_COLORTYPE_IA", "", "Please enter an integer between 0 and 255."},
        {"IDC_COLORTYPE_RGBA", "200", "Please enter an integer between 0 and 1."},
    };
    for (const auto& [colourType, alpha, refusal] : cases) {
        show();
        type("IDC_DEFAULT_ALPHA", alpha);
        press(colourType); // After the number, which the new range then has to hold.
        fake_.messages.shown.clear();
        press("IDOK");
        EXPECT_EQ(sheet_.isVisible(), refusal != nullptr) << colourType << " " << alpha;
        EXPECT_EQ(fake_.messages.lastText(), refusal == nullptr ? "" : refusal) << colourType << " " << alpha;
        if (refusal == nullptr) {
            EXPECT_EQ(sheet_.palettePage().defaultAlpha(), std::stoi(alpha));
        } else {
            EXPECT_TRUE(find<QLineEdit>("IDC_DEFAULT_ALPHA").hasFocus() ||
                        sheet_.focusWidget() == find<QLineEdit>("IDC_DEFAULT_ALPHA").parentWidget());
        }
    }
    EXPECT_EQ(sheet_.palettePage().colourType(), ColourType::Ia) << "what was refused is not taken over";
}

TEST_F(NewSheet, TellsTheSizeOfThePalettesFile) {
    auto& size = find<QLabel>("IDC_PALETTE_SIZE");
    EXPECT_EQ(size.text(), QStringLiteral("96 bytes"));
    sheet_.palettePage().findChild<QRadioButton*>(QStringLiteral("IDC_BITMODE_8BIT"))->click();
    EXPECT_EQ(size.text(), QStringLiteral("576 bytes"));
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

TEST_F(NewSheet, CancelChangesNoValue) {
    show();
    type("IDC_TEXTURE_WIDTH", "7");
    sheet_.palettePage().findChild<QRadioButton*>(QStringLiteral("IDC_BITMODE_8BIT"))->click();
    press("IDCANCEL");
    EXPECT_EQ(sheet_.texturePage().imageWidth(), 64);
    EXPECT_EQ(sheet_.palettePage().entryCount(), 16);
    show();
    EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_WIDTH").text(), QStringLiteral("64"));
    press("IDOK");
    EXPECT_EQ(sheet_.palettePage().entryCount(), 16);
}

TEST_F(NewSheet, KeepsWhatIsTypedWhileItIsAnIcon) {
    sheet_.keepOnly(sheet_.texturePage());
    show();
    type("IDC_TEXTURE_HEIGHT", "31");
    QShowEvent back;
    QSpontaneKeyEvent::setSpontaneous(&back);
    // Not by sendEvent, which calls every event one of the program.
    qApp->notify(&sheet_, &back);
    EXPECT_EQ(find<QLineEdit>("IDC_TEXTURE_HEIGHT").text(), QStringLiteral("31"));
    EXPECT_EQ(sheet_.focusWidget(), &find<QWidget>("IDC_TEXTURE_HEIGHT_SPIN"));
}

TEST_F(NewSheet, PagesTakenOutHoldNothingUp) {
    find<QLineEdit>("IDC_TEXTURE_WIDTH").setText(QStringLiteral("x"));
    sheet_.keepOnly(sheet_.palettePage());
    show();
    EXPECT_TRUE(tabs().isVisible());
    ASSERT_EQ(tabs().count(), 1);
    EXPECT_EQ(tabs().tabText(0), QStringLiteral("Palette"));
    EXPECT_FALSE(sheet_.texturePage().isVisible());
    press("IDOK");
    EXPECT_FALSE(sheet_.isVisible());
    EXPECT_EQ(sheet_.activePage(), 0);
    EXPECT_EQ(sheet_.texturePage().imageWidth(), 64);
}

class NewCommand : public Program {
protected:
    NewCommand() { fake_.profile.setInteger("Settings", "UseNotify_AskUseProject", 0); }
    /// Runs a command of the sheet and lets `answer` use the sheet.
    void runNew(const std::function<void(CFileNewSheet&)>& answer, CommandId command = ID_FILE_NEW) {
        QMetaObject::invokeMethod(
            &app_.mainFrame(),
            [&] {
                auto* sheet = qobject_cast<CFileNewSheet*>(QApplication::activeModalWidget());
                ASSERT_NE(sheet, nullptr);
                answer(*sheet);
            },
            Qt::QueuedConnection);
        ASSERT_TRUE(run(command));
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
    EXPECT_EQ(fake_.profile.sections.size(), 1U) << "an image without a file leaves no settings";
}

TEST_F(NewCommand, MakesThePaletteThatTheSheetAsksFor) {
    runNew(
        [](CFileNewSheet& sheet) {
            const auto press = [&](const char* name) {
                sheet.palettePage().findChild<QRadioButton*>(QString::fromLatin1(name))->click();
            };
            press("IDC_BITMODE_8BIT");
            press("IDC_COLORTYPE_IA");
            sheet.findChild<QLineEdit*>(QStringLiteral("IDC_DEFAULT_ALPHA"))->setText(QStringLiteral("200"));
            sheet.accept();
        },
        ID_PALETTE_NEW);
    const TextureLookupTable* palette = app_.paletteSet()->lookup("");
    ASSERT_NE(palette, nullptr);
    EXPECT_EQ(palette->table.colourType, ColourType::Ia);
    ASSERT_EQ(palette->table.count, 256);
    for (int i = 0; i < 256; ++i)
        ASSERT_EQ(palette->table.getAlpha(i), 200) << i;
    runNew([](CFileNewSheet& sheet) { sheet.reject(); }, ID_PALETTE_NEW);
    EXPECT_EQ(app_.paletteSet()->lookup(""), palette);
}

} // namespace
} // namespace dyeworks
