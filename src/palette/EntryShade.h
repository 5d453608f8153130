#pragma once

#include "core/ColourType.h"

#include <cstdint>

namespace dyeworks {

/// The colour of an entry, as images show it, the way the eye orders colours.
struct EntryShade {
    double lightness = 0; ///< CIE 1976 L*, 0 (black) to 100.
    double chroma = 0;    ///< C*ab; 0 is a grey.
    double hue = 0;       ///< h_ab in degrees, 0 to 360, from red by yellow, green and blue.
};

/// From sRGB (IEC 61966-2-1) by XYZ with the white D65 to CIELAB and its polar form (CIE 15:2004). Alpha does
/// not count.
[[nodiscard]] EntryShade shadeOf(ColourType type, std::uint16_t entry);

} // namespace dyeworks
