#include "PlugInProgram.h"

#include <QStatusBar>

namespace dyeworks {
namespace {

using ImagePlugIns = PlugInProgram;

TEST_F(ImagePlugIns, AreListedAsTheySayWhoTheyAre) {
    start();
    const int controls = fake_.library.loadedCount();
    leave();
    for (const char* library : {"Declining", "Japanese", "Untyped", "Unversioned"})
        install(library, std::string(library) + ".so");
    install("SamePointers", "a.so");
    install("SamePointers", "b.so");
    const struct {
        int locale;
        const char* language;
        bool japanese;
    } cases[] = {{kLocaleEnglish, "", false},
                 {kLocaleJapanese, "", true},
                 {kLocaleJapanese, "en", false},
                 {kLocaleEnglish, "ja", true}};
    for (const auto& c : cases) {
        fake_.locale.locale = c.locale;
        commandLine_.language = QString::fromLatin1(c.language);
        start();
        EXPECT_THAT(log(),
                    ElementsAre("Declining.so declines 01000200", // and is asked nothing else
                                std::string("Japanese.so speaks ") + (c.japanese ? "Japanese" : "English")));
        EXPECT_EQ(fake_.library.loadedCount(), controls + 5);
        openImage();
        const std::string name = c.japanese ? "\xE7\xA9\xBA" : "";
        EXPECT_EQ(menu(ID_IMPORT_FIRST),
                  Lines({"&0 same pointers", "&1 same pointers", "&2 " + name, "&3 "}));
        EXPECT_EQ(menu(ID_EXPORT_FIRST), Lines());
        Lines all;
        for (const PlugInInfo& plugIn : app_->plugIns().all())
            all.push_back(plugIn.fileName + " " + plugIn.productName + " " + typeText(plugIn.type) + " " +
                          std::to_string(plugIn.version[3]) + "." + std::to_string(plugIn.version[0]));
        EXPECT_THAT(
            all, ElementsAre(
                     "a.so Test of same pointers TMF Import 1.4", "b.so Test of same pointers TMF Import 1.4",
                     std::string("Japanese.so ") + (c.japanese ? "\xE9\x9B\xB2" : "") + " TMF Import 4.65535",
                     "Untyped.so Test of untyped UNKNOWN 1.4", "Unversioned.so  TMF Import&Preview 0.0"));
        leave();
    }
}

TEST_F(ImagePlugIns, EditInPlaceWithoutAStepButToBeSaved) {
    install("InPlace", "a.so");
    start();
    openImage();
    repaints_ = 0;
    // The second time the plug-in answers 0, and its changes stay none the less.
    for (const unsigned value : {17U, 33U}) {
        ASSERT_TRUE(run(ID_IMPORT_FIRST));
        EXPECT_EQ(texel(0, 0), value);
        EXPECT_EQ(texel(23, 7), value);
        QCoreApplication::processEvents();
        EXPECT_GT(std::exchange(repaints_, 0), 0);
    }
    EXPECT_FALSE(image().edits().canUndo());
    EXPECT_EQ(piece(), QSize());
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_THAT(texts(fake_), ElementsAre("Save changes to c:\\tex\\pic.tmf?"));
    fake_.messages.answerWith(MessageAnswer::Yes);
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_EQ(fake_.files.textOf(kImage), imageFile(texels(24, 8, [](int, int) { return 33U; }), 8));
}

TEST_F(ImagePlugIns, BringAPaletteInPlaceOfTheImagesOrAsItsFirst) {
    install("PaletteOnly", "a.so");
    for (const bool attached : {true, false}) {
        start();
        openImage(attached);
        ASSERT_TRUE(run(ID_IMPORT_FIRST));
        ASSERT_TRUE(image().IsAttached());
        const TextureLookupTable& table = *image().GetAttachedPalette();
        EXPECT_EQ(app_->paletteSet()->palettes.size(), 1U);
        EXPECT_EQ(table.table.count, 16);
        EXPECT_EQ(table.table.colourType, ColourType::Ia);
        EXPECT_EQ(table.table.getEntry(15), 0x1234);
        EXPECT_EQ(table.canUndo(), attached);
        EXPECT_TRUE(table.hasUnsavedChanges());
        EXPECT_FALSE(image().isModified());
        EXPECT_EQ(piece(), QSize());
        leave();
    }
}

TEST_F(ImagePlugIns, ThatBringNothingNewChangeNothing) {
    const std::string failed = "The plug-in a.so failed.";
    const struct {
        const char* library;
        CommandId command;
        Lines log;
        Lines status;
    } cases[] = {{"SamePointers", ID_IMPORT_FIRST, {}, {}},
                 {"Failing", ID_IMPORT_FIRST, {"a.so imports"}, {}},
                 {"Failing", ID_EXPORT_FIRST, {"a.so exports"}, {}},
                 {"Failing", ID_PREVIEW2, {"a.so previews"}, {}},
                 {"Throwing", ID_IMPORT_FIRST, {"a.so import"}, {failed}},
                 {"Throwing", ID_EXPORT_FIRST, {"a.so export"}, {failed}},
                 {"Throwing", ID_PREVIEW2, {"a.so preview2"}, {failed}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.library + std::to_string(c.command));
        install(c.library, "a.so");
        start();
        openImage();
        ASSERT_TRUE(run(c.command));
        EXPECT_EQ(log(), c.log);
        EXPECT_EQ(std::exchange(status_, {}), c.status);
        EXPECT_EQ(texel(0, 0), 1U);
        EXPECT_EQ(palette().table.count, 256);
        EXPECT_EQ(piece(), QSize());
        EXPECT_FALSE(image().isModified() || image().edits().canUndo() || palette().modified);
        EXPECT_EQ(app_->router().state(ID_PREVIEW2).checked, false) << "switched off again";
        EXPECT_THAT(fake_.messages.shown, IsEmpty());
        leave();
    }
}

TEST_F(ImagePlugIns, WithWrongRecordsAreToldOfAndTheImageStays) {
    install("BadRecords", "a.so");
    start();
    openImage();
    for (int call = 0; call < 12; ++call) {
        SCOPED_TRACE(call);
        ASSERT_TRUE(run(ID_IMPORT_FIRST));
        EXPECT_EQ(std::exchange(status_, {}), Lines{"The plug-in a.so failed."});
        EXPECT_EQ(QSize(image().canvas().width(), image().canvas().height()), QSize(24, 8));
        EXPECT_EQ(texel(23, 7), 1U);
        EXPECT_EQ(palette().table.count, 256);
        EXPECT_EQ(palette().table.getEntry(255), (255 * 193 + 7) & 0xFFFF);
        EXPECT_EQ(piece(), QSize());
        frame().statusBar()->clearMessage();
    }
    ASSERT_TRUE(run(ID_IMPORT_FIRST));
    EXPECT_EQ(status_, Lines());
    EXPECT_FALSE(image().isModified() || palette().modified);
    EXPECT_EQ(app_->paletteSet()->palettes.size(), 1U);
}

TEST_F(ImagePlugIns, MayTakeLong) {
    install("Slow", "a.so");
    start();
    openImage();
    onAbout_ = [this] {
        EXPECT_EQ(log(), Lines{"a.so begins"});
        EXPECT_EQ(fake_.waitCursor.depth, 1);
        EXPECT_EQ(piece(), QSize());
    };
    ASSERT_TRUE(run(ID_IMPORT_FIRST));
    EXPECT_EQ(abouts_, 1);
    EXPECT_EQ(log(), Lines{"a.so ends"});
    EXPECT_EQ(fake_.waitCursor.depth, 0);
    EXPECT_EQ(piece(), QSize(2, 2));
}

TEST_F(ImagePlugIns, SeventeenImportersShowSixteenWhichAnswerToTheirEntries) {
    for (int i = 16; i >= 0; --i)
        install("Importer", std::string(i < 10 ? "0" : "") + std::to_string(i) + ".so");
    start();
    openImage();
    EXPECT_EQ(app_->plugIns().importers().size(), 17U);
    Lines entries;
    for (int i = 0; i < 16; ++i)
        entries.push_back("&" + std::to_string(i % 10) + " importer");
    EXPECT_EQ(menu(ID_IMPORT_FIRST), entries);
    for (int i = 0; i < 17; ++i) {
        ASSERT_TRUE(run(ID_IMPORT_FIRST + static_cast<CommandId>(i % 16)));
        EXPECT_EQ(piece(), QSize(i % 16 + 2, i / 16 + 2));
    }
    EXPECT_FALSE(run(ID_IMPORT_LAST + 1));
}

TEST_F(ImagePlugIns, OnlyTheFirstPreviewIsCalledAndMayChangeWhatItShows) {
    install("Previews", "B.so");
    install("Previews", "a.so");
    start();
    openImage();
    ASSERT_TRUE(run(ID_PREVIEW1));
    EXPECT_THAT(log(), ElementsAre("a.so 1: 1", "a.so 1: 2")) << "and not without an end";
    EXPECT_EQ(texel(0, 0), 3U);
    EXPECT_EQ(app_->router().state(ID_PREVIEW1).checked, true);
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    EXPECT_THAT(log(), ElementsAre("a.so 1: 2", "a.so 1: 3"));
    ASSERT_TRUE(run(ID_PREVIEW2));
    EXPECT_THAT(log(), ElementsAre("a.so 1: 4", "a.so 1: 5", "a.so 2: 6")) << "the other sees the outcome";
    EXPECT_EQ(texel(0, 0), 6U);
    ASSERT_TRUE(run(ID_PREVIEW1));
    EXPECT_EQ(log(), Lines{"a.so 1: off"});
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    EXPECT_EQ(log(), Lines{"a.so 2: 5"});
}

TEST_F(ImagePlugIns, PreviewIsOffWhereTheActiveImageDoesNotShowInIt) {
    const std::string other = "c:\\tex\\other.tmf";
    fake_.files.putFile(other, imageFile(texels(24, 8, [](int, int) { return 9U; }), 8));
    install("Previews", "a.so");
    start();
    openImage();
    ASSERT_TRUE(run(ID_PREVIEW2));
    const std::string shown = "a.so 2: 1";
    const std::string off = "a.so 2: off";
    EXPECT_EQ(log(), Lines{shown});
    CDyeworksDoc& first = image();
    // How often an image is shown while windows and palettes change is not the matter.
    const auto seen = [&] {
        Lines lines = log();
        lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
        return lines;
    };
    ASSERT_TRUE(app_->OpenDocumentFile(other));
    EXPECT_EQ(seen().back(), off);
    frame().activateChild(*frame().frameOf(first));
    EXPECT_EQ(seen(), Lines{shown});
    frame().activateChild(*frame().frameOf(*app_->FindOpenDocument(other)));
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_EQ(seen(), Lines({off, shown}));
    openProject();
    EXPECT_EQ(seen(), Lines()) << "a project is no image";
    frame().activateChild(*frame().frameOf(first));
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_EQ(seen(), Lines{off});
}

TEST_F(ImagePlugIns, APreviewThatSetsTheImageEndsTheStrokeThatItShows) {
    install("Previews", "a.so");
    start();
    openImage();
    ASSERT_TRUE(run(ID_PREVIEW1));
    for (const CommandId tool : {ID_TOOL_PEN, ID_TOOL_LINE, ID_TOOL_BOX}) {
        ASSERT_TRUE(run(tool));
        QWidget* const viewport = view().viewport();
        QTest::mousePress(viewport, Qt::LeftButton, {}, {2, 2});
        QMouseEvent move(QEvent::MouseMove, {8, 3}, viewport->mapToGlobal(QPoint(8, 3)), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &move);
        EXPECT_FALSE(view().view().dragging()) << tool;
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, {8, 3});
    }
    ASSERT_TRUE(run(ID_PREVIEW1));
    while (image().edits().canUndo())
        image().Undo();
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 24; ++x)
            EXPECT_EQ(texel(x, y), 1U) << x << ' ' << y;
    }
}

} // namespace
} // namespace dyeworks
