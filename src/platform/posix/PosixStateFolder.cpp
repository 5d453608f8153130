#include "platform/posix/PosixStateFolder.h"

#include "platform/posix/HostFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace dyeworks {

namespace {

namespace fs = std::filesystem;

/// Of a folder that is not locked yet, which nobody must take for one that was left.
constexpr const char* kUnfinished = ".new-";

Descriptor lockedFolder(const std::string& path) {
    Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.valid() && ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0)
        return {};
    return folder;
}

void removeWhole(const std::string& folder) {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

/// Sorts by the time of its making, and differs from that of every other program that runs.
std::string nameOfRun() {
    std::array<char, 64> name{};
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    std::snprintf(name.data(), name.size(), "%016llx-%lx", static_cast<unsigned long long>(now.tv_sec),
                  static_cast<long>(::getpid()));
    return name.data();
}

class PosixLeftState : public LeftState {
public:
    PosixLeftState(std::string folder, Descriptor lock)
        : folder_(std::move(folder))
        , lock_(std::move(lock)) {}

    [[nodiscard]] std::vector<std::string> names() const override {
        std::vector<std::string> names;
        std::error_code error;
        for (fs::directory_iterator entry(folder_, error), end; !error && entry != end;
             entry.increment(error)) {
            // Hidden ones are of a write that was cut off.
            if (std::string name = entry->path().filename().string();
                !name.starts_with('.') && entry->is_regular_file(error))
                names.push_back(std::move(name));
        }
        std::ranges::sort(names);
        return names;
    }
    [[nodiscard]] Result<ByteBuffer, FileError> read(const std::string& name) const override {
        return readHostFile(folder_ + '/' + name);
    }
    [[nodiscard]] Result<ByteBuffer, FileError> readStart(const std::string& name,
                                                          std::size_t most) const override {
        const auto file = openHostFile(folder_ + '/' + name);
        if (!file)
            return file.error();
        ByteBuffer start(static_cast<std::size_t>(std::min<std::uint64_t>(file.value()->size(), most)));
        if (file.value()->read(start.bytes()) < start.size())
            return FileError::Other;
        return start;
    }
    void remove(const std::string& name) override { (void)::unlink((folder_ + '/' + name).c_str()); }
    void discard() override { removeWhole(folder_); }

private:
    std::string folder_;
    Descriptor lock_;
};

} // namespace

PosixStateFolder::PosixStateFolder(std::string base)
    : base_(std::move(base)) {}

std::string PosixStateFolder::usersBase() {
    constexpr const char* kOwn = "/orrery-dyeworks/recovery";
    if (const char* const state = std::getenv("XDG_STATE_HOME"); state != nullptr && *state == '/')
        return std::string(state) + kOwn;
    const char* const home = std::getenv("HOME");
    return std::string(home == nullptr ? "" : home) + "/.local/state" + kOwn;
}

/// Where it has not been made yet.
std::optional<FileError> PosixStateFolder::make() {
    const std::lock_guard guard(mutex_);
    if (!folder_.empty())
        return std::nullopt;
    std::error_code error;
    fs::create_directories(base_, error);
    if (error)
        return fileErrorFrom(error.value());
    const std::string name = nameOfRun();
    const std::string unfinished = base_ + '/' + kUnfinished + name;
    const std::string finished = base_ + '/' + name;
    // What is in it is the user's and nobody else's.
    if (::mkdir(unfinished.c_str(), S_IRWXU) != 0)
        return fileErrorFrom(errno);
    Descriptor lock = lockedFolder(unfinished);
    if (::rename(unfinished.c_str(), finished.c_str()) != 0) {
        const int why = errno;
        removeWhole(unfinished);
        return fileErrorFrom(why);
    }
    folder_ = finished;
    lock_ = std::move(lock);
    return std::nullopt;
}

std::optional<FileError> PosixStateFolder::write(const std::string& name, FilePieces pieces) {
    if (const auto error = make())
        return error;
    const std::string into = folder();
    const auto error = writeHostFile(into + '/' + name, pieces);
    if (error != FileError::NotFound)
        return error;
    // Somebody has cleared it away.
    forget(into);
    if (const auto notMade = make())
        return notMade;
    return writeHostFile(folder() + '/' + name, pieces);
}

void PosixStateFolder::forget(const std::string& lost) {
    const std::lock_guard lock(mutex_);
    if (folder_ == lost)
        folder_.clear();
}

std::string PosixStateFolder::folder() const {
    const std::lock_guard lock(mutex_);
    return folder_;
}

void PosixStateFolder::remove(const std::string& name) {
    if (const std::string from = folder(); !from.empty())
        (void)::unlink((from + '/' + name).c_str());
}

void PosixStateFolder::discard() {
    const std::lock_guard lock(mutex_);
    if (folder_.empty())
        return;
    removeWhole(folder_);
    folder_.clear();
    (void)lock_.close();
}

std::vector<std::unique_ptr<LeftState>> PosixStateFolder::left() {
    const std::string own = folder();
    std::vector<std::string> folders;
    std::error_code error;
    for (fs::directory_iterator entry(base_, error), end; !error && entry != end; entry.increment(error)) {
        if (std::string path = entry->path().string();
            path != own && entry->is_directory(error) && !entry->path().filename().string().starts_with('.'))
            folders.push_back(std::move(path));
    }
    std::ranges::sort(folders);
    std::vector<std::unique_ptr<LeftState>> states;
    for (std::string& folder : folders) {
        Descriptor lock = lockedFolder(folder);
        if (!lock.valid())
            continue;
        auto state = std::make_unique<PosixLeftState>(folder, std::move(lock));
        // Killed before it had anything to keep.
        if (state->names().empty())
            state->discard();
        else
            states.push_back(std::move(state));
    }
    return states;
}

} // namespace dyeworks
