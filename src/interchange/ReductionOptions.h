#pragma once

#include "core/ColourType.h"

#include <cstdint>
#include <vector>

namespace dyeworks {

enum class Dither { None, Ordered, ErrorDiffusion };

/// An entry that the reduction leaves as it is and where it is, but uses like the others.
struct LockedEntry {
    std::int32_t index = 0; ///< 0 to `colours` - 1.
    std::uint16_t entry = 0;
};

struct ReductionOptions {
    ColourType colourType = ColourType::Rgba;
    std::int32_t colours = 256; ///< Entries of the new palette, locked ones included: 1 to 256.
    std::vector<LockedEntry> locked;
    std::int32_t alphaThreshold = 128; ///< RGBA: pixels of less alpha, 0 to 256, become transparent.
    Dither dither = Dither::None;
};

} // namespace dyeworks
