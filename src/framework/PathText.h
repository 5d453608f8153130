#pragma once

#include <string>
#include <string_view>

namespace dyeworks {

/// The part of a path behind its last separator.
[[nodiscard]] std::string_view fileNameOf(std::string_view path);

/// The extension of a path's file with its full stop, or "". Full stops in folder names do not count.
[[nodiscard]] std::string_view extensionOf(std::string_view path);

/// Shortens a path to at most `maxLength` characters. Folders behind the first one give way to "...", as few
/// as will do: "\home\...\tex\sky.tlf". When that is still too long the file name alone remains, and a file
/// name that is too long is cut in its middle.
[[nodiscard]] std::string abbreviatedPath(const std::string& path, std::size_t maxLength);

} // namespace dyeworks
