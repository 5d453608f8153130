#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace dyeworks {

/// What an error number of the host means to a person.
FileError fileErrorFrom(int errorNumber);

/// The whole of a regular file. `path` is a host path.
Result<ByteBuffer, FileError> readHostFile(const std::string& path);

/// A file of which not every byte needs to be read.
class HostFileReader : public FileReader {
public:
    /// Reading goes on so many bytes further, be it behind the end. False: the file cannot do that.
    [[nodiscard]] virtual bool skip(std::uint64_t size) = 0;
};

/// A regular file, open at its start. `path` is a host path.
Result<std::unique_ptr<HostFileReader>, FileError> openHostFile(const std::string& path);

/// Whether a file that was written outlives a crash of the whole machine: waiting for the disk costs more
/// than making a file that can be made again.
enum class Flush { Yes, No };

/// Replaces the file in one step or leaves it as it was. `path` is a host path; symbolic links are followed
/// and stay. Devices and pipes are written into, since there is nothing beside them to put in their place.
[[nodiscard]] std::optional<FileError> writeHostFile(const std::string& path, FilePieces pieces,
                                                     Flush flush = Flush::Yes);

/// Whether a file that could not be replaced for this reason may still be written: it is a regular one, and
/// it is its folder that takes no other.
[[nodiscard]] bool takesNothingButContents(const std::string& path, FileError why);

/// Writes over what the file holds, which is lost where that breaks off. Room for a longer file is taken
/// before anything is overwritten. `path` is as above; `torn` tells whether the file was touched.
[[nodiscard]] std::optional<FileError> writeIntoHostFile(const std::string& path, FilePieces pieces,
                                                         bool& torn);

} // namespace dyeworks
