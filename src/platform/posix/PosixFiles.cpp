#include "platform/posix/PosixFiles.h"

#include "platform/TextCase.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace dyeworks {

namespace {

struct DirectoryCloser {
    void operator()(DIR* directory) const { ::closedir(directory); }
};
using OpenDirectory = std::unique_ptr<DIR, DirectoryCloser>;

bool isDotName(std::string_view name) {
    return name == "." || name == "..";
}

bool isHostDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// True when the name is taken, be it by a link that leads nowhere.
bool nameExists(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0;
}

std::string joined(std::string folder, std::span<const std::string> parts) {
    for (const std::string& part : parts)
        folder.append("/").append(part);
    return folder.empty() ? "/" : folder;
}

/// The entry of `folder` that differs from `name` only in case, the first in byte order of several.
std::optional<std::string> caseBlindEntry(const std::string& folder, const std::string& name) {
    const OpenDirectory directory(::opendir(folder.empty() ? "/" : folder.c_str()));
    if (!directory)
        return std::nullopt;
    const std::u32string wanted = foldedCase(name);
    std::optional<std::string> found;
    while (const dirent* entry = ::readdir(directory.get())) {
        const std::string_view candidate = entry->d_name;
        if ((!found || candidate < *found) && foldedCase(candidate) == wanted)
            found = candidate;
    }
    return found;
}

/// The host path of `parts` below `folder`, each part in the spelling of the entry it finds; from the first
/// part that finds none on, as given.
std::string resolved(const std::string& folder, std::span<const std::string> parts) {
    std::string exact = joined(folder, parts);
    if (nameExists(exact) || (errno != ENOENT && errno != ENOTDIR))
        return exact;
    std::string found = folder;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (nameExists(found + "/" + parts[i])) {
            found.append("/").append(parts[i]);
            continue;
        }
        const std::optional<std::string> entry = caseBlindEntry(found, parts[i]);
        if (!entry)
            return joined(std::move(found), parts.subspan(i));
        found.append("/").append(*entry);
    }
    return found;
}

bool isDirectoryEntry(const std::string& folder, const dirent& entry) {
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return entry.d_type == DT_DIR;
    return isHostDirectory(folder + "/" + entry.d_name);
}

std::string programForm(const std::string& hostPath, const std::string& currentDirectory) {
    if (hostPath.empty())
        return hostPath;
    // Any number of leading separators is the host's root; two of them would be read as a server.
    const std::size_t first = hostPath.find_first_not_of('/');
    std::string path = first == 0 ? "" : "\\";
    if (first != std::string::npos)
        path.append(hostPath, first);
    return parseProgramPath(path, currentDirectory).text();
}

} // namespace

PosixFiles::PosixFiles(DriveLookup drives, std::string programFolder)
    : drives_(std::move(drives))
    , programFolder_(std::move(programFolder)) {
    std::error_code error;
    const std::filesystem::path directory = std::filesystem::current_path(error);
    if (!error)
        currentDirectory_ = programForm(directory.string(), "\\");
}

std::string PosixFiles::fullPath(const std::string& path) const {
    return path.empty() ? path : parseProgramPath(path, currentDirectory()).text();
}

std::string PosixFiles::currentDirectory() const {
    const std::lock_guard lock(directoryMutex_);
    return currentDirectory_;
}

bool PosixFiles::setCurrentDirectory(const std::string& path) {
    const std::string host = hostPath(path);
    if (host.empty() || ::chdir(host.c_str()) != 0)
        return false;
    std::string full = fullPath(path);
    const std::lock_guard lock(directoryMutex_);
    currentDirectory_ = std::move(full);
    return true;
}

bool PosixFiles::exists(const std::string& path) const {
    const std::string host = hostPath(path);
    struct stat status {};
    return !host.empty() && ::stat(host.c_str(), &status) == 0;
}

bool PosixFiles::isDirectory(const std::string& path) const {
    const std::string host = hostPath(path);
    return !host.empty() && isHostDirectory(host);
}

