#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace dyeworks {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

/// Permissions mean nothing to root, so that a test of them works as somebody else.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const std::string& folder)
        : root_(::geteuid() == 0) {
        if (!root_)
            return;
        EXPECT_EQ(::chown(folder.c_str(), kNobody, kNobody), 0);
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
            EXPECT_EQ(::chown(entry.path().c_str(), kNobody, kNobody), 0);
        EXPECT_EQ(::seteuid(kNobody), 0);
    }
    ~OrdinaryUser() {
        if (root_) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool root_;
};

class PosixFilesWrite : public testing::Test {
protected:
    std::string host(const std::string& name) const { return fake.files.hostFolder() + "/drive-c/" + name; }

    std::optional<FileError> write(const std::string& path, std::string_view text) {
        return fake.files.write(path, std::as_bytes(std::span(text)));
    }

    mode_t modeOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(::stat(host(name).c_str(), &status), 0) << name;
        return status.st_mode & 07777;
    }

    std::size_t entryCount() const { return fake.files.enumerate("c:\\*.*").size(); }

    FakePlatform fake;
    const std::size_t entriesBefore = entryCount();
};

TEST_F(PosixFilesWrite, ReplacesTheFileThatDiffersOnlyInCase) {
    fake.files.putFile("c:\\Tex\\Sky.TLF", "a longer old text");
    EXPECT_EQ(write("c:\\tex\\sky.tlf", "new"), std::nullopt);
    EXPECT_EQ(write("c:\\TEX\\Cloud.tlf", ""), std::nullopt);
    const std::vector<FileEntry> entries = fake.files.enumerate("c:\\tex\\*.*");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].name, "Cloud.tlf");
    EXPECT_EQ(entries[1].name, "Sky.TLF");
    EXPECT_EQ(fake.files.textOf("c:\\tex\\Sky.TLF"), "new");
    EXPECT_EQ(fake.files.textOf("c:\\tex\\Cloud.tlf"), "");
}

TEST_F(PosixFilesWrite, KeepsTheOldFileWhenTheDiskIsFull) {
    fake.files.putFile("c:\\sky.tlf", "old");
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{1000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const std::optional<FileError> replaced = write("c:\\sky.tlf", std::string(4000, 'x'));
    const std::optional<FileError> created = write("c:\\new.tlf", std::string(4000, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);

    EXPECT_EQ(replaced, FileError::NoSpace);
    EXPECT_EQ(created, FileError::NoSpace);
    EXPECT_EQ(fake.files.textOf("c:\\sky.tlf"), "old");
    EXPECT_EQ(entryCount(), entriesBefore + 1) << "a temporary file or a half-written one stayed behind";
}

TEST_F(PosixFilesWrite, PutsANewFileInPlaceOfTheOldOne) {
    fake.files.putFile("c:\\sky.tlf", "old");
    std::ifstream reader(host("sky.tlf"));
    ASSERT_EQ(write("c:\\sky.tlf", "new"), std::nullopt);
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old") << "somebody who reads the old file must see it whole";
}

TEST_F(PosixFilesWrite, KeepsPermissionsAndGivesNewFilesTheUsersOwn) {
    fake.files.putFile("c:\\sky.tlf", "old");
    const mode_t maskBefore = ::umask(027);
    for (const mode_t mode : {0640U, 0666U, 0755U, 0600U}) {
        ASSERT_EQ(::chmod(host("sky.tlf").c_str(), mode), 0);
        ASSERT_EQ(write("c:\\sky.tlf", "new"), std::nullopt);
        EXPECT_EQ(modeOf("sky.tlf"), mode);
    }
    EXPECT_EQ(write("c:\\new.tlf", "new"), std::nullopt);
    ::umask(maskBefore);
    EXPECT_EQ(modeOf("new.tlf"), 0640U);
}

TEST_F(PosixFilesWrite, KeepsOwnerAndAttributes) {
    fake.files.putFile("c:\\sky.tlf", "old");
    if (::setxattr(host("sky.tlf").c_str(), "user.origin", "kei", 3, 0) != 0)
        GTEST_SKIP() << "the temporary folder knows no attributes";
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(host("sky.tlf").c_str(), kNobody, kNobody), 0);
    }
    struct stat before {};
    ASSERT_EQ(::stat(host("sky.tlf").c_str(), &before), 0);
    ASSERT_EQ(write("c:\\sky.tlf", "new"), std::nullopt);
    struct stat after {};
    ASSERT_EQ(::stat(host("sky.tlf").c_str(), &after), 0);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    char value[4] = {};
    EXPECT_EQ(::getxattr(host("sky.tlf").c_str(), "user.origin", value, sizeof value), 3);
    EXPECT_STREQ(value, "kei");
}

TEST_F(PosixFilesWrite, LeavesLinksPointingAtTheReplacedFile) {
    fake.files.putFile("c:\\store\\sky.tlf", "old");
    fake.files.createDirectory("c:\\links");
    fs::create_symlink("../store/sky.tlf", host("links/near.tlf"));
    fs::create_symlink(host("links/near.tlf"), host("far.tlf"));
    fs::create_symlink("store/new.tlf", host("dangling.tlf"));
    fs::create_symlink("none/new.tlf", host("nowhere.tlf"));
    fs::create_symlink("loop.tlf", host("loop.tlf"));

    EXPECT_EQ(write("c:\\far.tlf", "new"), std::nullopt);
    EXPECT_EQ(fake.files.textOf("c:\\store\\sky.tlf"), "new");
    EXPECT_TRUE(fs::is_symlink(host("far.tlf")) && fs::is_symlink(host("links/near.tlf")));

    EXPECT_FALSE(fake.files.exists("c:\\dangling.tlf"));
    EXPECT_EQ(write("c:\\dangling.tlf", "made"), std::nullopt);
    EXPECT_EQ(fake.files.textOf("c:\\store\\new.tlf"), "made");
    EXPECT_TRUE(fs::is_symlink(host("dangling.tlf")));

    EXPECT_EQ(write("c:\\nowhere.tlf", "x"), FileError::NotFound);
    EXPECT_EQ(write("c:\\loop.tlf", "x"), FileError::Other);
}

