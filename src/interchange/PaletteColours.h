#pragma once

#include "platform/Picture.h"

#include <string>
#include <vector>

namespace dyeworks {

/// Colours as a palette file has them.
struct PaletteColours {
    std::string name; ///< UTF-8; empty when the file has none.
    std::vector<Colour> colours;
    bool hasAlpha = false; ///< Whether the file says anything about alpha. Without, all are opaque.
};

} // namespace dyeworks
