#include "platform/posix/TemporaryFile.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::string_view kPrefix = ".dyeworks-";
constexpr int kMaxNameAttempts = 100;
/// A writer that lives would by then have locked its file.
constexpr time_t kAgeOfUnlocked = 60;
constexpr time_t kBetweenLooks = 10;

/// What a descriptor goes by as a path, through which a file without a name gets one.
std::array<char, 64> pathOf(int descriptor) noexcept {
    std::array<char, 64> path{};
    std::snprintf(path.data(), path.size(), "/proc/self/fd/%d", descriptor);
    return path;
}

time_t secondsOf(clockid_t clock) noexcept {
    timespec now{};
    ::clock_gettime(clock, &now);
    return now.tv_sec;
}

bool isLocked(int file) noexcept {
    return ::flock(file, LOCK_EX | LOCK_NB) != 0;
}

bool lives(pid_t process) noexcept {
    return ::kill(process, 0) == 0 || errno != ESRCH;
}

/// Whether nobody writes the file any more. The process that its name tells of may be one of another
/// machine, or another one by now: then the lock decides, once the writer had the time to take it.
bool isAbandoned(int file, const std::string& name) noexcept {
    long process = 0;
    if (std::sscanf(name.c_str() + kPrefix.size(), "%lx-", reinterpret_cast<unsigned long*>(&process)) != 1)
        return false;
    struct stat status {};
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid())
        return false;
    const bool isOld = secondsOf(CLOCK_REALTIME) - status.st_mtime > kAgeOfUnlocked;
    return (isOld || !lives(static_cast<pid_t>(process))) && !isLocked(file);
}

void removeIfAbandoned(int folder, const std::string& name) noexcept {
    const Descriptor file(::openat(folder, name.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (file.valid() && isAbandoned(file.get(), name))
        (void)::unlinkat(folder, name.c_str(), 0);
}

/// Whether the time has come to look through the folder.
bool isDue(int folder) {
    static std::mutex mutex;
    // A folder that is made anew may have the number of one that was removed.
    using Identity = std::array<std::uint64_t, 5>;
    static std::map<Identity, time_t> looked;
    struct statx status {};
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_INO | STATX_BTIME, &status) != 0)
        return false;
    const Identity identity{status.stx_dev_major, status.stx_dev_minor, status.stx_ino,
                            static_cast<std::uint64_t>(status.stx_btime.tv_sec), status.stx_btime.tv_nsec};
    const time_t now = secondsOf(CLOCK_MONOTONIC);
    const std::lock_guard lock(mutex);
    const auto [known, isNew] = looked.try_emplace(identity, now);
    if (!isNew && now - known->second < kBetweenLooks)
        return false;
    known->second = now;
    return true;
}

std::vector<std::string> temporaryNamesIn(int folder) {
    std::vector<std::string> names;
    const int copy = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (copy < 0)
        return names; // It may be written but not listed.
    DIR* const listing = ::fdopendir(copy);
    if (listing == nullptr) {
        ::close(copy);
        return names;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> closer(listing, ::closedir);
    while (const dirent* const entry = ::readdir(listing)) {
        if (std::string_view(entry->d_name).starts_with(kPrefix))
            names.emplace_back(entry->d_name);
    }
    return names;
}

} // namespace

TemporaryFile::TemporaryFile(int folder, mode_t mode, Name name) noexcept
    : folder_(folder) {
    if (name == Name::None) {
        file_ = Descriptor(::openat(folder, ".", O_WRONLY | O_TMPFILE | O_CLOEXEC, mode));
        if (file_.valid() && ::access(pathOf(file_.get()).data(), F_OK) == 0)
            return;
    }
    create(mode);
}

TemporaryFile::~TemporaryFile() {
    if (named_)
        (void)::unlinkat(folder_, name_.data(), 0);
}

void TemporaryFile::makeName() noexcept {
    // Short, so that it fits wherever the target's own name does.
    static std::atomic<unsigned> counter{0};
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    std::snprintf(name_.data(), name_.size(), "%s%lx-%lx-%x", kPrefix.data(), static_cast<long>(::getpid()),
                  now.tv_nsec, counter++);
}

void TemporaryFile::create(mode_t mode) noexcept {
    for (int attempt = 0; attempt < kMaxNameAttempts; ++attempt) {
        makeName();
        file_ = Descriptor(
            ::openat(folder_, name_.data(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
        if (file_.valid() || errno != EEXIST)
            break;
    }
    named_ = file_.valid();
    error_ = named_ ? 0 : errno;
    // A file system that knows no locks leaves it at the name.
    if (named_)
        (void)isLocked(file_.get());
}

int TemporaryFile::makeNamed() noexcept {
    for (int attempt = 0; !named_ && attempt < kMaxNameAttempts; ++attempt) {
        makeName();
        named_ =
            ::linkat(AT_FDCWD, pathOf(file_.get()).data(), folder_, name_.data(), AT_SYMLINK_FOLLOW) == 0;
        if (!named_ && errno != EEXIST)
            return errno;
    }
    return named_ ? 0 : EEXIST;
}

int TemporaryFile::place(const std::string& name) noexcept {
    if (::renameat(folder_, name_.data(), folder_, name.c_str()) != 0)
        return errno;
    named_ = false;
    return 0;
}

void removeAbandonedFiles(int folder) noexcept {
    try {
        if (!isDue(folder))
            return;
        for (const std::string& name : temporaryNamesIn(folder))
            removeIfAbandoned(folder, name);
    } catch (const std::bad_alloc&) {
        // Another save will see to it.
    }
}

} // namespace dyeworks
