#include "Program.h"

namespace dyeworks {
namespace {

using Recent = Program;

TEST_F(Recent, FilesGoIntoTheListOfTheirLastFourCharacters) {
    for (const char* path : {"c:\\a.TPF", "c:\\a.Tmf", "c:\\a.tLF", "c:\\a.tmf.bak", "c:\\.tlf", "c:\\x"})
        app_.AddToRecentFileList(path);
    EXPECT_THAT(app_.recentFiles().projects().paths(), ElementsAre("c:\\a.TPF"));
    EXPECT_THAT(app_.recentFiles().images().paths(), ElementsAre("c:\\a.Tmf"));
    EXPECT_THAT(app_.recentFiles().palettes().paths(), ElementsAre("c:\\.tlf", "c:\\a.tLF"));
}

TEST_F(Recent, TheMenuShowsThePlaceholderOrTheEntries) {
    for (const auto& [first, path] : {std::pair{ID_RECENT_PROJECT_FIRST, "c:\\1&.tpf"},
                                      {ID_RECENT_IMAGE_FIRST, "c:\\1&.tmf"},
                                      {ID_RECENT_PALETTE_FIRST, "c:\\1&.tlf"}}) {
        const CommandUi empty = app_.router().state(first);
        EXPECT_TRUE(empty.visible && !empty.enabled && !empty.text.has_value());
        app_.AddToRecentFileList(path);
        EXPECT_EQ(app_.router().state(first).text, "&1 1&&" + std::string(path).substr(5));
        EXPECT_TRUE(enabled(first));
        EXPECT_FALSE(app_.router().state(first + 1).visible);
    }
}

TEST_F(Recent, EntriesOpenTheirFilesAndWhatIsOpenedOrSavedUnderAnotherNameIsFirst) {
    putImages(fake_, {"c:\\a.tmf", "c:\\b.tmf"});
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int) { return 1U; }));
    app_.AddToRecentFileList("c:\\a.tmf");
    app_.AddToRecentFileList("c:\\b.tmf");
    ASSERT_TRUE(run(ID_RECENT_IMAGE_FIRST + 1));
    EXPECT_NE(app_.FindOpenDocument("C:\\A.TMF"), nullptr);
    EXPECT_THAT(app_.recentFiles().images().paths(), ElementsAre("c:\\a.tmf", "c:\\b.tmf"));
    ASSERT_TRUE(app_.OpenFiles({"p.TLF", "c:\\b.tmf"}, false));
    EXPECT_THAT(app_.recentFiles().images().paths(), ElementsAre("c:\\b.tmf", "c:\\a.tmf"));
    EXPECT_THAT(app_.recentFiles().palettes().paths(), ElementsAre("c:\\p.TLF"));
    fake_.dialogs.answerWith("c:\\c.tmf");
    ASSERT_TRUE(run(ID_FILE_SAVE_AS));
    EXPECT_THAT(app_.recentFiles().images().paths(), ElementsAre("c:\\c.tmf", "c:\\b.tmf", "c:\\a.tmf"));
    ASSERT_FALSE(app_.OpenDocumentFile("c:\\gone.tmf"));
    EXPECT_EQ(app_.recentFiles().images().paths().size(), 3U);
}

TEST_F(Recent, OnlyAPaletteThatFailsToOpenLeavesItsList) {
    app_.AddToRecentFileList("c:\\gone.tlf");
    app_.AddToRecentFileList("c:\\gone.tmf");
    ASSERT_TRUE(run(ID_RECENT_IMAGE_FIRST));
    EXPECT_THAT(app_.recentFiles().images().paths(), ElementsAre("c:\\gone.tmf"));
    EXPECT_FALSE(app_.OpenDocumentFile("c:\\GONE.tlf"));
    EXPECT_THAT(app_.recentFiles().palettes().paths(), ElementsAre("c:\\gone.tlf")) << "case counts here";
    ASSERT_TRUE(run(ID_RECENT_PALETTE_FIRST));
    EXPECT_THAT(app_.recentFiles().palettes().paths(), IsEmpty());
    EXPECT_EQ(fake_.messages.lastText(), "c:\\gone.tlf open failed");
}

} // namespace
} // namespace dyeworks
