#include "platform/posix/Descriptor.h"
#include "platform/posix/HostFile.h"
#include "platform/posix/SignalShield.h"
#include "platform/posix/TemporaryFile.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace dyeworks {

namespace {

/// 0, or the error number of what failed.
using ErrorNumber = int;

constexpr mode_t kNewFileMode = 0666; // Less what the user's mask takes.
constexpr mode_t kPermissions = 0777;
constexpr int kMaxLinks = 40;

struct Manner {
    Flush flush;
    const std::atomic<bool>* stopped;

    [[nodiscard]] bool isStopped() const { return stopped != nullptr && *stopped; }
};

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}
std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

/// Follows the links at the end of `path` to what they name, which need not exist.
ErrorNumber followLinks(std::string& path) {
    for (int links = 0; links < kMaxLinks; ++links) {
        std::array<char, PATH_MAX> target;
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length < 0)
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        const std::string_view name(target.data(), static_cast<std::size_t>(length));
        path = name.starts_with('/') ? std::string(name) : folderOf(path).append(name);
    }
    return ELOOP;
}

ErrorNumber writeAll(int descriptor, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        // Some devices take nothing and call it no error; they would be asked for ever.
        if (count == 0)
            return EIO;
        if (count > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

ErrorNumber writeAll(int descriptor, FilePieces pieces) {
    for (const std::span<const std::byte> piece : pieces) {
        if (const ErrorNumber error = writeAll(descriptor, piece); error != 0)
            return error;
    }
    return 0;
}

ErrorNumber flush(int descriptor) {
    while (::fsync(descriptor) != 0) {
        // A file system that knows no flushing has nothing held back.
        if (errno == EINVAL || errno == ENOTSUP)
            return 0;
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

/// Extended attributes, among them the access control list, without which the group's permission bits would
/// mean something else. What the file system or the user's rights refuse stays behind.
void copyAttributes(const std::string& from, int to) {
    const ssize_t listSize = ::listxattr(from.c_str(), nullptr, 0);
    if (listSize <= 0)
        return;
    std::string names(static_cast<std::size_t>(listSize), '\0');
    const ssize_t listed = ::listxattr(from.c_str(), names.data(), names.size());
    if (listed < 0)
        return;
    names.resize(static_cast<std::size_t>(listed));
    for (std::size_t start = 0; start < names.size();) {
        const char* const name = names.c_str() + start;
        start += std::string_view(name).size() + 1;
        const ssize_t size = ::getxattr(from.c_str(), name, nullptr, 0);
        if (size < 0)
            continue;
        std::vector<std::byte> value(static_cast<std::size_t>(size));
        const ssize_t read = ::getxattr(from.c_str(), name, value.data(), value.size());
        if (read >= 0)
            (void)::fsetxattr(to, name, value.data(), static_cast<std::size_t>(read), 0);
    }
}

/// Gives the new contents the rights of the file that they replace. Owner and group can only be kept where
/// the host lets this user give files away. Set-user-id bits go, as they do when a file is written.
ErrorNumber keepPermissions(int descriptor, const std::string& path, const struct stat& old) {
    if (::fchown(descriptor, old.st_uid, old.st_gid) != 0)
        std::ignore = ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid);
    copyAttributes(path, descriptor);
    return ::fchmod(descriptor, old.st_mode & kPermissions) == 0 ? 0 : errno;
}

/// A folder that may be entered and written but not listed can still be worked in, though not flushed.
Descriptor openFolder(const std::string& path) {
    Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.valid() && errno == EACCES)
        folder = Descriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return folder;
}

/// `old` is null for a file that does not exist. `nameRefused` tells that the file could not be given one.
ErrorNumber replaceThrough(TemporaryFile& file, const std::string& path, const struct stat* old,
                           FilePieces pieces, const Manner& manner, bool& nameRefused) {
    ErrorNumber error = file.error();
    if (error == 0 && old != nullptr)
        error = keepPermissions(file.get(), path, *old);
    if (error == 0)
        error = writeAll(file.get(), pieces);
    if (error == 0 && manner.flush == Flush::Yes)
        error = flush(file.get());
    if (error == 0 && manner.isStopped())
        return ECANCELED;
    if (error == 0) {
        error = file.makeNamed();
        nameRefused = error != 0;
    }
    if (error == 0)
        error = file.close();
    if (error == 0 && manner.isStopped())
        return ECANCELED;
    if (error == 0)
        error = file.place(nameOf(path));
    return error;
}

ErrorNumber replaceFile(const std::string& path, const struct stat* old, FilePieces pieces,
                        const Manner& manner) {
    const std::string folderName = folderOf(path);
    const Descriptor folder = openFolder(folderName.empty() ? "." : folderName);
    if (!folder.valid())
        return errno;
    removeAbandonedFiles(folder.get());
    ErrorNumber error = 0;
    bool nameRefused = false;
    for (const auto name : {TemporaryFile::Name::None, TemporaryFile::Name::Hidden}) {
        nameRefused = false;
        // Nobody else may look into a copy of a file whose rights are not set yet.
        TemporaryFile file(folder.get(), old != nullptr ? S_IRUSR | S_IWUSR : kNewFileMode, name);
        error = replaceThrough(file, path, old, pieces, manner, nameRefused);
        if (!nameRefused)
            break;
    }
    if (error == 0 && manner.flush == Flush::Yes) {
        // The file is in its place. A folder that cannot be flushed only makes that less lasting.
        (void)flush(folder.get());
    }
    return error;
}

/// Devices and pipes. A pipe that nobody reads from fails in open, where it would wait without O_NONBLOCK.
ErrorNumber writeInto(const std::string& path, FilePieces pieces) {
    Descriptor device(::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!device.valid() || ::fcntl(device.get(), F_SETFL, O_WRONLY) != 0)
        return errno;
    if (const ErrorNumber error = writeAll(device.get(), pieces); error != 0)
        return error;
    return device.close();
}

bool isDevice(const std::string& path) {
    struct stat named {};
    return ::stat(path.c_str(), &named) == 0 && !S_ISREG(named.st_mode) && !S_ISDIR(named.st_mode);
}

ErrorNumber writeResolved(std::string path, FilePieces pieces, const Manner& manner) {
    // Before the links are followed: what "/dev/stdout" leads to may be a pipe, which has no name to follow.
    if (isDevice(path))
        return writeInto(path, pieces);
    if (const ErrorNumber error = followLinks(path); error != 0)
        return error;
    struct stat old {};
    if (::stat(path.c_str(), &old) != 0)
        return errno == ENOENT ? replaceFile(path, nullptr, pieces, manner) : errno;
    if (S_ISDIR(old.st_mode))
        return EISDIR;
    // Replacing asks for rights to the folder only; a file that is protected itself is left alone.
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return errno;
    return replaceFile(path, &old, pieces, manner);
}

/// Nothing is overwritten before there is room for all of it.
ErrorNumber reserve(int file, off_t before, off_t wanted) {
    if (wanted <= before)
        return 0;
    const ErrorNumber error = ::posix_fallocate(file, before, wanted - before);
    if (error == 0 || error == EOPNOTSUPP || error == EINVAL)
        return 0;
    std::ignore = ::ftruncate(file, before);
    return error;
}

ErrorNumber writeOver(const std::string& path, FilePieces pieces, bool& torn) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    struct stat old {};
    if (!file.valid() || ::fstat(file.get(), &old) != 0)
        return errno;
    off_t size = 0;
    for (const std::span<const std::byte> piece : pieces)
        size += static_cast<off_t>(piece.size());
    ErrorNumber error = reserve(file.get(), old.st_size, size);
    if (error != 0)
        return error;
    torn = true;
    error = writeAll(file.get(), pieces);
    if (error == 0 && ::ftruncate(file.get(), size) != 0)
        error = errno;
    if (error == 0)
        error = flush(file.get());
    return error == 0 ? file.close() : error;
}

} // namespace

bool takesNothingButContents(const std::string& path, FileError why) {
    if (why != FileError::AccessDenied && why != FileError::ReadOnly)
        return false;
    struct stat named {};
    return ::stat(path.c_str(), &named) == 0 && S_ISREG(named.st_mode) &&
           ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

std::optional<FileError> writeIntoHostFile(const std::string& path, FilePieces pieces, bool& torn) {
    const SignalShield shield;
    const ErrorNumber error = writeOver(path, pieces, torn);
    if (error == 0)
        return std::nullopt;
    return fileErrorFrom(error);
}

std::optional<FileError> writeHostFile(const std::string& path, FilePieces pieces, Flush flush,
                                       const std::atomic<bool>* stopped) {
    const SignalShield shield;
    const ErrorNumber error = writeResolved(path, pieces, {flush, stopped});
    if (error == 0)
        return std::nullopt;
    return fileErrorFrom(error);
}

} // namespace dyeworks
