#pragma once

#include "platform/ByteBuffer.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// Section of the settings with the host folders that drives stand for, an entry "c:" for each.
inline constexpr const char* kDriveSection = "Drives";

/// Why a file could not be read or written, in terms that a person can act on.
enum class FileError {
    NotFound,     ///< The file, its folder or its drive does not exist.
    AccessDenied, ///< Permissions forbid it.
    NotAFile,     ///< The name is that of a folder.
    NoSpace,      ///< The disk or the quota is full.
    ReadOnly,     ///< The file system is read-only.
    NameTooLong,
    TooLarge,   ///< More bytes than memory can take.
    NotRegular, ///< A device or a pipe, which holds no file.
    BrokenLink, ///< A link to a file that does not exist.
    Other
};

/// A short sentence for `error` in the user's language ("There is no space left on the disk.").
std::string describe(FileError error);
/// What can be done when a file could not be read, in a sentence or two.
std::string adviceOnOpening(FileError error);
/// The same of a file that could not be written, and that nothing is lost.
std::string adviceOnSaving(FileError error);

struct FileEntry {
    std::string name; ///< Without folder.
    bool directory = false;
};

/// What tells a version of a file from most others without reading it.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t identity = 0; ///< Of the file on its device; another one when it was replaced.
    std::uint64_t size = 0;     ///< In bytes.
    std::int64_t time = 0;      ///< Of its last change, in nanoseconds since 1970 (UTC).

    bool operator==(const FileStamp&) const = default;
};

/// Parts of a file's contents, in their order.
using FilePieces = std::span<const std::span<const std::byte>>;

/// A file that is open for reading, for readers that want to put its bytes where they belong instead of
/// taking a copy of the whole.
class FileReader {
public:
    virtual ~FileReader() = default;

    /// Bytes in the file when it was opened.
    [[nodiscard]] virtual std::uint64_t size() const = 0;

    /// Reads on until `room` is full or the file ends or cannot be read further; how many bytes came.
    [[nodiscard]] virtual std::size_t read(std::span<std::byte> room) = 0;
};

/// Keeps what is about to be written over a file that cannot be replaced in one step. Called on the thread
/// that writes.
class SafetyCopies {
public:
    virtual ~SafetyCopies() = default;

    /// A file has just been written, in whichever way.
    virtual void written() {}

    /// The file at `path` is going to hold these pieces. False: they could not be kept, and the file is left
    /// alone.
    [[nodiscard]] virtual bool keep(const std::string& path, FilePieces pieces) = 0;
    /// The file holds them, or what it held before.
    virtual void release(const std::string& path) = 0;
    /// Writing has broken off, and the file is no longer whole.
    virtual void broken(const std::string& path, FileError why) = 0;
};

/// The file system. Paths are UTF-8 with "\" between their parts; "/" is accepted and means the same. A
/// drive ("c:") stands for a host folder; paths on a drive that is not mapped name nothing. A part whose
/// exact name does not exist finds the one that differs only in case.
class Files {
public:
    virtual ~Files() = default;

    /// The absolute form of `path`: relative parts resolved against the current directory, "." and ".."
    /// and doubled separators taken out, "/" turned into "\". Purely textual, so the file need not exist.
    /// An empty path stays empty.
    [[nodiscard]] virtual std::string fullPath(const std::string& path) const = 0;

    [[nodiscard]] virtual std::string currentDirectory() const = 0;
    /// False, changing nothing, when `path` is not an existing directory.
    virtual bool setCurrentDirectory(const std::string& path) = 0;

    /// Waits until the file system answers for `path`, whether there is something or not. False: the user has
    /// stopped waiting.
    [[nodiscard]] virtual bool answers(const std::string& /*path*/) const { return true; }

    /// True for files and directories alike.
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
    [[nodiscard]] virtual bool isDirectory(const std::string& path) const = 0;

    /// Of the file that the name leads to; nothing when there is none, or it is no regular one.
    [[nodiscard]] virtual std::optional<FileStamp> stamp(const std::string& path) const = 0;

    /// The entries that match `pattern`, whose last part may hold "*" and "?" (case-blind), without "." and
    /// "..", in the order of their names. "*.*" matches every name.
    [[nodiscard]] virtual std::vector<FileEntry> enumerate(const std::string& pattern) const = 0;

    /// The whole file.
    [[nodiscard]] virtual Result<ByteBuffer, FileError> read(const std::string& path) const = 0;

    /// The file, to be read from its first byte on.
    [[nodiscard]] virtual Result<std::unique_ptr<FileReader>, FileError>
    openForReading(const std::string& path) const = 0;

    /// Replaces the file by `pieces`, one after the other, in one step, or leaves it exactly as it was: the
    /// bytes go to a temporary file in its folder, are flushed to the disk and renamed over it. Permissions
    /// survive, and a symbolic link keeps pointing at the replaced file. Temporary files in the folder whose
    /// program was killed are taken away. Nothing: written.
    ///
    /// A file that may be written in a folder that may not is written in place, once the pieces are in the
    /// safety copies; without those it is left alone.
    [[nodiscard]] virtual std::optional<FileError> writePieces(const std::string& path,
                                                               FilePieces pieces) = 0;

    /// The same for bytes that stand in one place.
    [[nodiscard]] std::optional<FileError> write(const std::string& path, std::span<const std::byte> bytes) {
        return writePieces(path, FilePieces(&bytes, 1));
    }

    /// Null: nobody keeps any. They must outlive their use.
    virtual void setSafetyCopies(SafetyCopies* copies) = 0;

    /// Folder of the running program, with a trailing "\".
    [[nodiscard]] virtual std::string programFolder() const = 0;

    /// A form of `path` without blanks where the host knows one, else `path` itself.
    [[nodiscard]] virtual std::string shortPath(const std::string& path) const = 0;

    /// `path` as the host and its users write it; what the host's own calls take. A drive is replaced by its
    /// folder, an existing name by its exact spelling. Empty when `path` can name nothing here, as on a drive
    /// that is not mapped.
    [[nodiscard]] virtual std::string hostPath(const std::string& path) const = 0;
    /// The program's form of a host path.
    [[nodiscard]] virtual std::string fromHostPath(const std::string& hostPath) const = 0;

    /// `path` as it is shown to people: in messages, titles, tool tips. "*palette" names pass unchanged.
    [[nodiscard]] virtual std::string displayPath(const std::string& path) const = 0;
};

/// `Files::displayPath` of the installed platform.
std::string displayPath(const std::string& path);

} // namespace dyeworks