std::optional<FileStamp> PosixFiles::stamp(const std::string& path) const {
    const std::string host = hostPath(path);
    struct stat status {};
    if (host.empty() || ::stat(host.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    constexpr std::int64_t kSecond = 1'000'000'000;
    return FileStamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                     status.st_mtim.tv_sec * kSecond + status.st_mtim.tv_nsec};
}

std::vector<FileEntry> PosixFiles::enumerate(const std::string& pattern) const {
    std::vector<FileEntry> entries;
    if (pattern.empty() || isSeparator(pattern.back()) || isDotName(pattern))
        return entries;
    ProgramPath folder = parseProgramPath(pattern, currentDirectory());
    if (folder.parts.empty())
        return entries;
    const std::string wanted = std::move(folder.parts.back());
    folder.parts.pop_back();
    const std::string host = hostPathOf(folder, Spelling::AsOnDisk);
    const OpenDirectory directory(host.empty() ? nullptr : ::opendir(host.c_str()));
    if (!directory)
        return entries;
    while (const dirent* entry = ::readdir(directory.get())) {
        const std::string_view name = entry->d_name;
        // A name that holds the program's separator could not be asked for.
        if (isDotName(name) || name.find('\\') != std::string_view::npos || !matchesWildcard(wanted, name))
            continue;
        entries.push_back({std::string(name), isDirectoryEntry(host, *entry)});
    }
    std::ranges::sort(entries, {}, &FileEntry::name);
    return entries;
}

Result<ByteBuffer, FileError> PosixFiles::read(const std::string& path) const {
    const std::string host = hostPath(path);
    if (host.empty())
        return FileError::NotFound;
    return readHostFile(host);
}

Result<std::unique_ptr<FileReader>, FileError> PosixFiles::openForReading(const std::string& path) const {
    const std::string host = hostPath(path);
    if (host.empty())
        return FileError::NotFound;
    auto file = openHostFile(host);
    if (!file)
        return file.error();
    return std::unique_ptr<FileReader>(std::move(file).value());
}

std::optional<FileError> PosixFiles::writePieces(const std::string& path, FilePieces pieces) {
    const std::string host = hostPath(path);
    if (host.empty())
        return FileError::NotFound;
    const std::optional<FileError> error = writeHostFile(host, pieces);
    if (!error)
        tellWritten();
    return error ? writeInPlace(path, host, pieces, *error) : error;
}

void PosixFiles::tellWritten() const {
    if (safetyCopies_ != nullptr)
        safetyCopies_->written();
}

/// Of a file that could not be replaced because of `error`.
std::optional<FileError> PosixFiles::writeInPlace(const std::string& path, const std::string& host,
                                                  FilePieces pieces, FileError error) {
    if (safetyCopies_ == nullptr || !takesNothingButContents(host, error))
        return error;
    if (!safetyCopies_->keep(path, pieces))
        return error;
    bool torn = false;
    const std::optional<FileError> failure = writeIntoHostFile(host, pieces, torn);
    if (failure && torn)
        safetyCopies_->broken(path, *failure);
    else
        safetyCopies_->release(path);
    if (!failure)
        tellWritten();
    return failure;
}

std::string PosixFiles::programFolder() const {
    std::string folder = fromHostPath(programFolder_);
    if (folder.empty() || folder.back() != '\\')
        folder += '\\';
    return folder;
}

std::string PosixFiles::shortPath(const std::string& path) const {
    return path;
}

std::string PosixFiles::hostPath(const std::string& path) const {
    return path.empty() ? path : hostPathOf(parseProgramPath(path, currentDirectory()), Spelling::AsOnDisk);
}

std::string PosixFiles::fromHostPath(const std::string& hostPath) const {
    return programForm(hostPath, currentDirectory());
}

std::string PosixFiles::displayPath(const std::string& path) const {
    return displayPath(path, Spelling::AsOnDisk);
}

std::string PosixFiles::unaskedDisplayPath(const std::string& path) const {
    return displayPath(path, Spelling::AsGiven);
}

std::string PosixFiles::displayPath(const std::string& path, Spelling spelling) const {
    if (!isRooted(path)) {
        std::string shown = path;
        std::ranges::replace(shown, '\\', '/');
        return shown;
    }
    std::string shown = hostPathOf(parseProgramPath(path, currentDirectory()), spelling);
    if (shown.empty())
        return path;
    if (isSeparator(path.back()) && shown.back() != '/')
        shown += '/';
    return shown;
}

std::string PosixFiles::hostPathOf(const ProgramPath& path, Spelling spelling) const {
    const std::optional<std::string> root = hostRootOf(path);
    // A text that goes on behind a NUL would name something else to the host.
    const auto endsEarly = [](const std::string& part) { return part.find('\0') != std::string::npos; };
    if (!root || std::ranges::any_of(path.parts, endsEarly))
        return {};
    return spelling == Spelling::AsOnDisk ? resolved(*root, path.parts) : joined(*root, path.parts);
}

/// Host folder of the path's root without a trailing "/", thus empty for the host's own root.
std::optional<std::string> PosixFiles::hostRootOf(const ProgramPath& path) const {
    switch (path.root) {
    case ProgramPath::Root::Host:
        return std::string();
    case ProgramPath::Root::Server:
        return std::nullopt;
    case ProgramPath::Root::Drive:
        break;
    }
    std::optional<std::string> folder = drives_ ? drives_(path.rootText.front()) : std::nullopt;
    if (!folder || folder->empty() || folder->front() != '/')
        return std::nullopt;
    while (!folder->empty() && folder->back() == '/')
        folder->pop_back();
    return folder;
}

} // namespace dyeworks
