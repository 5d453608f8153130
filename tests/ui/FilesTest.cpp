#include "Program.h"
#include "framework/widgets/ChildFrame.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kImage = "c:\\tex\\pic.tmf";
constexpr const char* kPalette = "c:\\tex\\pic.tlf";

class FilesTest : public Program {
protected:
    void openAndDraw() {
        openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
        ASSERT_TRUE(run(ID_TOOL_PIXEL));
        app_.selectPaletteBarCell(5);
        drag({{1, 1}});
        ASSERT_TRUE(image().isModified());
    }
    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const Message& message : fake_.messages.shown)
            result.push_back(message.text);
        return result;
    }
    [[nodiscard]] std::size_t windows() { return app_.mainFrame().childFrames().size(); }
};

TEST_F(FilesTest, ClosingTheWindowAsksAndCancelKeepsIt) {
    openAndDraw();
    fake_.messages.answerWith(MessageAnswer::Cancel);
    EXPECT_FALSE(app_.mainFrame().close());
    EXPECT_TRUE(app_.mainFrame().isVisible());
    EXPECT_EQ(windows(), 1U);
    EXPECT_THAT(texts(), ElementsAre("Save changes to c:\\tex\\pic.tmf?"));
}

TEST_F(FilesTest, ClosingTheWindowWithoutSavingAsksOnce) {
    openAndDraw();
    const auto before = fake_.files.textOf(kImage);
    fake_.messages.answerWith(MessageAnswer::No);
    EXPECT_TRUE(run(ID_APP_EXIT));
    EXPECT_FALSE(app_.mainFrame().isVisible());
    EXPECT_EQ(fake_.messages.shown.size(), 1U);
    EXPECT_EQ(fake_.files.textOf(kImage), before);
    EXPECT_THAT(app_.imageTemplate().documents(), IsEmpty());
}

TEST_F(FilesTest, AFailedSaveKeepsTheWindowAndTheChanges) {
    openAndDraw();
    fake_.messages.answerWith({MessageAnswer::Yes, MessageAnswer::Ok});
    fake_.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(app_.mainFrame().close());
    EXPECT_TRUE(image().isModified());
    EXPECT_EQ(fake_.messages.shown.size(), 2U);
}

TEST_F(FilesTest, PalettesAreAskedForBeforeImages) {
    openAndDraw();
    TextureLookupTable& palette = *app_.paletteSet()->lookup("");
    palette.beginEdit();
    palette.setEntry(3, 0x1234);
    palette.commitEdit();
    palette.updateTitle();
    fake_.messages.answerWith({MessageAnswer::Yes, MessageAnswer::Yes});
    EXPECT_TRUE(app_.mainFrame().close());
    EXPECT_THAT(fake_.files.written(), ElementsAre(kPalette, kImage));
    EXPECT_EQ(fake_.files.textOf(kPalette)->substr(64 + 6, 2), "\x12\x34");
}

TEST_F(FilesTest, FilesThatCannotBeOpenedAreToldAndLeaveNothingBehind) {
    fake_.files.putFile("c:\\bad.tmf", "no image");
    fake_.files.putFile("c:\\bad.TLF", "no palette");
    struct Case {
        const char* path;
        std::vector<std::string> messages;
    };
    const Case cases[] = {
        {"c:\\gone.tmf", {"[c:\\gone.tmf] file open failed.\n"}},
        {"c:\\bad.tmf", {"[c:\\bad.tmf] file read failed.\n"}},
        {"c:\\gone.tlf", {"[c:\\gone.tlf] file open failed.\n", "c:\\gone.tlf open failed"}},
        {"c:\\bad.TLF", {"[c:\\bad.TLF] incorrect header size.\n", "c:\\bad.TLF open failed"}},
    };
    for (const Case& c : cases) {
        fake_.messages.shown.clear();
        EXPECT_FALSE(app_.OpenDocumentFile(c.path)) << c.path;
        EXPECT_EQ(texts(), c.messages) << c.path;
    }
    EXPECT_EQ(windows(), 0U);
    EXPECT_TRUE(app_.paletteSet()->palettes.empty());
}

