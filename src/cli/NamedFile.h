#pragma once

#include "platform/ByteBuffer.h"
#include "platform/Files.h"
#include "platform/Result.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace dyeworks {

// Files as arguments name them: in the host's form, with any characters, and "-" for a standard stream.

inline constexpr const char* kStandardStream = "-";

/// The whole file, be it a pipe.
[[nodiscard]] Result<ByteBuffer, FileError> readNamed(const std::string& name);

/// Replaces the file in one step or leaves it as it was; a stream is written into. Nothing: written.
[[nodiscard]] std::optional<FileError> writeNamed(const std::string& name, std::span<const std::byte> bytes);

[[nodiscard]] bool isFolder(const std::string& name);
/// Of whatever kind that is no folder.
[[nodiscard]] bool isFile(const std::string& name);

/// Makes the folder, and those that it stands in, unless it is there. Nothing: it is.
[[nodiscard]] std::optional<FileError> makeFolder(const std::string& name);

/// The last part of a name.
[[nodiscard]] std::string lastPartOf(const std::string& name);
/// "png" of "a/sky.PNG": what follows the last full stop of the last part, in small letters, unless that
/// begins it.
[[nodiscard]] std::string endingOf(const std::string& name);
/// The last part without what `endingOf` gives and its full stop.
[[nodiscard]] std::string stemOf(const std::string& name);
[[nodiscard]] std::string inFolder(const std::string& folder, const std::string& name);

[[nodiscard]] std::span<const std::byte> bytesOf(const std::string& text);

} // namespace dyeworks