TEST_F(PosixFilesWrite, LeavesProtectedFilesAndFoldersAlone) {
    fake.files.putFile("c:\\locked.tlf", "old");
    fake.files.putFile("c:\\closed\\sky.tlf", "old");
    fake.files.putFile("c:\\hidden.tlf", "old");
    fs::permissions(host("locked.tlf"), fs::perms::owner_read);
    fs::permissions(host("closed"), fs::perms::owner_read | fs::perms::owner_exec);
    fs::permissions(host("hidden.tlf"), fs::perms::owner_write);
    {
        const OrdinaryUser user(fake.files.hostFolder());
        EXPECT_EQ(write("c:\\locked.tlf", "new"), FileError::AccessDenied);
        EXPECT_EQ(write("c:\\closed\\sky.tlf", "new"), FileError::AccessDenied);
        EXPECT_EQ(write("c:\\closed\\new.tlf", "new"), FileError::AccessDenied);
        EXPECT_EQ(fake.files.read("c:\\hidden.tlf").error(), FileError::AccessDenied);
        EXPECT_EQ(write("c:\\hidden.tlf", "new"), std::nullopt);
    }
    EXPECT_EQ(fake.files.textOf("c:\\locked.tlf"), "old");
    EXPECT_EQ(fake.files.textOf("c:\\closed\\sky.tlf"), "old");
    EXPECT_EQ(modeOf("hidden.tlf"), 0200U);
    EXPECT_EQ(fake.files.enumerate("c:\\closed\\*.*").size(), 1U);
}

TEST_F(PosixFilesWrite, WorksInAFolderThatCannotBeListed) {
    fake.files.putFile("c:\\box\\sky.tlf", "old");
    fs::permissions(host("box"), fs::perms::owner_write | fs::perms::owner_exec);
    {
        const OrdinaryUser user(fake.files.hostFolder());
        EXPECT_EQ(write("c:\\box\\sky.tlf", "new"), std::nullopt);
    }
    EXPECT_EQ(fake.files.textOf("c:\\box\\sky.tlf"), "new");
}

TEST_F(PosixFilesWrite, NeverPutsAFileInPlaceOfADeviceOrAPipe) {
    ASSERT_EQ(::mkfifo(host("pipe").c_str(), 0600), 0);
    // Neither may wait for somebody at the other end.
    EXPECT_EQ(write("c:\\pipe", "x"), FileError::Other);
    EXPECT_EQ(fake.files.read("c:\\pipe").error(), FileError::Other);
    EXPECT_TRUE(fs::is_fifo(host("pipe")));

    EXPECT_EQ(write("\\dev\\full", "x"), FileError::NoSpace);
    EXPECT_EQ(write("\\dev\\null", "x"), std::nullopt);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(PosixFilesWrite, RefusesFoldersAndWhatIsBelowAFile) {
    fake.files.putFile("c:\\tex\\sky.tlf", "old");
    EXPECT_EQ(write("c:\\tex", "x"), FileError::NotAFile);
    EXPECT_EQ(write("c:\\", "x"), FileError::NotAFile);
    EXPECT_EQ(fake.files.read("c:\\tex").error(), FileError::NotAFile);
    EXPECT_EQ(write("c:\\none\\sky.tlf", "x"), FileError::NotFound);
    EXPECT_EQ(write("c:\\tex\\sky.tlf\\x", "x"), FileError::NotFound);
    EXPECT_EQ(fake.files.read("c:\\tex\\none.tlf").error(), FileError::NotFound);
}

TEST_F(PosixFilesWrite, TakesNamesAndPathsAsLongAsTheHostDoes) {
    std::string folder = "c:";
    for (int depth = 0; depth < 20; ++depth)
        folder += "\\" + std::string(60, static_cast<char>('a' + depth));
    fake.files.createDirectory(folder);
    const std::string longest = folder + "\\" + std::string(255, 'n');
    EXPECT_EQ(write(longest, "x"), std::nullopt);
    EXPECT_EQ(write(longest, "y"), std::nullopt);
    EXPECT_EQ(fake.files.textOf(longest), "y");
    EXPECT_EQ(write(longest + "n", "x"), FileError::NameTooLong);
    EXPECT_EQ(fake.files.read(longest + "n").error(), FileError::NameTooLong);
}

TEST_F(PosixFilesWrite, ReadsEveryByteOfFilesThatSayLessThanTheyHold) {
    std::string bytes(100'000, '\0');
    std::ranges::generate(bytes, [n = 0U]() mutable { return static_cast<char>(n++ * 7U >> 3U); });
    fake.files.putFile("c:\\big", bytes);
    EXPECT_EQ(fake.files.textOf("c:\\big"), bytes);
    const std::optional<std::string> status = fake.files.textOf("\\proc\\self\\status");
    ASSERT_TRUE(status);
    EXPECT_NE(status->find("Threads:"), std::string::npos);
}

} // namespace
} // namespace dyeworks
