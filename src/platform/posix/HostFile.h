#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace dyeworks {

/// What an error number of the host means to a person.
FileError fileErrorFrom(int errorNumber);

/// The whole of a regular file. `path` is a host path.
Result<ByteBuffer, FileError> readHostFile(const std::string& path);

/// A regular file, open at its start. `path` is a host path.
Result<std::unique_ptr<FileReader>, FileError> openHostFile(const std::string& path);

/// Whether a file that was written outlives a crash of the whole machine: waiting for the disk costs more
/// than making a file that can be made again.
enum class Flush { Yes, No };

/// Replaces the file in one step or leaves it as it was. `path` is a host path; symbolic links are followed
/// and stay. Devices and pipes are written into, since there is nothing beside them to put in their place.
[[nodiscard]] std::optional<FileError> writeHostFile(const std::string& path, FilePieces pieces,
                                                     Flush flush = Flush::Yes);

} // namespace dyeworks
