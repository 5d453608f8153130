#include "Program.h"
#include "framework/widgets/ChildFrame.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTreeView>
#include <QUrl>

namespace dyeworks {
namespace {

class FilesTest : public Program {
protected:
    void openAndDraw() {
        openBlank();
        drawPixel({1, 1}, 5);
        ASSERT_TRUE(image().isModified());
    }
    [[nodiscard]] std::size_t windows() { return frame().childFrames().size(); }
};

TEST_F(FilesTest, AFailedSaveLeavesTheProgramRunning) {
    openAndDraw();
    openProject();
    fake_.messages.answerWith({MessageAnswer::Yes, MessageAnswer::Ok});
    fake_.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(frame().close());
    EXPECT_TRUE(frame().isVisible());
    EXPECT_TRUE(frame().paletteBar().isVisible());
    EXPECT_EQ(windows(), 2U);
    fake_.messages.answerWith(MessageAnswer::No);
    EXPECT_TRUE(run(ID_APP_EXIT));
    EXPECT_FALSE(frame().isVisible() || frame().paletteBar().isVisible());
    EXPECT_EQ(texts(fake_).size(), 3U);
    EXPECT_EQ(fake_.profile.sections["Settings\\Documents"]["count"], "3");
    EXPECT_THAT(fake_.files.written(), IsEmpty());
}

TEST_F(FilesTest, FilesThatCannotBeOpenedAreToldAndLeaveNothingBehind) {
    fake_.files.putFile("c:\\bad.tmf", "no image");
    fake_.files.putFile("c:\\bad.TLF", "no palette");
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"c:\\gone.tmf", {"[c:\\gone.tmf] file open failed.\n"}},
        // What has no kind of its own is taken for an image.
        {"c:\\no.bmp2", {"[c:\\no.bmp2] file open failed.\n"}},
        {"c:\\tlf", {"[c:\\tlf] file open failed.\n"}},
        {"c:\\old.tlf\\sky", {"[c:\\old.tlf\\sky] file open failed.\n"}},
        {"c:\\a.tlf.txt", {"[c:\\a.tlf.txt] file open failed.\n"}},
        {"c:\\bad.tmf", {"[c:\\bad.tmf] file read failed.\n"}},
        {"c:\\gone.tlf", {"[c:\\gone.tlf] file open failed.\n", "c:\\gone.tlf open failed"}},
        {"c:\\bad.TLF", {"[c:\\bad.TLF] incorrect header size.\n", "c:\\bad.TLF open failed"}},
    };
    for (const auto& [path, messages] : cases) {
        fake_.messages.shown.clear();
        EXPECT_FALSE(app_.OpenDocumentFile(path)) << path;
        EXPECT_EQ(texts(fake_), messages) << path;
    }
    EXPECT_EQ(windows(), 0U);
    EXPECT_TRUE(app_.paletteSet()->palettes.empty());
}

TEST_F(FilesTest, OneBadFileDoesNotKeepTheOthersFromOpening) {
    putImages(fake_, {"c:\\a.tmf"});
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int i) { return static_cast<unsigned>(i) * 99; }));
    EXPECT_FALSE(app_.OpenFiles({"c:\\a.tmf", "c:\\gone.tmf", "c:\\p.tlf"}, true));
    EXPECT_EQ(windows(), 1U);
    EXPECT_EQ(image().attachedName(), "c:\\p.tlf") << "waited for the palette behind it";
    app_.paletteSet()->lookup("")->setEntry(1, 31 << 6);
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\p.tlf"));
    EXPECT_EQ(image().canvas().colourTable()[4 + 1], 248) << "opened again, it colours its images";
}

TEST_F(FilesTest, ClosingAPaletteLeavesItsImagesWithoutOne) {
    openAndDraw();
    ASSERT_FALSE(view().view().showsNoPalette());
    ASSERT_TRUE(run(ID_PALETTE_CLOSE));
    EXPECT_TRUE(view().view().showsNoPalette());
    EXPECT_FALSE(enabled(ID_PALETTE_CLOSE));
    EXPECT_EQ(app_.imageHost().paletteBarCell(), -1);

    const auto shown = [this] { return view().viewport()->grab().toImage(); };
    frame().activeChild()->resize(120, 100);
    ASSERT_TRUE(run(ID_ZOOM_X16));
    frame().activeChild()->resize(120, 100);
    view().verticalScrollBar()->setValue(0);
    const QImage words = shown();
    view().verticalScrollBar()->setValue(40);
    ASSERT_EQ(view().verticalScrollBar()->value(), 40);
    EXPECT_EQ(shown(), words) << "the words scroll away";
}