TEST_F(FilesTest, OneBadFileDoesNotKeepTheOthersFromOpening) {
    fake_.files.putFile("c:\\a.tmf", imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int i) { return static_cast<unsigned>(i) * 99; }));
    EXPECT_FALSE(app_.OpenFiles({"c:\\a.tmf", "c:\\gone.tmf", "c:\\p.tlf"}, true));
    EXPECT_EQ(windows(), 1U);
    EXPECT_EQ(image().attachedName(), "c:\\p.tlf") << "waited for the palette behind it";
}

TEST_F(FilesTest, AnOpenFileIsBroughtToTheFrontAndNotOpenedAgain) {
    openAndDraw();
    fake_.files.putFile("c:\\b.tmf", imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\b.tmf"));
    ASSERT_EQ(image().pathName(), "c:\\b.tmf");
    EXPECT_TRUE(app_.OpenDocumentFile("C:\\TEX\\PIC.TMF"));
    EXPECT_EQ(windows(), 2U);
    EXPECT_EQ(image().pathName(), kImage);
    EXPECT_TRUE(image().isModified());
}

TEST_F(FilesTest, ClosingAPaletteLeavesItsImagesWithoutOne) {
    openAndDraw();
    ASSERT_FALSE(view().view().showsNoPalette());
    ASSERT_TRUE(run(ID_PALETTE_CLOSE));
    EXPECT_TRUE(view().view().showsNoPalette());
    EXPECT_FALSE(enabled(ID_PALETTE_CLOSE));
    EXPECT_EQ(app_.paletteBarCell(), -1);

    const auto shown = [this] { return view().viewport()->grab().toImage(); };
    app_.mainFrame().activeChild()->resize(120, 100);
    ASSERT_TRUE(run(ID_ZOOM_X16));
    app_.mainFrame().activeChild()->resize(120, 100);
    view().verticalScrollBar()->setValue(0);
    const QImage words = shown();
    view().verticalScrollBar()->setValue(40);
    ASSERT_EQ(view().verticalScrollBar()->value(), 40);
    EXPECT_EQ(shown(), words) << "the words scroll away";
}

TEST_F(FilesTest, APaletteThatIsOpenedAgainColoursItsImages) {
    openAndDraw();
    TextureLookupTable& attached = *app_.paletteSet()->lookup("");
    fake_.files.putFile("c:\\q.tlf", paletteFile(256, [](int) { return 1U; }));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\q.tlf"));
    attached.setEntry(5, 31 << 6); // pure green, 248 as it is displayed
    ASSERT_NE(image().canvas().colourTable()[4 * 5 + 1], 248) << "the other palette is current";
    ASSERT_TRUE(app_.OpenDocumentFile(kPalette));
    EXPECT_EQ(image().canvas().colourTable()[4 * 5 + 1], 248);
}

TEST_F(FilesTest, ASavedPaletteLosesItsMarkInTheTitleOfItsImageToo) {
    openAndDraw();
    TextureLookupTable& palette = *app_.paletteSet()->lookup("");
    palette.beginEdit();
    palette.setEntry(3, 0x1234);
    palette.commitEdit();
    palette.undo();
    palette.redo();
    app_.RefreshImagePalettes();
    ASSERT_NE(image().title().find("[pic * ]"), std::string::npos) << image().title();
    ASSERT_TRUE(run(ID_PALETTE_SAVE));
    EXPECT_NE(image().title().find("[pic]"), std::string::npos) << image().title();
}

TEST_F(FilesTest, SaveAsGivesThePaletteAndTheImageNewNames) {
    openAndDraw();
    const std::string palette = *fake_.files.textOf(kPalette);
    fake_.dialogs.answerWith("c:\\tex\\new.tlf");
    ASSERT_TRUE(run(ID_PALETTE_SAVE_AS));
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\new.tlf"), palette);
    EXPECT_EQ(app_.paletteSet()->currentKey, "c:\\tex\\new.tlf");
    EXPECT_EQ(image().attachedName(), "c:\\tex\\new.tlf") << "it stays attached";
    fake_.dialogs.answerWith("c:\\tex\\new.tmf");
    ASSERT_TRUE(run(ID_FILE_SAVE_AS));
    EXPECT_EQ(image().pathName(), "c:\\tex\\new.tmf");
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\new.tmf")->size(), 64U + 64U);

    fake_.files.putFile("c:\\other.tmf", imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\other.tmf"));
    fake_.dialogs.answerWith("c:\\tex\\NEW.tmf");
    run(ID_FILE_SAVE_AS);
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\new.tmf")->size(), 64U + 64U) << "another window holds that file";
    EXPECT_EQ(fake_.messages.lastText(), "\"c:\\tex\\NEW.tmf\" is open in another window.");
}

TEST_F(FilesTest, AnImportedBitmapIsAnImageAndAPaletteAndIsExportedAsTheSameFile) {
    TextureCanvas picture;
    ASSERT_TRUE(picture.Create(5, 3, 1, 4));
    picture.colourTable()[4 * 9 + 2] = 0xF8;
    picture.SetPixel(4, 2, 9);
    ASSERT_TRUE(picture.SaveBmp("c:\\pic.bmp"));

    EXPECT_TRUE(run(ID_FILE_IMPORT_BMP)); // cancelled
    EXPECT_EQ(windows(), 0U);
    EXPECT_TRUE(fake_.dialogs.shown.back().request.fileMustExist);
    EXPECT_EQ(fake_.dialogs.shown.back().request.filter, "Bitmap Files (*.bmp)|*.bmp||");
    fake_.dialogs.answerWith("c:\\pic.bmp");
    ASSERT_TRUE(run(ID_FILE_IMPORT_BMP));
    EXPECT_EQ(image().pathName(), "c:\\pic.bmp");
    EXPECT_EQ(image().attachedName(), "");
    EXPECT_EQ(app_.paletteSet()->lookup("")->table.getRed(9), 31);

    fake_.dialogs.answerWith("c:\\copy.bmp");
    ASSERT_TRUE(run(ID_FILE_EXPORT_BMP));
    EXPECT_EQ(fake_.files.textOf("c:\\copy.bmp"), fake_.files.textOf("c:\\pic.bmp"));
    EXPECT_EQ(image().pathName(), "c:\\pic.bmp");
    image().Pixel(nullptr, 0, 0, 1);
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\copy.bmp"));
    fake_.dialogs.answerWith("c:\\PIC.bmp");
    ASSERT_TRUE(run(ID_FILE_EXPORT_BMP));
    EXPECT_EQ(fake_.messages.lastText(), "\"c:\\PIC.bmp\" is open in another window.");
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\pic.bmp"));
    fake_.dialogs.answerWith("c:\\PIC.bmp");
    ASSERT_TRUE(run(ID_FILE_EXPORT_BMP));
    EXPECT_FALSE(image().hasUnsavedChanges()) << "its own file: that saves it";
}

TEST_F(FilesTest, DroppedFilesOpen) {
    fake_.files.putFile("c:\\a b.tmf", imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int) { return 1U; }));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QString::fromStdString(fake_.files.hostPath("c:\\a b.tmf"))),
                   QUrl::fromLocalFile(QString::fromStdString(fake_.files.hostPath("c:\\p.tlf"))),
                   QUrl(QStringLiteral("https://example.com/c.tmf"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&app_.mainFrame(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&app_.mainFrame(), &drop);
    EXPECT_EQ(windows(), 1U);
    EXPECT_EQ(app_.paletteSet()->palettes.size(), 1U);
    EXPECT_THAT(texts(), IsEmpty());
}

} // namespace
} // namespace dyeworks
