#pragma once

#include "project/PictureEntry.h"

#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// What becomes of a picture.
struct PictureChange {
    std::string name; ///< A new one is added behind all others.
    /// File names as the project keeps them. Nothing: the picture is removed.
    std::optional<PictureEntry> entry;
};

/// A change of a project that is made in one go.
struct ProjectRepair {
    std::vector<PictureChange> pictures;
    std::optional<std::string> imageDirectories; ///< Nothing: they stay.
    std::optional<std::string> paletteDirectories;
};

} // namespace dyeworks
