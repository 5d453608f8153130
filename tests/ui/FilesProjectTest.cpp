#include "Program.h"
#include "ui/CFileNewSheet.h"
#include "ui/CUseProjectDlg.h"

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FilesProject : public Program {
protected:
    /// An image and a palette, both with unsaved changes.
    void openAndChange() {
        openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
        ASSERT_TRUE(run(ID_TOOL_PIXEL));
        app_.selectPaletteBarCell(5);
        drag({{1, 1}});
        TextureLookupTable& palette = *app_.paletteSet()->lookup("");
        palette.beginEdit();
        palette.setEntry(3, 0x1234);
        palette.commitEdit();
    }
    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const Message& message : fake_.messages.shown)
            result.push_back(message.text);
        return result;
    }
};

constexpr const char* kAskPalette = "\"pic\" (TLF) is modified. save now?";
constexpr const char* kAskProject = "Save changes to c:\\proj\\sea.tpf?";
constexpr const char* kAskImage = "Save changes to c:\\tex\\pic.tmf?";
constexpr const char* kAskClose = "Do you close all pictures?";

TEST_F(FilesProject, CommandsAreEnabledByWhatThereIs) {
    const CommandId projectCommands[] = {ID_PROJECT_CLOSE, ID_PROJECT_SAVE, ID_PROJECT_SAVE_AS,
                                         ID_PROJECT_PROPERTY, ID_PICTURE_ADD};
    const CommandId pictureCommands[] = {ID_PICTURE_CHANGE, ID_PICTURE_REMOVE};
    openProject({"Sky"});
    for (const CommandId id : projectCommands)
        EXPECT_TRUE(enabled(id)) << id;
    for (const CommandId id : pictureCommands)
        EXPECT_TRUE(enabled(id)) << id;
    ASSERT_TRUE(run(ID_PICTURE_REMOVE));
    EXPECT_TRUE(app_.projectDocument()->isModified());
    for (const CommandId id : pictureCommands)
        EXPECT_FALSE(enabled(id)) << id;
    ASSERT_TRUE(run(ID_PROJECT_SAVE));
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_TRUE(app_.currentPicture().empty());
    for (const CommandId id : projectCommands)
        EXPECT_FALSE(enabled(id)) << id;
}

TEST_F(FilesProject, FilesGoToTheirKindAndUnknownOnesToImages) {
    openProject();
    EXPECT_EQ(app_.FindOpenDocument("C:\\PROJ\\SEA.TPF"), app_.projectDocument());
    EXPECT_THAT(app_.recentProjects().paths(), ElementsAre("c:\\proj\\sea.tpf"));
    for (const char* path : {"c:\\no.bmp2", "c:\\tlf", "c:\\old.tlf\\sky", "c:\\a.tlf.txt"}) {
        EXPECT_FALSE(app_.OpenDocumentFile(path)) << path;
        EXPECT_EQ(fake_.messages.lastText(), "[" + std::string(path) + "] file open failed.\n");
    }
}

TEST_F(FilesProject, ClosesOnlyAfterItsQuestion) {
    openProject();
    app_.projectDocument()->setModified(true);
    fake_.messages.answerWith(MessageAnswer::Cancel);
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_NE(app_.projectDocument(), nullptr);
    EXPECT_THAT(texts(), ElementsAre(kAskProject));
    fake_.messages.answerWith(MessageAnswer::Yes);
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_EQ(app_.projectDocument(), nullptr);
    EXPECT_THAT(fake_.files.textOf("c:\\proj\\sea.tpf").value(), testing::HasSubstr("PICT_NUM\t=\t0"));
    EXPECT_THAT(app_.FindDocTemplate("Project")->documents(), IsEmpty());
}

TEST_F(FilesProject, PalettesThenProjectThenImagesAreAskedForOnceEach) {
    openAndChange();
    openProject();
    app_.projectDocument()->setModified(true);
    const MessageAnswer no = MessageAnswer::No;
    fake_.messages.answerWith({no, no, no});
    EXPECT_TRUE(app_.SaveAllModified());
    EXPECT_THAT(texts(), ElementsAre(kAskPalette, kAskProject, kAskImage));
    const std::vector<std::vector<std::string>> stops = {
        {kAskPalette}, {kAskPalette, kAskProject}, {kAskPalette, kAskProject, kAskImage}};
    for (std::size_t i = 0; i < stops.size(); ++i) {
        fake_.messages.shown.clear();
        for (std::size_t before = 0; before < i; ++before)
            fake_.messages.answerWith(no);
        fake_.messages.answerWith(MessageAnswer::Cancel);
        EXPECT_FALSE(app_.SaveAllModified());
        EXPECT_EQ(texts(), stops[i]);
    }
}

