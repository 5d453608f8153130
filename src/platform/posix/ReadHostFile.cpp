#include "platform/LargeBlock.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

/// Reads until `room` is full or the file ends. The count of bytes read, or -1 with errno set.
ssize_t readInto(int descriptor, std::span<std::byte> room) {
    std::size_t filled = 0;
    while (filled < room.size()) {
        const ssize_t count = ::read(descriptor, room.data() + filled, room.size() - filled);
        if (count == 0)
            break;
        if (count > 0)
            filled += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            return -1;
    }
    return static_cast<ssize_t>(filled);
}

ByteBuffer copyOf(std::span<const std::byte> bytes) {
    ByteBuffer copy(bytes.size());
    std::ranges::copy(bytes, copy.data());
    return copy;
}

/// Reads the rest of a file that holds more than it said: it grew meanwhile, or its size is made up, as in
/// /proc.
Result<ByteBuffer, FileError> readLonger(int descriptor, const ByteBuffer& start,
                                         std::span<const std::byte> next) {
    std::vector<std::byte> all(start.bytes().begin(), start.bytes().end());
    all.insert(all.end(), next.begin(), next.end());
    std::array<std::byte, 65536> chunk;
    ssize_t count = 0;
    while ((count = readInto(descriptor, chunk)) > 0)
        all.insert(all.end(), chunk.begin(), chunk.begin() + count);
    if (count < 0)
        return fileErrorFrom(errno);
    return copyOf(all);
}

Result<ByteBuffer, FileError> readAll(int descriptor, std::size_t size) {
    ByteBuffer buffer(size);
    prepareBlock(buffer.data(), size);
    const ssize_t count = readInto(descriptor, buffer.bytes());
    if (count < 0)
        return fileErrorFrom(errno);
    if (static_cast<std::size_t>(count) < size)
        return copyOf(buffer.bytes().first(static_cast<std::size_t>(count)));
    // The file ends here only when a further read says so.
    std::array<std::byte, 1024> beyond;
    const ssize_t more = readInto(descriptor, beyond);
    if (more < 0)
        return fileErrorFrom(errno);
    if (more > 0)
        return readLonger(descriptor, buffer, std::span(beyond).first(static_cast<std::size_t>(more)));
    return buffer;
}

/// The file, known to be a regular one, and its size.
struct RegularFile {
    Descriptor descriptor;
    std::size_t size = 0;
};

/// By the error number that opening has left.
FileError whyNotOpened(const std::string& path) {
    const int error = errno;
    struct stat named {};
    const bool leadsNowhere =
        error == ELOOP || (error == ENOENT && ::lstat(path.c_str(), &named) == 0 && S_ISLNK(named.st_mode));
    // A socket or a device without a driver.
    if (error == ENXIO || error == ENODEV)
        return FileError::NotRegular;
    return leadsNowhere ? FileError::BrokenLink : fileErrorFrom(error);
}

Result<RegularFile, FileError> openRegularFile(const std::string& path) {
    // Without O_NONBLOCK a pipe that nobody writes to would keep the program waiting in open.
    Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.valid())
        return whyNotOpened(path);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0)
        return fileErrorFrom(errno);
    if (S_ISDIR(status.st_mode))
        return FileError::NotAFile;
    // Devices and pipes have no whole that could be read.
    if (!S_ISREG(status.st_mode))
        return FileError::NotRegular;
    if (static_cast<std::uintmax_t>(status.st_size) > PTRDIFF_MAX)
        return FileError::TooLarge;
    return RegularFile{std::move(file), static_cast<std::size_t>(status.st_size)};
}

class PosixFileReader final : public HostFileReader {
public:
    explicit PosixFileReader(RegularFile file) noexcept
        : file_(std::move(file)) {}

    [[nodiscard]] std::uint64_t size() const override { return file_.size; }
    [[nodiscard]] std::size_t read(std::span<std::byte> room) override {
        return static_cast<std::size_t>(std::max<ssize_t>(readInto(file_.descriptor.get(), room), 0));
    }
    [[nodiscard]] bool skip(std::uint64_t size) override {
        return std::in_range<off_t>(size) &&
               ::lseek(file_.descriptor.get(), static_cast<off_t>(size), SEEK_CUR) != -1;
    }

private:
    RegularFile file_;
};

} // namespace

Result<ByteBuffer, FileError> readHostFile(const std::string& path) {
    const Result<RegularFile, FileError> file = openRegularFile(path);
    if (!file)
        return file.error();
    try {
        return readAll(file.value().descriptor.get(), file.value().size);
    } catch (const std::bad_alloc&) {
        return FileError::TooLarge;
    }
}

Result<std::unique_ptr<HostFileReader>, FileError> openHostFile(const std::string& path) {
    Result<RegularFile, FileError> file = openRegularFile(path);
    if (!file)
        return file.error();
    return std::unique_ptr<HostFileReader>(std::make_unique<PosixFileReader>(std::move(file).value()));
}

} // namespace dyeworks
