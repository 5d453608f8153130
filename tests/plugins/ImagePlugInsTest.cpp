#include "PlugInProgram.h"

#include <QStatusBar>

namespace dyeworks {
namespace {

using ImagePlugIns = PlugInProgram;

TEST_F(ImagePlugIns, AreListedInTheLanguageOfTheProgram) {
    install("Japanese", "a.so");
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
        EXPECT_EQ(log(), Lines{std::string("a.so speaks ") + (c.japanese ? "Japanese" : "English")});
        openImage();
        EXPECT_EQ(menu(ID_IMPORT_FIRST), Lines{c.japanese ? "&0 \xE7\xA9\xBA" : "&0 "});
        EXPECT_THAT(app_->plugIns().all().front().version, ElementsAre(65535, 2, 3, 4));
        leave();
    }
}

TEST_F(ImagePlugIns, ThatThrowChangeNothingAndAreToldOf) {
    install("Throwing", "a.so");
    start();
    openImage();
    for (const auto& [command, called] : {std::pair(ID_IMPORT_FIRST, "a.so import"),
                                          {ID_EXPORT_FIRST, "a.so export"},
                                          {ID_PREVIEW2, "a.so preview2"}}) {
        ASSERT_TRUE(run(command));
        EXPECT_EQ(log(), Lines{called});
        EXPECT_EQ(std::exchange(status_, {}), Lines{"The plug-in a.so failed."});
        frame().statusBar()->clearMessage();
        EXPECT_EQ(piece(), QSize());
        EXPECT_FALSE(image().isModified() || image().edits().canUndo() || palette().modified);
        EXPECT_EQ(app_->router().state(ID_PREVIEW2).checked, false) << "switched off again";
    }
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
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

} // namespace
} // namespace dyeworks
