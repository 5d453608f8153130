#pragma once

#include "cli/RenderedPicture.h"
#include "paint/Rect.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

class CTPFFile;

/// How the pictures of a project lie beside each other.
struct SheetLook {
    std::int32_t columns = 0; ///< 0: as many as make it about as wide as high.
    std::int32_t side = 64;   ///< Of the square that each picture just fits into, in pixels.
};

/// A picture that a sheet lacks.
struct MissingPicture {
    std::string file;
    std::string why;
};

/// All pictures of a project in its order, each in its colours and in the middle of its square; smaller ones
/// are enlarged. Of one that cannot be read the square stays empty. Otherwise a sentence for the user.
[[nodiscard]] Result<PixelSheet, std::string> contactSheet(const CTPFFile& project, const SheetLook& look,
                                                           std::vector<MissingPicture>& missing);

} // namespace dyeworks
