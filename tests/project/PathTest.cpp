#include "platform/fake/FakePlatform.h"
#include "project/PathHelpers.h"

#include <gmock/gmock.h>

#include <array>
#include <string>

namespace dyeworks {
namespace {

/// Null: there is no result.
struct Case {
    const char* path;
    const char* result;
};
struct CaseInFolder {
    const char* folder;
    const char* path;
    const char* result;
};

class Path : public testing::Test {
protected:
    Path() {
        fake_.files.createDirectory("c:\\a\\b");
        fake_.files.createDirectory("c:\\tex\\folder.tmf");
        fake_.files.putFile("c:\\tex\\a.tmf", "");
        fake_.files.putFile("c:\\tex\\sub\\s.tmf", "");
        fake_.files.putFile("c:\\more\\a.tmf", "");
        fake_.files.putFile("c:\\more\\m.tmf", "");
    }

    FakePlatform fake_;
};

TEST_F(Path, NormalFormOfADirectoryHasNoSeparatorAtItsEnd) {
    const Case kCases[] = {
        {"c:\\a\\b", "c:\\a\\b"},
        {"c:/a/b/", "c:\\a\\b"},
        {"c:\\a\\b\\.", "c:\\a\\b"},
        {"c:\\", "c:\\"},
        {"c:\\.", "c:\\"},
        {"c:", "c:"},
        {"\\", "\\"},
        {"/.", "\\"},
        {"", "."},
        {".", "."},
        {"a\\", "a"},
        {"c:\\a\\\\", "c:\\a\\\\"},
        {"c:\\tex\\a.tmf", nullptr},
        {"c:\\none\\", nullptr},
        {"c:\\ax", nullptr},
        {"d:\\", nullptr},
    };
    for (const auto& c : kCases) {
        std::string path = c.path;
        EXPECT_EQ(PathNormalizeDir(path), c.result != nullptr) << c.path;
        EXPECT_EQ(path, c.result != nullptr ? c.result : c.path);
    }
}

TEST_F(Path, TitleIsTheNameWithoutItsExtension) {
    const Case kCases[] = {
        {"c:\\p\\sea.old.tpf", "sea.old"},
        {"sea", "sea"},
        {"c:\\p.q\\sea", "sea"},
        {"\\sea.tpf", "\\sea"},
        {"c:\\p\\.tpf", ".tpf"},
        {"*tex", "tex"},
        {"**tex.tlf", "*tex"},
        {"c:\\p\\", nullptr},
        {"", nullptr},
    };
    for (const auto& c : kCases) {
        std::string title = "left over";
        EXPECT_EQ(PathTitle(title, c.path), c.result != nullptr) << c.path;
        EXPECT_EQ(title, c.result != nullptr ? c.result : "");
    }
}

TEST_F(Path, SplitsIntoFolderAndName) {
    ASSERT_TRUE(fake_.files.setCurrentDirectory("c:\\a"));
    const std::array<std::string, 3> kCases[] = {
        {"c:\\a\\b\\x.tpf", "c:\\a\\b", "x.tpf"},
        {"x.tpf", "c:\\a", "x.tpf"},
        {"b/x", "c:\\a\\b", "x"},
        {"c:\\x.tpf", "c:", "x.tpf"},
        {"\\x.tpf", "\\", "x.tpf"},
    };
    for (const auto& [path, folder, name] : kCases) {
        std::array<std::string, 2> parts;
        EXPECT_TRUE(PathSplitFolder(path, parts[0], parts[1])) << path;
        EXPECT_THAT(parts, testing::ElementsAre(folder, name)) << path;
    }
}

TEST_F(Path, SplitsOffServerOrDrive) {
    const std::array<std::string, 4> kCases[] = {
        {"c:\\a", "", "c:", "\\a"}, {"c:a", "", "c:", "a"},       {"\\\\s\\x\\y", "\\\\s", "", "\\x\\y"},
        {"\\\\s", "\\\\s", "", ""}, {"\\a\\b", "", "", "\\a\\b"}, {"a", "", "", "a"},
        {"", "", "", ""},
    };
    for (const auto& [path, server, drive, rest] : kCases) {
        std::array<std::string, 3> parts{"x", "x", "x"};
        PathSplitRoot(path, parts[0], parts[1], parts[2]);
        EXPECT_THAT(parts, testing::ElementsAre(server, drive, rest)) << path;
    }
}

TEST_F(Path, BecomesAbsoluteAgainstItsBase) {
    const CaseInFolder kCases[] = {
        {"c:\\p", "tex", "c:\\p\\tex"},  {"c:\\", "tex", "c:\\tex"},  {"c:", "tex", "c:\\tex"},
        {"c:\\p/", "tex", "c:\\p\\tex"}, {"\\", "tex", "\\tex"},      {"c:\\p", "..\\x", "c:\\p\\..\\x"},
        {"c:\\p", "\\x", "\\x"},         {"c:\\p", "d:\\x", "d:\\x"}, {"", "tex\\..\\x", "c:\\x"},
    };
    for (const auto& c : kCases) {
        std::string path = c.path;
        EXPECT_TRUE(PathAbsolute(path, c.folder)) << c.path;
        EXPECT_EQ(path, c.result) << c.path << " in " << c.folder;
    }
    std::string none;
    EXPECT_FALSE(PathAbsolute(none, "c:\\p"));
}

TEST_F(Path, SearchGoesThroughTheList) {
    ASSERT_TRUE(fake_.files.setCurrentDirectory("c:\\more"));
    const struct {
        const char* directories;
        const char* name;
        bool mustExist;
        const char* result; // null: not found
    } kCases[] = {
        {"c:\\none;c:\\tex", "a.tmf", true, "c:\\tex\\a.tmf"},
        {";;c:/tex/;c:\\more", "a.tmf", true, "c:\\tex\\a.tmf"},
        {"c:\\tex;c:\\more", "m.tmf", true, "c:\\more\\m.tmf"},
        {"c:\\tex;c:\\more", "m.tmf", false, "c:\\tex\\m.tmf"},
        {"c:\\tex;c:\\more", "folder.tmf", true, nullptr},
        {"c:\\tex;c:\\more", "folder.tmf", false, "c:\\more\\folder.tmf"},
        {"c:\\tex", "sub\\s.tmf", true, "c:\\tex\\sub\\s.tmf"},
        {"c:\\tex", "..\\more\\m.tmf", true, "c:\\more\\m.tmf"},
        {"c:\\tex", "m.tmf", true, nullptr},
        {"c:\\none", "x.tmf", false, nullptr},
        {"", "m.tmf", true, nullptr},
        {"", "c:\\more\\m.tmf", true, "c:\\more\\m.tmf"},
        {"c:\\tex", "c:\\tex\\folder.tmf", true, nullptr},
    };
    for (const auto& c : kCases) {
        std::string found = "untouched";
        EXPECT_EQ(PathSearch(found, c.directories, c.name, c.mustExist), c.result != nullptr) << c.name;
        EXPECT_EQ(found, c.result != nullptr ? c.result : "untouched") << c.directories;
    }
}

TEST_F(Path, RelativeFormLeadsFromTheBaseToThePath) {
    const CaseInFolder kCases[] = {
        {"c:\\a\\b", "c:\\a\\x\\y.tmf", "..\\x\\y.tmf"},
        {"c:\\a\\b", "c:\\a\\b\\y.tmf", "y.tmf"},
        {"c:\\a\\b", "C:/A/B/sub/Y.tmf", "sub\\Y.tmf"},
        {"c:\\a\\b", "d:\\y.tmf", "d:\\y.tmf"},
        {"c:\\a\\b", "y.tmf", "y.tmf"},
        {"c:\\a\\b", "c:\\a\\bc\\y.tmf", "..\\bc\\y.tmf"},
        {"c:\\a\\bc", "c:\\a\\b\\y.tmf", "..\\b\\y.tmf"},
        {"c:\\a\\b", "c:\\y.tmf", "..\\..\\y.tmf"},
        {"c:\\a\\b", "c:\\a\\b", ""},
        {"c:\\a\\b", "c:\\a\\b\\", ""},
        {"c:\\a\\b", "c:\\a", "..\\"},
        {"c:\\a\\b", "c:\\", "..\\..\\"},
        {"c:\\a\\b\\c", "c:\\a", "..\\..\\"},
        {"c:\\", "c:\\a\\y.tmf", "a\\y.tmf"},
        {"c:", "c:\\a\\y.tmf", "a\\y.tmf"},
        {"\\", "\\a\\y.tmf", "a\\y.tmf"},
        {"\\a\\b", "\\", "..\\..\\"},
        {"\\a\\b", "\\\\server\\b", "\\\\server\\b"},
        // Equal but for their case.
        {"c:\\\xC3\x84", "c:\\\xC3\xA4\\y.tmf", "y.tmf"},
        // The bytes of the two begin alike.
        {"c:\\\xE8\xA1\xA8", "c:\\\xE8\xA1\xA9\\y.tmf", "..\\\xE8\xA1\xA9\\y.tmf"},
    };
    for (const auto& c : kCases) {
        std::string relative = "left over";
        EXPECT_TRUE(PathRelativeTo(relative, c.folder, c.path));
        EXPECT_EQ(relative, c.result) << c.path << " from " << c.folder;
    }
}

TEST(PathCommonLength, EndsBehindTheLastSeparatorOfBoth) {
    const struct {
        const char* a;
        const char* b;
        std::int32_t limit;
        std::int32_t result;
    } kCases[] = {
        {"c:\\a\\x", "c:/A/", 5, 0},
        {"c:\\a\\x", "c:\\b\\", 5, 3},
        {"c:\\a", "c:\\a\\b\\", 7, 4},
        {"c:\\a\\b", "c:\\a", 99, 4},
        {"c:\\ab", "c:\\a", 99, 3},
        {"c:\\a", "c:\\ab\\", 6, 3},
        {"c:\\a", "d:\\a", 4, -1},
        {"c:\\a", "c:\\a", 99, 0},
        {"", "", 5, 0},
        {"", "\\a", 2, 0},
        {"", "a", 1, -1},
        {"abc", "abd", 2, 0},
        {"a", "b", 0, 0},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(PathCommonLength(c.a, c.b, c.limit), c.result) << c.a << " and " << c.b;
}

TEST_F(Path, FileNamesAreKeptRelativeToTheirFolder) {
    ASSERT_TRUE(fake_.files.setCurrentDirectory("c:\\more"));
    const CaseInFolder kCases[] = {
        {"c:\\tex", "c:\\tex\\sub\\s.tmf", "sub\\s.tmf"},
        {"c:\\tex", "sub/s.tmf", "sub\\s.tmf"},
        // Alone it would be read as one on that drive.
        {"c:\\tex", "c:\\tex\\d:x.tmf", "c:\\tex\\d:x.tmf"},
        {"c:\\more;c:\\tex", "c:\\tex\\d:x.tmf", "c:\\tex\\d:x.tmf"},
        {"c:\\tex", "..\\more\\m.tmf", "..\\more\\m.tmf"},
        {"c:\\tex;c:\\more", "c:\\more\\m.tmf", "m.tmf"},
        // The folder before has a file of this name.
        {"c:\\tex;c:\\more", "c:\\more\\a.tmf", "c:\\more\\a.tmf"},
        {"c:\\tex;c:\\more", "c:\\a\\x.tmf", "c:\\a\\x.tmf"},
        {"c:\\tex;c:\\more", "sub\\s.tmf", "sub\\s.tmf"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(fileNameIn(c.folder, c.path), c.result) << c.path << " in " << c.folder;
}

} // namespace
} // namespace dyeworks
