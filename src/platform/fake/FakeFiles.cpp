#include "platform/fake/FakeFiles.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace dyeworks {

namespace {

char smallLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

[[noreturn]] void fail(const char* what, const std::string& path) {
    std::fprintf(stderr, "cannot %s %s\n", what, path.c_str());
    std::abort();
}

std::optional<FileError> takeFailure(std::deque<FileError>& failures) {
    if (failures.empty())
        return std::nullopt;
    const FileError error = failures.front();
    failures.pop_front();
    return error;
}

} // namespace

FakeFiles::FakeFiles()
    : PosixFiles([this](char letter) { return driveFolder(letter); }, ScratchFolder::path()) {
    mapDrive('c');
    createDirectory(programFolder_);
    if (!setCurrentDirectory("c:\\"))
        fail("enter", "c:\\");
}

void FakeFiles::mapDrive(char letter) {
    const char small = smallLetter(letter);
    drives_[small] = ScratchFolder::subfolder(std::string("drive-") + small);
}

void FakeFiles::putFile(const std::string& path, std::span<const std::byte> bytes) {
    createDirectory(path + "\\..");
    if (PosixFiles::writePieces(path, FilePieces(&bytes, 1)))
        fail("put", path);
}

void FakeFiles::putFile(const std::string& path, std::string_view bytes) {
    putFile(path, std::as_bytes(std::span(bytes)));
}

void FakeFiles::createDirectory(const std::string& path) {
    std::error_code error;
    const std::string host = hostPath(path);
    if (!host.empty())
        std::filesystem::create_directories(host, error);
    if (host.empty() || error)
        fail("create", path);
}

void FakeFiles::remove(const std::string& path) {
    std::error_code error;
    if (const std::string host = hostPath(path); !host.empty())
        std::filesystem::remove_all(host, error);
    if (error)
        fail("remove", path);
}

std::optional<std::vector<std::byte>> FakeFiles::bytesOf(const std::string& path) const {
    const Result<ByteBuffer, FileError> file = PosixFiles::read(path);
    if (!file)
        return std::nullopt;
    const std::span<const std::byte> bytes = file.value().bytes();
    return std::vector<std::byte>(bytes.begin(), bytes.end());
}

std::optional<std::string> FakeFiles::textOf(const std::string& path) const {
    const Result<ByteBuffer, FileError> file = PosixFiles::read(path);
    if (!file)
        return std::nullopt;
    std::string text(file.value().size(), '\0');
    std::ranges::copy(file.value().bytes(), std::as_writable_bytes(std::span(text)).begin());
    return text;
}

Result<ByteBuffer, FileError> FakeFiles::read(const std::string& path) const {
    if (const std::optional<FileError> error = takeFailure(readFailures_))
        return *error;
    return PosixFiles::read(path);
}

Result<std::unique_ptr<FileReader>, FileError> FakeFiles::openForReading(const std::string& path) const {
    if (const std::optional<FileError> error = takeFailure(readFailures_))
        return *error;
    return PosixFiles::openForReading(path);
}

std::optional<FileError> FakeFiles::writePieces(const std::string& path, FilePieces pieces) {
    std::optional<FileError> error = takeFailure(writeFailures_);
    if (!error)
        error = PosixFiles::writePieces(path, pieces);
    if (!error)
        written_.push_back(path);
    return error;
}

std::string FakeFiles::displayPath(const std::string& path) const {
    return showHostPaths_ ? PosixFiles::displayPath(path) : path;
}

std::optional<std::string> FakeFiles::driveFolder(char letter) const {
    const auto drive = drives_.find(smallLetter(letter));
    if (drive == drives_.end())
        return std::nullopt;
    return drive->second;
}

} // namespace dyeworks
