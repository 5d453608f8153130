#pragma once

#include "paint/CanvasTransform.h"
#include "paint/Rect.h"

#include <cstdint>
#include <variant>

namespace dyeworks {

// What is done to a whole image after asking how; the user is shown one with what is proposed, and gives one
// of the same kind back.

struct ResizeCanvas {
    Size size;
    Anchor anchor = Anchor::Middle;
    std::uint32_t fill = 0; ///< Index of the texels that are added.
};

struct ScaleImage {
    Size size;
};

struct ShiftImage {
    Point by;
};

/// From 8 bits to 4.
struct ReduceDepth {
    std::int32_t bank = 0;
    std::int32_t banks = 16; ///< That there are to choose from.
};

using ImageWork = std::variant<ResizeCanvas, ScaleImage, ShiftImage, ReduceDepth>;

} // namespace dyeworks
