#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace dyeworks {
namespace {

class PosixFilesPath : public testing::Test {
protected:
    std::string drive(const std::string& rest) const { return fake.files.hostFolder() + "/drive-c" + rest; }

    FakePlatform fake;
};

TEST_F(PosixFilesPath, MakesFullPathsByTextAlone) {
    struct Case {
        const char* path;
        const char* full;
    };
    constexpr Case kCases[] = {
        {"", ""},
        {"sky.tlf", "c:\\tex\\sky.tlf"},
        {"..\\sky.tlf", "c:\\sky.tlf"},
        {"..\\..\\..\\sky.tlf", "c:\\sky.tlf"},
        {"a/./b//c\\", "c:\\tex\\a\\b\\c"},
        {"\\home\\kei\\..\\sky.tlf", "\\home\\sky.tlf"},
        {"/home/kei/tex/sky.tlf", "\\home\\kei\\tex\\sky.tlf"},
        {"\\", "\\"},
        {"c:", "c:\\"},
        {"C:sky.tlf", "C:\\sky.tlf"},
        {"\\\\server\\share\\a\\..\\b\\", "\\\\server\\share\\b"},
    };
    fake.files.createDirectory("c:\\tex");
    ASSERT_TRUE(fake.files.setCurrentDirectory("c:\\tex"));
    for (const Case& c : kCases)
        EXPECT_EQ(fake.files.fullPath(c.path), c.full) << c.path;
}

TEST_F(PosixFilesPath, TurnsPathsIntoTheHostsFormAndBack) {
    EXPECT_EQ(fake.files.hostPath("\\home\\kei\\x"), "/home/kei/x");
    EXPECT_EQ(fake.files.hostPath("\\"), "/");
    EXPECT_EQ(fake.files.hostPath("c:\\tex\\sky.tlf"), drive("/tex/sky.tlf"));
    EXPECT_EQ(fake.files.hostPath("C:\\"), drive(""));
    EXPECT_EQ(fake.files.hostPath("x"), drive("/x"));

    EXPECT_EQ(fake.files.fromHostPath("/home/kei/x"), "\\home\\kei\\x");
    EXPECT_EQ(fake.files.fromHostPath("//home//kei/"), "\\home\\kei");
    EXPECT_EQ(fake.files.fromHostPath("/"), "\\");
    EXPECT_EQ(fake.files.fromHostPath("a/b"), "c:\\a\\b");
    EXPECT_EQ(fake.files.fromHostPath(""), "");
}

TEST_F(PosixFilesPath, FindsNothingOnServersUnmappedDrivesAndBehindNul) {
    using namespace std::string_literals;
    fake.files.putFile("c:\\sky.tlf", "x");
    for (const std::string& path : {"d:\\sky.tlf"s, "\\\\server\\share\\sky.tlf"s, ""s, "c:\\sky.tlf\0y"s}) {
        EXPECT_FALSE(fake.files.exists(path)) << path;
        EXPECT_EQ(fake.files.hostPath(path), "") << path;
        EXPECT_EQ(fake.files.read(path).error(), FileError::NotFound) << path;
        EXPECT_EQ(fake.files.write(path, {}), FileError::NotFound) << path;
    }
    EXPECT_FALSE(fake.files.setCurrentDirectory("d:\\"));
    EXPECT_TRUE(fake.files.enumerate("d:\\*.*").empty());
}

TEST(PosixFiles, TakesOnlyAbsoluteFoldersForDrives) {
    std::optional<std::string> mapped;
    const PosixFiles files([&](char) { return mapped; }, "/opt/dyeworks");
    for (const char* folder : {"", "tmp", "."}) {
        mapped = folder;
        EXPECT_EQ(files.hostPath("c:\\x"), "") << folder;
    }
    mapped = "/no-such-place//";
    EXPECT_EQ(files.hostPath("c:\\x"), "/no-such-place/x");
    mapped = "/";
    EXPECT_EQ(files.hostPath("c:\\no-such-place"), "/no-such-place");
    EXPECT_EQ(files.hostPath("c:\\"), "/");
    EXPECT_EQ(files.programFolder(), "\\opt\\dyeworks\\");
}

TEST_F(PosixFilesPath, ShowsPeopleTheHostsForm) {
    fake.files.showHostPaths(true);
    fake.files.putFile("c:\\Tex\\Sky.tlf", "x");
    EXPECT_EQ(displayPath("c:\\tex\\sky.TLF"), drive("/Tex/Sky.tlf"));
    EXPECT_EQ(displayPath("\\no-such-place\\PlugIns\\"), "/no-such-place/PlugIns/");
    EXPECT_EQ(displayPath("*palette3"), "*palette3");
    EXPECT_EQ(displayPath("tex\\sky.tlf"), "tex/sky.tlf");
    EXPECT_EQ(displayPath("q:\\sky.tlf"), "q:\\sky.tlf");
}

TEST_F(PosixFilesPath, TakesTheHostsDirectoryAlongWithItsOwn) {
    fake.files.putFile("c:\\Tex\\sky.tlf", "x");
    ASSERT_TRUE(fake.files.setCurrentDirectory("c:\\tex"));
    EXPECT_EQ(fake.files.currentDirectory(), "c:\\tex");
    EXPECT_EQ(std::filesystem::current_path().string(), drive("/Tex"));
    EXPECT_TRUE(fake.files.exists("sky.tlf"));

    EXPECT_FALSE(fake.files.setCurrentDirectory("sky.tlf"));
    EXPECT_FALSE(fake.files.setCurrentDirectory("c:\\none"));
    EXPECT_EQ(fake.files.currentDirectory(), "c:\\tex");
}

TEST_F(PosixFilesPath, FindsNamesThatDifferOnlyInCase) {
    fake.files.putFile("c:\\Tex\\Sub\\Sky.TLF", "sky");
    fake.files.putFile("c:\\TEX\\..\\tex2\\b.tlf", "b");
    fake.files.putFile("c:\\Tex\\\xC3\x84pfel.tlf", "apples");
    EXPECT_EQ(fake.files.textOf("C:\\tEX\\sUB\\sky.tlf"), "sky");
    EXPECT_EQ(fake.files.textOf("c:\\tex\\\xC3\xA4PFEL.tlf"), "apples");
    EXPECT_EQ(fake.files.hostPath("c:\\tex\\SUB\\new\\File.tlf"), drive("/Tex/Sub/new/File.tlf"));
    EXPECT_TRUE(fake.files.isDirectory("c:\\tex\\sub"));
    EXPECT_FALSE(fake.files.isDirectory("c:\\tex\\sub\\sky.tlf"));
    EXPECT_FALSE(fake.files.exists("c:\\tex\\sub\\sky.tl"));
    EXPECT_EQ(fake.files.enumerate("c:\\tex\\sub\\*.tlf").size(), 1U);
}

TEST_F(PosixFilesPath, EnumeratesMatchesInTheOrderOfTheirNames) {
    for (const char* name : {"b.SO", "a.so", "plain", ".hidden", "a.sox", "dir.so\\in.so"})
        fake.files.putFile(std::string("c:\\p\\") + name, "");

    const auto names = [&](const std::string& pattern) {
        std::string all;
        for (const FileEntry& entry : fake.files.enumerate(pattern))
            all += entry.name + (entry.directory ? "/ " : " ");
        return all;
    };
    EXPECT_EQ(names("c:\\P\\*.so"), "a.so b.SO dir.so/ ");
    EXPECT_EQ(names("c:\\p\\*.*"), ".hidden a.so a.sox b.SO dir.so/ plain ");
    EXPECT_EQ(names("c:\\none\\*.*"), "");
}

} // namespace
} // namespace dyeworks
