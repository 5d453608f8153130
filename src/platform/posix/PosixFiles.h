#pragma once

#include "platform/Files.h"
#include "platform/ProgramPath.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>

namespace dyeworks {

/// The file system of a POSIX host. "\home\kei\sky.tlf" is the host's "/home/kei/sky.tlf"; a drive is the
/// host folder that the look-up names; a server ("\\server\share") holds nothing. What only asks and reads
/// may be called on any thread, if the look-up may be.
class PosixFiles : public Files {
public:
    /// The absolute host folder that a drive stands for, or nothing when it is not mapped. Asked at every
    /// use, so a changed mapping takes effect at once. `letter` comes as it stands in the path, in
    /// either case; any other answer than an absolute path counts as not mapped.
    using DriveLookup = std::function<std::optional<std::string>(char letter)>;

    /// `programFolder` is the host folder of the running program.
    PosixFiles(DriveLookup drives, std::string programFolder);

    [[nodiscard]] std::string fullPath(const std::string& path) const override;
    [[nodiscard]] std::string currentDirectory() const override;
    bool setCurrentDirectory(const std::string& path) override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] bool isDirectory(const std::string& path) const override;
    [[nodiscard]] std::optional<FileStamp> stamp(const std::string& path) const override;
    [[nodiscard]] std::vector<FileEntry> enumerate(const std::string& pattern) const override;
    [[nodiscard]] Result<ByteBuffer, FileError> read(const std::string& path) const override;
    [[nodiscard]] Result<std::unique_ptr<FileReader>, FileError>
    openForReading(const std::string& path) const override;
    [[nodiscard]] std::optional<FileError> writePieces(const std::string& path, FilePieces pieces) override;
    void setSafetyCopies(SafetyCopies* copies) override { safetyCopies_ = copies; }
    [[nodiscard]] std::string programFolder() const override;
    [[nodiscard]] std::string shortPath(const std::string& path) const override;
    /// Empty when `path` is empty or stands on a server or a drive that is not mapped.
    [[nodiscard]] std::string hostPath(const std::string& path) const override;
    [[nodiscard]] std::string fromHostPath(const std::string& hostPath) const override;
    /// The host's form of a path with a root; a path that names nothing here, and a plain name, stay as
    /// they are but for the separators of a relative one.
    [[nodiscard]] std::string displayPath(const std::string& path) const override;

protected:
    /// A file has been written.
    void tellWritten() const;
    /// As `displayPath`, but no file system is asked: a name that exists may be spelt otherwise.
    [[nodiscard]] std::string unaskedDisplayPath(const std::string& path) const;
    /// Writes over the file at `host`, `path` in the host's form, where `error` says that it is its folder
    /// that takes no other; else nothing is done but to return `error`.
    [[nodiscard]] std::optional<FileError> writeInPlace(const std::string& path, const std::string& host,
                                                        FilePieces pieces, FileError error);

private:
    enum class Spelling { AsGiven, AsOnDisk };
    [[nodiscard]] std::string hostPathOf(const ProgramPath& path, Spelling spelling) const;
    [[nodiscard]] std::string displayPath(const std::string& path, Spelling spelling) const;
    [[nodiscard]] std::optional<std::string> hostRootOf(const ProgramPath& path) const;

    DriveLookup drives_;
    SafetyCopies* safetyCopies_ = nullptr;
    std::string programFolder_;
    mutable std::mutex directoryMutex_;
    // In the program's form, because it may lie on a drive, which the host's own one does not remember.
    std::string currentDirectory_ = "\\";
};

} // namespace dyeworks
