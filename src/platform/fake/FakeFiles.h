#pragma once

#include "platform/fake/ScratchFolder.h"
#include "platform/posix/PosixFiles.h"

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// The real file system in a scratch folder of its own: "c:" is mapped to an empty folder in it and is the
/// current directory, the program's folder is "c:\program\", every other drive holds nothing until it is
/// mapped. Host paths ("\tmp\...") work as well. The folder goes with the object.
class FakeFiles final : private ScratchFolder, public PosixFiles {
public:
    FakeFiles();

    /// Maps a drive to a folder of its own in the scratch folder, made where there is none.
    void mapDrive(char letter);

    /// Host path of the scratch folder, without a trailing "/".
    [[nodiscard]] const std::string& hostFolder() const noexcept { return ScratchFolder::path(); }

    /// Puts a file there, with the folders above it, past failures asked for below. Ends the program when
    /// that cannot be done.
    void putFile(const std::string& path, std::span<const std::byte> bytes);
    void putFile(const std::string& path, std::string_view bytes);
    /// Makes a folder and those above it.
    void createDirectory(const std::string& path);
    /// Removes a file, or a folder with all in it.
    void remove(const std::string& path);

    /// Contents of a file, past failures asked for below; nothing when it cannot be read.
    [[nodiscard]] std::optional<std::vector<std::byte>> bytesOf(const std::string& path) const;
    [[nodiscard]] std::optional<std::string> textOf(const std::string& path) const;

    /// The next read or write of the program fails with `error` and touches nothing. Several calls let as
    /// many fail, in this order.
    void failNextRead(FileError error) { readFailures_.push_back(error); }
    void failNextWrite(FileError error) { writeFailures_.push_back(error); }

    /// Paths that the program wrote with success, as it gave them, oldest first.
    [[nodiscard]] const std::vector<std::string>& written() const noexcept { return written_; }

    /// `displayPath` gives paths back unchanged, so that messages are the same in every scratch folder,
    /// until it is told to show the host's form.
    void showHostPaths(bool show) { showHostPaths_ = show; }

    void setProgramFolder(const std::string& path) { programFolder_ = path; }

    [[nodiscard]] Result<ByteBuffer, FileError> read(const std::string& path) const override;
    [[nodiscard]] Result<std::unique_ptr<FileReader>, FileError>
    openForReading(const std::string& path) const override;
    [[nodiscard]] std::optional<FileError> writePieces(const std::string& path, FilePieces pieces) override;
    [[nodiscard]] std::string programFolder() const override { return programFolder_; }
    [[nodiscard]] std::string displayPath(const std::string& path) const override;

private:
    [[nodiscard]] std::optional<std::string> driveFolder(char letter) const;

    std::map<char, std::string> drives_; // By small letter.
    // Reading is const to the program, and still uses up a failure.
    mutable std::deque<FileError> readFailures_;
    std::deque<FileError> writeFailures_;
    std::vector<std::string> written_;
    std::string programFolder_ = "c:\\program\\";
    bool showHostPaths_ = false;
};

} // namespace dyeworks
