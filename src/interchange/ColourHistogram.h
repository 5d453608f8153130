#pragma once

#include "core/ColourType.h"
#include "interchange/PerceptualSpace.h"
#include "platform/Picture.h"

#include <cstdint>
#include <vector>

namespace dyeworks {

class WorkProgress;

/// The pixels that one entry shows best.
struct ColourCell {
    std::uint16_t entry = 0;
    float weight = 0;  ///< How many they are.
    ColourPoint point; ///< Of their mean, which is not the entry's.
};

struct ColourHistogram {
    std::vector<ColourCell> cells; ///< Of the visible pixels, by entry.
    bool transparent = false;      ///< Whether there are pixels besides them.
};

/// Whether an RGBA palette shows the pixel as transparent. An IA palette has no need to.
[[nodiscard]] constexpr bool isTransparent(ColourType type, Colour colour,
                                           std::int32_t alphaThreshold) noexcept {
    return type == ColourType::Rgba && colour.alpha < alphaThreshold;
}

/// Not complete when the progress was stopped. Throws bad_alloc.
[[nodiscard]] ColourHistogram histogramOf(const Picture& picture, ColourType type,
                                          std::int32_t alphaThreshold, WorkProgress& progress);

} // namespace dyeworks
