#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace dyeworks {

/// What a file holds.
enum class FileKind {
    Unknown,
    Image,   ///< TMF
    Palette, ///< TLF
    Project, ///< TPF
    Png,
    Bitmap,
    Jpeg,
    PaletteFile ///< Of another program; not a PNG.
};

/// From its first bytes, and from its name where those say nothing (projects, ".act", ".hex").
[[nodiscard]] FileKind kindOf(std::span<const std::byte> file, const std::string& name);

} // namespace dyeworks
