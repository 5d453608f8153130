#pragma once

#include "project/ProjectRepair.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CTPFFile;

/// An image and the palette of its name, and what their picture would be called.
struct TexturePair {
    std::string picture;
    std::string image; ///< Full paths.
    std::string palette;
    bool accepted = true;
};

struct FolderPictures {
    std::vector<TexturePair> pairs; ///< By the image's name.
    // Images that were left out.
    std::size_t known = 0;          ///< Pictures of the project have them.
    std::size_t withoutPalette = 0; ///< No palette has their name.
    std::size_t notHeld = 0;        ///< The project cannot hold their names.
};

/// The images of the folder, not of those below it, that the project does not have yet and that have a
/// palette of their name beside them or in the project's folders.
[[nodiscard]] FolderPictures picturesOfFolder(const CTPFFile& project, const std::string& folder);

/// The pair that a file, of an image or a palette, is half of. Nothing when there is no other half, and when
/// the project cannot hold it.
[[nodiscard]] std::optional<TexturePair> pairOf(const CTPFFile& project, const std::string& file);

/// What adds the accepted ones.
[[nodiscard]] ProjectRepair additionOf(const CTPFFile& project, const std::vector<TexturePair>& pairs);

} // namespace dyeworks
