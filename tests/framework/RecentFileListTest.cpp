#include "framework/RecentFileList.h"

#include "framework/PathText.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

using namespace dyeworks;
using testing::ElementsAre;

TEST(RecentFileList, AddedFileMovesToTheFrontWhateverItsCase) {
    const FakePlatform fake;
    RecentFileList list("Recent TMF List");
    for (const char* path : {"c:\\a.tmf", "c:\\b.tmf", "c:\\c.tmf", "c:\\d.tmf", "C:\\B.TMF"})
        list.add(path);
    EXPECT_THAT(list.paths(), ElementsAre("C:\\B.TMF", "c:\\d.tmf", "c:\\c.tmf", "c:\\a.tmf"));
    list.add("e.tmf");
    EXPECT_THAT(list.paths(), ElementsAre("c:\\e.tmf", "C:\\B.TMF", "c:\\d.tmf", "c:\\c.tmf"));
}

TEST(RecentFileList, SavedListIsReadBackWithoutOlderEntries) {
    FakePlatform fake;
    auto& section = fake.profile.sections["Recent TLF List"];
    section = {
        {"File1", "c:\\one.tlf"}, {"File2", ""}, {"File3", "c:\\three.tlf"}, {"File5", "c:\\five.tlf"}};
    RecentFileList list("Recent TLF List");
    list.load();
    EXPECT_THAT(list.paths(), ElementsAre("c:\\one.tlf", "c:\\three.tlf"));
    list.remove("c:\\one.tlf");
    list.save();
    EXPECT_EQ(section["File1"], "c:\\three.tlf");
    EXPECT_FALSE(section.contains("File2"));
    EXPECT_FALSE(section.contains("File3"));
}

TEST(RecentFileList, LabelsAreRelativeToTheCurrentDirectory) {
    FakePlatform fake;
    fake.files.createDirectory("c:\\tex");
    ASSERT_TRUE(fake.files.setCurrentDirectory("c:\\tex"));
    RecentFileList list("Recent TMF List");
    list.add("c:\\texture\\sea.tmf"); // Beside the current directory, not in it.
    list.add("C:\\TEX\\sky.tmf");
    list.add("c:\\tex\\dawn & dusk\\a.tmf");
    EXPECT_EQ(list.menuLabel(0), "&1 dawn && dusk\\a.tmf");
    EXPECT_EQ(list.menuLabel(1), "&2 sky.tmf");
    EXPECT_EQ(list.menuLabel(2), "&3 c:\\texture\\sea.tmf");
}

TEST(PathText, CutsFoldersFromTheMiddleAndThenTheNameItself) {
    const std::pair<const char*, const char*> cases[] = {
        {"\\home\\kei\\textures\\sky1234.tmf", "\\home\\kei\\textures\\sky1234.tmf"}, // Just 30.
        {"\\home\\kei\\textures\\sky12345.tmf", "\\home\\...\\sky12345.tmf"},
        {"c:\\home\\kei\\textures\\big\\sky12.tmf", "c:\\home\\...\\big\\sky12.tmf"},
        {"\\home\\kei\\a-sky-with-many-clouds.tmf", "a-sky-with-many-clouds.tmf"},
        {"\\home\\a-name-that-is-too-long-itself.tmf", "a-name-that-i...ong-itself.tmf"},
        {"\\空\\森\\山\\川\\海\\島\\雲\\星\\月\\日\\風\\花\\鳥\\夢\\色.tmf",
         "\\空\\...\\島\\雲\\星\\月\\日\\風\\花\\鳥\\夢\\色.tmf"},
    };
    for (const auto& [path, expected] : cases)
        EXPECT_EQ(abbreviatedPath(path, 30), expected);
}
