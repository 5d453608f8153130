#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int emptyWrites = 0;          // So many calls of write answer that they wrote nothing.
bool namesAreRefused = false; // A file without a name can be given none.

} // namespace

extern "C" ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    if (emptyWrites > 0) {
        --emptyWrites;
        return 0;
    }
    return ::syscall(SYS_write, descriptor, bytes, size);
}

extern "C" int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    if (namesAreRefused) {
        errno = EPERM;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

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

TEST_F(PosixFilesWrite, TakesAWriteOfNothingForAFailure) {
    fake.files.putFile("c:\\sky.tlf", "old");
    emptyWrites = 3;
    EXPECT_EQ(write("c:\\sky.tlf", "new"), FileError::Other);
    emptyWrites = 0;
    EXPECT_EQ(fake.files.textOf("c:\\sky.tlf"), "old");
}

TEST_F(PosixFilesWrite, AKilledSaveLeavesAWholeFileAndNothingBesideIt) {
    const std::string texts[] = {std::string(300'000, 'a'), std::string(200'000, 'b')};
    std::ofstream(host("sky.tlf")) << texts[0]; // The first save in the folder is that of a child.
    std::mt19937 random(5);
    std::size_t left = 0;
    for (int kill = 0; kill < 60; ++kill) {
        namesAreRefused = kill % 2 == 1;
        const pid_t child = ::fork();
        if (child == 0) {
            for (std::size_t i = 0;; ++i)
                (void)write("c:\\sky.tlf", texts[i % 2]);
        }
        ::usleep(static_cast<useconds_t>(500 + random() % 4000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string text = fake.files.textOf("c:\\sky.tlf").value_or("");
        EXPECT_TRUE(text == texts[0] || text == texts[1]) << text.size();
        left = std::max(left, entryCount() - entriesBefore - 1);
    }
    EXPECT_GT(left, 0U) << "no save was killed at the moment that this is about";
    EXPECT_EQ(write("c:\\sky.tlf", "new"), std::nullopt);
    EXPECT_EQ(entryCount(), entriesBefore + 1);
    namesAreRefused = false;
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

TEST_F(PosixFilesWrite, LeavesLinksPointingAtTheReplacedFile) {
    fake.files.putFile("c:\\store\\sky.tlf", "old");
    fake.files.createDirectory("c:\\links");
    fs::create_symlink("../store/sky.tlf", host("links/near.tlf"));
    fs::create_symlink(host("links/near.tlf"), host("far.tlf"));
    fs::create_symlink("store/new.tlf", host("dangling.tlf"));

    EXPECT_EQ(write("c:\\far.tlf", "new"), std::nullopt);
    EXPECT_EQ(fake.files.textOf("c:\\store\\sky.tlf"), "new");
    EXPECT_TRUE(fs::is_symlink(host("far.tlf")) && fs::is_symlink(host("links/near.tlf")));

    EXPECT_FALSE(fake.files.exists("c:\\dangling.tlf"));
    EXPECT_EQ(write("c:\\dangling.tlf", "made"), std::nullopt);
    EXPECT_EQ(fake.files.textOf("c:\\store\\new.tlf"), "made");
    EXPECT_TRUE(fs::is_symlink(host("dangling.tlf")));
}

TEST_F(PosixFilesWrite, LeavesProtectedFilesAndFoldersAlone) {
    fake.files.putFile("c:\\locked.tlf", "old");
    fake.files.putFile("c:\\closed\\sky.tlf", "old");
    fs::permissions(host("locked.tlf"), fs::perms::owner_read);
    fs::permissions(host("closed"), fs::perms::owner_read | fs::perms::owner_exec);
    {
        const OrdinaryUser user(fake.files.hostFolder());
        EXPECT_EQ(write("c:\\locked.tlf", "new"), FileError::AccessDenied);
        EXPECT_EQ(write("c:\\closed\\sky.tlf", "new"), FileError::AccessDenied);
        EXPECT_EQ(write("c:\\closed\\new.tlf", "new"), FileError::AccessDenied);
    }
    EXPECT_EQ(fake.files.textOf("c:\\locked.tlf"), "old");
    EXPECT_EQ(fake.files.textOf("c:\\closed\\sky.tlf"), "old");
    EXPECT_EQ(fake.files.enumerate("c:\\closed\\*.*").size(), 1U);
}

TEST_F(PosixFilesWrite, WritesInPlaceWhereTheFolderTakesNoFileOnceACopyIsKept) {
    struct Copies : SafetyCopies {
        bool keep(const std::string& path, FilePieces pieces) override {
            log += "keep " + path + " " + std::to_string(pieces.front().size()) + "\n";
            return keeps;
        }
        void release(const std::string& path) override { log += "release " + path + "\n"; }
        void broken(const std::string& path, FileError /*why*/) override { log += "broken " + path + "\n"; }
        bool keeps = true;
        std::string log;
    } copies;
    fake.files.setSafetyCopies(&copies);
    fake.files.putFile("c:\\closed\\sky.tlf", "the old text");
    fake.files.putFile("c:\\closed\\locked.tlf", "old");
    fs::permissions(host("closed/locked.tlf"), fs::perms::owner_read);
    fs::permissions(host("closed"), fs::perms::owner_read | fs::perms::owner_exec);
    {
        const OrdinaryUser user(fake.files.hostFolder());
        EXPECT_EQ(write("c:\\closed\\sky.tlf", "new"), std::nullopt);
        EXPECT_EQ(fake.files.textOf("c:\\closed\\sky.tlf"), "new");
        EXPECT_EQ(write("c:\\closed\\locked.tlf", "new"), FileError::AccessDenied);
        EXPECT_EQ(write("c:\\closed\\none.tlf", "new"), FileError::AccessDenied);
        copies.keeps = false;
        EXPECT_EQ(write("c:\\closed\\sky.tlf", "newer"), FileError::AccessDenied);
        copies.keeps = true;
        // There is no room: nothing is overwritten.
        rlimit before{};
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit few{10, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &few);
        const std::optional<FileError> tooLong = write("c:\\closed\\sky.tlf", std::string(20, 'x'));
        ::setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_EQ(tooLong, FileError::NoSpace);
        EXPECT_EQ(fake.files.textOf("c:\\closed\\sky.tlf"), "new");
        emptyWrites = 1;
        EXPECT_EQ(write("c:\\closed\\sky.tlf", "x"), FileError::Other);
    }
    EXPECT_EQ(copies.log, "keep c:\\closed\\sky.tlf 3\nrelease c:\\closed\\sky.tlf\n"
                          "keep c:\\closed\\sky.tlf 5\n"
                          "keep c:\\closed\\sky.tlf 20\nrelease c:\\closed\\sky.tlf\n"
                          "keep c:\\closed\\sky.tlf 1\nbroken c:\\closed\\sky.tlf\n");
}

TEST_F(PosixFilesWrite, WritesIntoAPipeThatHasNoName) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    fs::create_symlink("/proc/self/fd/" + std::to_string(ends[1]), host("stdout"));
    ASSERT_EQ(write("c:\\stdout", "x"), std::nullopt);
    char seen = 0;
    EXPECT_EQ(::read(ends[0], &seen, 1), 1);
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST_F(PosixFilesWrite, WritesIntoADeviceAndTellsThatItIsFull) {
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no device that is always full";
    fs::create_symlink("/dev/full", host("full"));
    EXPECT_EQ(write("c:\\full", "x"), FileError::NoSpace);
    EXPECT_TRUE(fs::is_character_file("/dev/full")) << "the device has been replaced";
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

} // namespace
} // namespace dyeworks
