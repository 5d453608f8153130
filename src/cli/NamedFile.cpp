#include "cli/NamedFile.h"

#include "platform/posix/Descriptor.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace dyeworks {

namespace {

Result<ByteBuffer, FileError> readStream(int descriptor) {
    try {
        std::vector<std::byte> all;
        std::array<std::byte, 65536> chunk;
        for (;;) {
            const ssize_t count = ::read(descriptor, chunk.data(), chunk.size());
            if (count == 0)
                break;
            if (count > 0)
                all.insert(all.end(), chunk.begin(), chunk.begin() + count);
            else if (errno != EINTR)
                return fileErrorFrom(errno);
        }
        ByteBuffer bytes(all.size());
        std::ranges::copy(all, bytes.data());
        return bytes;
    } catch (const std::bad_alloc&) {
        return FileError::TooLarge;
    }
}

bool isStream(const std::string& name) {
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

std::size_t startOfLastPart(const std::string& name) {
    return name.rfind('/') + 1;
}

/// Of the full stop before the ending; npos without one.
std::size_t placeOfEnding(const std::string& name) {
    const std::size_t stop = name.rfind('.');
    return stop == std::string::npos || stop <= startOfLastPart(name) ? std::string::npos : stop;
}

} // namespace

Result<ByteBuffer, FileError> readNamed(const std::string& name) {
    if (name == kStandardStream)
        return readStream(STDIN_FILENO);
    if (!isStream(name))
        return readHostFile(name);
    const Descriptor stream(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
    if (!stream.valid())
        return fileErrorFrom(errno);
    return readStream(stream.get());
}

std::optional<FileError> writeNamed(const std::string& name, std::span<const std::byte> bytes) {
    if (name != kStandardStream)
        return writeHostFile(name, FilePieces(&bytes, 1));
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
    return isWritten && std::fflush(stdout) == 0 ? std::nullopt : std::optional(fileErrorFrom(errno));
}

bool isFolder(const std::string& name) {
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isFile(const std::string& name) {
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::optional<FileError> makeFolder(const std::string& name) {
    constexpr mode_t kEverybody = 0777; // Less what the user's mask takes.
    for (std::size_t end = name.find('/', 1); end != std::string::npos; end = name.find('/', end + 1))
        (void)::mkdir(name.substr(0, end).c_str(), kEverybody);
    if (::mkdir(name.c_str(), kEverybody) == 0 || isFolder(name))
        return std::nullopt;
    return fileErrorFrom(errno);
}

std::string lastPartOf(const std::string& name) {
    return name.substr(startOfLastPart(name));
}

std::string endingOf(const std::string& name) {
    const std::size_t stop = placeOfEnding(name);
    std::string ending = stop == std::string::npos ? "" : name.substr(stop + 1);
    std::ranges::transform(ending, ending.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return ending;
}

std::string stemOf(const std::string& name) {
    const std::size_t start = startOfLastPart(name);
    return name.substr(start, std::min(placeOfEnding(name), name.size()) - start);
}

std::string inFolder(const std::string& folder, const std::string& name) {
    return folder.empty() || folder.back() == '/' ? folder + name : folder + "/" + name;
}

std::span<const std::byte> bytesOf(const std::string& text) {
    return std::as_bytes(std::span(text.data(), text.size()));
}

} // namespace dyeworks
