#include "platform/posix/PosixLibrary.h"

#include "platform/fake/FakeFiles.h"
#include "platform/posix/PosixVersionInfo.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace dyeworks {
namespace {

class PosixLibraryTest : public testing::Test {
protected:
    std::string built(const std::string& name) const {
        return files.fromHostPath(DYEWORKS_TEST_LIBRARY_FOLDER) + "\\" + name + ".so";
    }

    FakeFiles files;
    PosixLibrary library{files};
    PosixVersionInfo versions{files, {{1, 0, 2, 0}, {}}};
};

TEST_F(PosixLibraryTest, FindsEntryPointsByTheirDecoratedNames) {
    const std::unique_ptr<LoadedLibrary> sample = library.load(built("dyeworks_test_library"));
    ASSERT_TRUE(sample);
    auto* const isAvail = sample->findFunction<std::uint32_t(std::uint32_t)>("_DWPI_isAvail@4");
    ASSERT_NE(isAvail, nullptr);
    EXPECT_EQ(isAvail(0x01000200), 0x01000201U);
    EXPECT_EQ(sample->find("_DWPI_import@8"), nullptr);
    EXPECT_EQ(undecorated("_a@4"), "a");
    for (const std::string plain : {"", "a@4", "_@4", "_a@", "_a", "_a@4b"})
        EXPECT_EQ(undecorated(plain), plain);
}

TEST_F(PosixLibraryTest, LooksForBareNamesInTheProgramFolderOnly) {
    EXPECT_EQ(library.load("libc.so.6"), nullptr);
    std::filesystem::copy(files.hostPath(built("dyeworks_test_library")),
                          files.hostPath("c:\\program\\Sample.so"));
    EXPECT_TRUE(library.load("sample.so"));
    EXPECT_FALSE(library.load(".\\sample.so"));
}

TEST_F(PosixLibraryTest, LoadsNothingThatIsNoLibrary) {
    files.putFile("c:\\text.so", "no library");
    for (const char* path : {"", "c:\\text.so", "c:\\none.so", "c:\\", "d:\\x.so"}) {
        EXPECT_FALSE(library.load(path)) << path;
        EXPECT_FALSE(versions.read(path)) << path;
    }
}

TEST_F(PosixLibraryTest, ReadsWhatALibrarySaysOfItself) {
    const std::optional<VersionRecord> record = versions.read(built("dyeworks_test_library"));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->fileVersion, (std::array<std::uint16_t, 4>{1, 2, 65535, 4}));
    const std::map<std::string, std::map<std::string, std::string>> strings{
        {"040904E4", {{"ProductName", "Sample"}}},
        {"041104B0", {{"ProductName", "\xE8\xA6\x8B\xE6\x9C\xAC"}}}};
    EXPECT_EQ(record->strings, strings);
}

} // namespace
} // namespace dyeworks