TEST_F(FilesTest, NoSaveReplacesTheFileOfAnotherWindow) {
    openAndDraw();
    fake_.dialogs.answerWith("c:\\tex\\new.tmf");
    ASSERT_TRUE(run(ID_FILE_SAVE_AS));
    putImages(fake_, {"c:\\other.tmf"});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\other.tmf"));
    fake_.dialogs.answerWith("c:\\tex\\NEW.tmf");
    run(ID_FILE_SAVE_AS);
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\new.tmf")->size(), 64U + 64U) << "another window holds that file";
    EXPECT_EQ(fake_.messages.lastText(), "\"c:\\tex\\NEW.tmf\" is open in another window.");
    EXPECT_TRUE(app_.OpenDocumentFile("C:\\TEX\\NEW.TMF")) << "comes to the front";
    EXPECT_EQ(image().pathName(), "c:\\tex\\new.tmf");
    EXPECT_EQ(windows(), 2U);
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
    fake_.dialogs.answerWith("c:\\pic.bmp");
    fake_.dialogs.answerWith("c:\\copy.bmp");
    ASSERT_TRUE(run(ID_FILE_IMPORT_BMP));
    EXPECT_EQ(app_.paletteSet()->lookup("")->table.getRed(9), 31);
    ASSERT_TRUE(run(ID_FILE_EXPORT_BMP));
    EXPECT_EQ(fake_.files.textOf("c:\\copy.bmp"), fake_.files.textOf("c:\\pic.bmp"));
    image().Edit(nullptr, [](TextureCanvas& canvas) { canvas.PutPixel(0, 0, 1); });
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\copy.bmp"));
    fake_.dialogs.answerWith("c:\\PIC.bmp");
    ASSERT_TRUE(run(ID_FILE_EXPORT_BMP));
    EXPECT_EQ(fake_.messages.lastText(), "\"c:\\PIC.bmp\" is open in another window.");
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\pic.bmp"));
    fake_.dialogs.answerWith("c:\\PIC.bmp");
    ASSERT_TRUE(run(ID_FILE_EXPORT_BMP));
    EXPECT_FALSE(image().hasUnsavedChanges()) << "its own file: that saves it";
}

TEST_F(FilesTest, FilesDroppedOnWindowOrBarsOpenAndAreCopiedEvenWhenTheyAreMoved) {
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int) { return 1U; }));
    openProject();
    CPaletteBar& bar = frame().paletteBar();
    std::size_t before = 0;
    for (QWidget* target :
         {static_cast<QWidget*>(&frame()), static_cast<QWidget*>(&bar),
          static_cast<QWidget*>(bar.findChild<QLineEdit*>()), frame().findChild<QTreeView*>()->viewport()}) {
        const std::string path = "c:\\a " + std::to_string(before) + ".tmf";
        putImages(fake_, {path.c_str()});
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(onHost(fake_, path)),
                       QUrl::fromLocalFile(onHost(fake_, "c:\\p.tlf")), QUrl("https://example.com/c.tmf")});
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({10, 10}, offered, &files, Qt::LeftButton, Qt::ShiftModifier);
        QDropEvent drop({10, 10}, offered, &files, Qt::LeftButton, Qt::ShiftModifier);
        for (QDropEvent* event : {static_cast<QDropEvent*>(&enter), &drop}) {
            EXPECT_EQ(app_.imageTemplate().documents().size(), before);
            event->setDropAction(Qt::MoveAction);
            QCoreApplication::sendEvent(target, event);
            EXPECT_TRUE(event->isAccepted());
            EXPECT_EQ(event->dropAction(), Qt::CopyAction);
        }
        EXPECT_EQ(app_.imageTemplate().documents().size(), ++before);
    }
    EXPECT_EQ(app_.paletteSet()->palettes.size(), 1U);
    EXPECT_THAT(texts(fake_), IsEmpty());
}

} // namespace
} // namespace dyeworks
