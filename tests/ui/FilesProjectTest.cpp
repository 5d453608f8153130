#include "Program.h"
#include "ui/sheets/CUseProjectDlg.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

namespace dyeworks {
namespace {

using FilesProject = Program;

constexpr const char* kAskPalette = "\"pic\" (TLF) is modified. save now?";
constexpr const char* kAskProject = "Save changes to c:\\proj\\sea.tpf?";
constexpr const char* kAskImage = "Save changes to c:\\tex\\pic.tmf?";
constexpr const char* kAskClose = "Do you close all pictures?";

TEST_F(FilesProject, CommandsAreEnabledByWhatThereIs) {
    const auto expect = [this](bool project, bool picture) {
        for (const CommandId id :
             {ID_PROJECT_CLOSE, ID_PROJECT_SAVE, ID_PROJECT_SAVE_AS, ID_PROJECT_PROPERTY, ID_PICTURE_ADD})
            EXPECT_EQ(enabled(id), project) << id;
        for (const CommandId id : {ID_PICTURE_CHANGE, ID_PICTURE_REMOVE})
            EXPECT_EQ(enabled(id), picture) << id;
    };
    openProject({"Sky"});
    EXPECT_EQ(app_.FindOpenDocument("C:\\PROJ\\SEA.TPF"), app_.projectDocument());
    EXPECT_THAT(app_.recentProjects().paths(), ElementsAre("c:\\proj\\sea.tpf"));
    expect(true, true);
    ASSERT_TRUE(run(ID_PICTURE_REMOVE));
    EXPECT_TRUE(app_.projectDocument()->isModified());
    expect(true, false);
    ASSERT_TRUE(run(ID_PROJECT_SAVE));
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_TRUE(app_.currentPicture().empty());
    expect(false, false);
}

TEST_F(FilesProject, ClosesOnlyAfterItsQuestion) {
    openProject().setModified(true);
    ASSERT_TRUE(run(ID_PROJECT_CLOSE)); // cancelled
    EXPECT_NE(app_.projectDocument(), nullptr);
    EXPECT_THAT(texts(fake_), ElementsAre(kAskProject));
    fake_.messages.answerWith(MessageAnswer::Yes);
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_EQ(app_.projectDocument(), nullptr);
    EXPECT_THAT(fake_.files.textOf("c:\\proj\\sea.tpf").value(), testing::HasSubstr("PICT_NUM\t=\t0"));
    EXPECT_THAT(app_.FindDocTemplate("Project")->documents(), IsEmpty());
}

TEST_F(FilesProject, PalettesThenProjectThenImagesAreAskedForOnceEach) {
    openBlank();
    drawPixel({1, 1}, 5);
    changePalette();
    openProject().setModified(true);
    const std::vector<std::string> questions{kAskPalette, kAskProject, kAskImage};
    // So many are answered, and then none.
    for (std::ptrdiff_t answered = 0; answered <= 3; ++answered) {
        fake_.messages.shown.clear();
        for (std::ptrdiff_t i = 0; i < answered; ++i)
            fake_.messages.answerWith(MessageAnswer::No);
        EXPECT_EQ(app_.SaveAllModified(), answered == 3);
        const auto last = std::min<std::ptrdiff_t>(answered + 1, 3);
        EXPECT_EQ(texts(fake_), std::vector(questions.begin(), questions.begin() + last));
    }
    const MessageAnswer yes = MessageAnswer::Yes;
    fake_.messages.answerWith({yes, yes, yes});
    EXPECT_TRUE(frame().close());
    EXPECT_THAT(fake_.files.written(),
                ElementsAre("c:\\proj\\sea.tpf", "c:\\tex\\pic.tlf", "c:\\tex\\pic.tmf"));
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\pic.tlf")->substr(64 + 6, 2), "\x12\x34");
}

TEST_F(FilesProject, PicturesAreClosedAfterOneQuestionOrNone) {
    const std::vector<std::string> paths = {"", "c:\\gone.tmf", "C:\\TEX\\PIC.TMF", "c:\\tex\\pic.tlf",
                                            "c:\\tex\\b.tlf"};
    const auto openAll = [this] {
        openBlank();
        fake_.files.putFile("c:\\tex\\b.tlf", paletteFile(16, [](int) { return 1U; }));
        ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\b.tlf"));
    };
    app_.ClosePictureDocuments(paths, false);
    EXPECT_THAT(texts(fake_), IsEmpty()) << "none is open";
    openAll();
    fake_.messages.answerWith(MessageAnswer::No);
    app_.ClosePictureDocuments(paths, false);
    EXPECT_THAT(texts(fake_), ElementsAre(kAskClose));
    EXPECT_EQ(fake_.messages.shown[0].icon, MessageIcon::Question);
    EXPECT_EQ(app_.imageTemplate().documents().size(), 1U);
    EXPECT_EQ(app_.paletteSet()->palettes.size(), 2U);

    fake_.messages.answerWith(MessageAnswer::Yes);
    app_.ClosePictureDocuments(paths, false);
    EXPECT_EQ(fake_.messages.shown.size(), 2U);
    EXPECT_THAT(app_.imageTemplate().documents(), IsEmpty());
    EXPECT_TRUE(app_.paletteSet()->palettes.empty());

    openAll();
    app_.ClosePictureDocuments({""}, true);
    EXPECT_EQ(app_.paletteSet()->palettes.size(), 2U)
        << "a file that was not found is not the current palette";
    app_.ClosePictureDocuments(paths, true);
    EXPECT_EQ(fake_.messages.shown.size(), 2U);
    EXPECT_THAT(app_.imageTemplate().documents(), IsEmpty());
}

TEST_F(FilesProject, AChangedPaletteRecoloursTheImagesOfItsKeyOnly) {
    openBlank();
    TextureLookupTable green;
    ASSERT_TRUE(green.create(256, ColourType::Rgba));
    green.setEntry(5, 31 << 6);
    const auto shown = [this] { return image().canvas().colourTable()[4 * 5 + 1]; };
    ASSERT_NE(shown(), 248);
    app_.BroadcastPaletteChange("c:\\tex\\other.tlf", green);
    EXPECT_NE(shown(), 248);
    app_.BroadcastPaletteChange("c:\\tex\\pic.tlf", green);
    EXPECT_EQ(shown(), 248);
}

TEST_F(FilesProject, ANewImageMayBringANewProject) {
    fake_.files.putFile("c:\\proj\\old.txt", "");
    int asked = 0;
    const auto name = [](QDialog& sheet, const char* text) {
        sheet.findChild<QLineEdit*>("IDC_TPF_NAME")->setText(text);
        sheet.findChild<QLineEdit*>("IDC_TPF_DIR")->setText("c:\\proj");
        sheet.accept();
    };
    withNextDialog([&](QDialog& question) {
        ++asked;
        // The sheet comes when the question has gone, and again when there is no name in it.
        withNextDialog([&](QDialog& sheet) {
            withNextDialog([&](QDialog& again) { name(again, "lake"); });
            name(sheet, "");
        });
        question.done(static_cast<int>(UseProjectAnswer::NewProject));
    });
    app_.AskUseProject();
    EXPECT_EQ(asked, 1);
    EXPECT_THAT(texts(fake_), ElementsAre("Incorrect parameter."));
    ASSERT_NE(app_.projectDocument(), nullptr);
    EXPECT_EQ(app_.projectDocument()->title(), "lake");
    EXPECT_EQ(fake_.files.textOf("c:\\proj\\lake.tpf"),
              "TPF_DIR\t=\tc:\\proj\r\nTMF_DIR\t=\t\r\nTLF_DIR\t=\t\r\nPICT_NUM\t=\t0\r\n");
    // Answers a question that must not come, and goes unused with this test.
    QObject unasked;
    QTimer::singleShot(0, &unasked, [&asked] {
        ++asked;
        QApplication::activeModalWidget()->close();
    });
    app_.AskUseProject();
    EXPECT_EQ(asked, 1) << "a project is open";
}

TEST_F(FilesProject, HelpThatCannotBeOpenedIsTold) {
    for (const bool opens : {true, false}) {
        fake_.shell.opens = opens;
        EXPECT_THAT(texts(fake_), IsEmpty());
        app_.ShowHelp("..\\doc\\index.html");
    }
    const std::string page = fake_.files.programFolder() + "..\\doc\\index.html";
    EXPECT_THAT(fake_.shell.opened, ElementsAre(page, page));
    EXPECT_THAT(
        texts(fake_),
        ElementsAre("can not open help. Please, check exist help file, and check browser installed."));
    EXPECT_EQ(fake_.messages.shown[0].icon, MessageIcon::Stop);
}

} // namespace
} // namespace dyeworks