TEST_F(FilesProject, PicturesAreClosedAfterOneQuestionOrNone) {
    const std::vector<std::string> paths = {"", "c:\\gone.tmf", "C:\\TEX\\PIC.TMF", "c:\\tex\\pic.tlf",
                                            "c:\\tex\\b.tlf"};
    const auto openAll = [this] {
        openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
        fake_.files.putFile("c:\\tex\\b.tlf", paletteFile(16, [](int) { return 1U; }));
        ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\b.tlf"));
    };
    app_.ClosePictureDocuments(paths, false);
    EXPECT_THAT(texts(), IsEmpty()) << "none is open";
    openAll();
    fake_.messages.answerWith(MessageAnswer::No);
    app_.ClosePictureDocuments(paths, false);
    EXPECT_THAT(texts(), ElementsAre(kAskClose));
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
    openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
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

TEST_F(FilesProject, ANewPaletteIsWhatItsPageAsksFor) {
    QMetaObject::invokeMethod(
        &app_.mainFrame(),
        [] {
            auto* sheet = qobject_cast<CFileNewSheet*>(QApplication::activeModalWidget());
            ASSERT_NE(sheet, nullptr);
            EXPECT_EQ(sheet->findChild<QTabWidget*>()->count(), 1);
            sheet->findChild<QRadioButton*>(QStringLiteral("IDC_BITMODE_8BIT"))->click();
            sheet->findChild<QRadioButton*>(QStringLiteral("IDC_COLORTYPE_IA"))->click();
            sheet->findChild<QLineEdit*>(QStringLiteral("IDC_DEFAULT_ALPHA"))->setText(QStringLiteral("200"));
            sheet->accept();
        },
        Qt::QueuedConnection);
    ASSERT_TRUE(run(ID_PALETTE_NEW));
    const TextureLookupTable* palette = app_.paletteSet()->lookup("");
    ASSERT_NE(palette, nullptr);
    EXPECT_EQ(palette->table.count, 256U);
    EXPECT_EQ(palette->table.colourType, ColourType::Ia);
    EXPECT_EQ(palette->table.entries[255], 0xFFC8);
}

TEST_F(FilesProject, ANewImageMayBringANewProject) {
    fake_.files.putFile("c:\\proj\\old.txt", "");
    int asked = 0;
    // The sheet comes when the question has gone, and again when there is no name in it.
    std::vector<QString> names{QString(), QStringLiteral("lake")};
    std::function<void()> answer = [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        if (!names.empty())
            QMetaObject::invokeMethod(qApp, answer, Qt::QueuedConnection);
        if (auto* question = qobject_cast<CUseProjectDlg*>(dialog)) {
            ++asked;
            question->done(static_cast<int>(UseProjectAnswer::NewProject));
            return;
        }
        dialog->findChild<QLineEdit*>(QStringLiteral("IDC_TPF_NAME"))->setText(names.front());
        dialog->findChild<QLineEdit*>(QStringLiteral("IDC_TPF_DIR"))->setText(QStringLiteral("c:\\proj"));
        names.erase(names.begin());
        qobject_cast<QDialog*>(dialog)->accept();
    };
    QMetaObject::invokeMethod(qApp, answer, Qt::QueuedConnection);
    app_.AskUseProject();
    EXPECT_EQ(asked, 1);
    EXPECT_THAT(texts(), ElementsAre("Incorrect parameter."));
    ASSERT_NE(app_.projectDocument(), nullptr);
    EXPECT_EQ(app_.projectDocument()->title(), "lake.tpf");
    EXPECT_EQ(fake_.files.textOf("c:\\proj\\lake.tpf"),
              "TPF_DIR\t=\tc:\\proj\r\nTMF_DIR\t=\t\r\nTLF_DIR\t=\t\r\n"
              "PICT_NUM\t=\t0\r\n");
    app_.AskUseProject();
    EXPECT_EQ(asked, 1) << "a project is open";
}

TEST_F(FilesProject, HelpThatCannotBeOpenedIsTold) {
    app_.ShowHelp("..\\doc\\index.html");
    EXPECT_THAT(fake_.shell.opened, ElementsAre(fake_.files.programFolder() + "..\\doc\\index.html"));
    EXPECT_THAT(texts(), IsEmpty());
    fake_.shell.opens = false;
    app_.ShowHelp("..\\doc\\index.html");
    EXPECT_THAT(
        texts(),
        ElementsAre("can not open help. Please, check exist help file, and check browser installed."));
    EXPECT_EQ(fake_.messages.shown[0].icon, MessageIcon::Stop);
}

} // namespace
} // namespace dyeworks
