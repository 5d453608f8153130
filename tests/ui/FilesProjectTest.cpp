#include "Program.h"
#include "ui/sheets/CUseProjectDlg.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <functional>

namespace dyeworks {
namespace {

using FilesProject = Program;

constexpr const char* kAskPalette = "\"pic\" (TLF) is modified. save now?";
constexpr const char* kAskProject = "Save changes to c:\\proj\\sea.tpf?";
constexpr const char* kAskImage = "Save changes to c:\\tex\\pic.tmf?";
constexpr const char* kAskClose = "Do you close all pictures?";

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
                ElementsAre("c:\\tex\\pic.tlf", "c:\\proj\\sea.tpf", "c:\\tex\\pic.tmf"));
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\pic.tlf")->substr(64 + 6, 2), "\x12\x34");
}

TEST_F(FilesProject, PicturesAreClosedTogetherAfterOneQuestionForEach) {
    openBlank();
    changePalette();
    drawPixel({1, 1}, 5);
    CTPFDocument& project = openProject();
    app_.ClosePictureDocuments({"", "c:\\gone.tmf", "c:\\proj\\sea.tpf"}, [] { return true; });
    EXPECT_THAT(texts(fake_), IsEmpty()) << "none is open, and none is the current palette";
    for (const char* name : {"A", "B", "C"})
        ASSERT_TRUE(project.AddPicture(name, "C:\\TEX\\PIC.TMF", "c:\\tex\\pic.tlf", 0, std::nullopt, true));
    ASSERT_TRUE(project.save());
    const MessageAnswer yes = MessageAnswer::Yes;
    const MessageAnswer no = MessageAnswer::No;
    const struct {
        bool leaves;
        std::vector<MessageAnswer> answers;
        std::vector<std::string> questions;
        bool closes;
    } cases[] = {
        {true, {}, {kAskPalette}, false},
        {true, {no}, {kAskPalette, kAskImage}, false},
        {false, {yes}, {kAskClose, kAskImage}, false},
        {false, {yes, no}, {kAskClose, kAskImage, kAskPalette}, false},
        {false, {yes, no, no}, {kAskClose, kAskImage, kAskPalette}, true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(app_.projectDocument(), &project);
        EXPECT_EQ(app_.imageTemplate().documents().size() + app_.paletteSet()->palettes.size(), 2U);
        fake_.messages.shown.clear();
        for (const MessageAnswer answer : c.answers)
            fake_.messages.answerWith(answer);
        EXPECT_EQ(c.leaves ? frame().close() : app_.CloseProject(), c.closes);
        EXPECT_EQ(texts(fake_), c.questions);
    }
    EXPECT_EQ(app_.projectDocument(), nullptr);
    EXPECT_EQ(app_.imageTemplate().documents().size() + app_.paletteSet()->palettes.size(), 0U);

    openProject();
    openBlank();
    fake_.messages.answerWith(no);
    app_.ClosePictureDocuments({"c:\\tex\\pic.tmf", "c:\\tex\\pic.tlf"}, [] { return true; });
    EXPECT_EQ(app_.imageTemplate().documents().size() + app_.paletteSet()->palettes.size(), 2U);
}

std::function<void()> onEnd;     // Of a project.
std::function<void()> onPreview; // Of an image.

TEST_F(FilesProject, APictureIsShownInThePaletteThatItNames) {
    openAttached(texels(2, 2, [](int, int) { return 1U; }), 4, 256);
    putImages(fake_, {"c:\\tex\\a.tmf", "c:\\tex\\b.tmf"});
    CTPFDocument& project = openProject();
    ASSERT_TRUE(project.AddPicture("A", "c:\\tex\\a.tmf", "c:\\tex\\pic.tlf", 3, std::nullopt, true));
    ASSERT_TRUE(project.AddPicture("B", "c:\\tex\\b.tmf", "c:\\tex\\a.tmf", 3, std::nullopt, true));
    EXPECT_TRUE(project.OpenPicture("A"));
    EXPECT_EQ(image().attachedName(), "c:\\tex\\pic.tlf");
    EXPECT_EQ(image().paletteValue(), 48);
    EXPECT_TRUE(project.OpenPicture("B"));
    EXPECT_EQ(image().pathName(), "c:\\tex\\b.tmf");
    EXPECT_FALSE(image().IsAttached()) << "what it names is no palette";
}

TEST_F(Launch, LeavingAsksForWhatPlugInsChangeMeanwhile) {
    const std::string plugIn = "c:\\program\\PlugIns\\p.so";
    fake_.files.putFile(plugIn, "");
    fake_.library.define(
        plugIn, {{"DWPI_isAvail", FakeLibrary::address(+[](std::uint32_t) { return 1U; })},
                 {"DWPI_getType", FakeLibrary::address(+[] { return 0x24U; })}, // Previews and nodes.
                 {"DWPI_TPF_onDelete", FakeLibrary::address(+[](void*) { return onEnd(), 1U; })},
                 {"DWPI_preview2",
                  FakeLibrary::address(+[](const void*, std::uint32_t) { return onPreview(), 1U; })}});
    ASSERT_TRUE(launch());
    putImages(fake_, {"c:\\tex\\pic.tmf"});
    fake_.files.putFile("c:\\tex\\pic.tlf", paletteFile(16, [](int) { return 1U; }));
    fake_.files.putFile("c:\\proj\\sea.tpf", "");
    ASSERT_TRUE(app_->OpenFiles({"c:\\proj\\sea.tpf", "c:\\tex\\pic.tlf", "c:\\tex\\pic.tmf"}, true));
    auto& project = dynamic_cast<CTPFDocument&>(*app_->projectDocument());
    TextureLookupTable& palette = *app_->paletteSet()->lookup("c:\\tex\\pic.tlf");
    std::uint16_t next = 100;
    const auto changePalette = [&] {
        palette.beginEdit();
        palette.setEntry(3, ++next);
        palette.commitEdit();
    };
    onPreview = [] {};
    onEnd = [&] {
        changePalette();
        project.SetValue("k", std::to_string(next));
    };
    ASSERT_TRUE(run(ID_PREVIEW1));
    fake_.messages.answerWith(MessageAnswer::No);
    EXPECT_FALSE(frame().close());
    EXPECT_THAT(texts(fake_), ElementsAre(kAskPalette, kAskProject));
    EXPECT_EQ(app_->projectDocument(), &project);
    EXPECT_EQ(project.plugInHandles().size(), 1U) << "the plug-in has begun anew";

    fake_.messages.shown.clear();
    int previews = 0;
    onPreview = [&] {
        if (previews++ == 0)
            changePalette();
    };
    const MessageAnswer no = MessageAnswer::No;
    fake_.messages.answerWith({no, no, no, no, no});
    EXPECT_TRUE(frame().close());
    EXPECT_THAT(texts(fake_), ElementsAre(kAskPalette, kAskProject, kAskPalette, kAskPalette, kAskProject));
    app_.reset();
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
    app_.imageHost().AskUseProject();
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
    app_.imageHost().AskUseProject();
    EXPECT_EQ(asked, 1) << "a project is open";
}

} // namespace
} // namespace dyeworks
