#pragma once

#include <cstdint>
#include <string>

namespace dyeworks {

/// A picture of a project: an image and the palette that it is shown with.
struct PictureEntry {
    std::string tmfFile; ///< Relative to the project's image directory, or absolute.
    std::string tlfFile; ///< Relative to the project's palette directory, or absolute.
    std::int32_t paletteNo = 0;

    bool operator==(const PictureEntry&) const = default;
};

} // namespace dyeworks
