#include "paint/Brush.h"

#include <algorithm>

namespace dyeworks {

namespace {

/// How many texels are missing at both ends of a row of a disc, from the square around it. A texel belongs to
/// the disc when its centre is within a radius that falls short of half the size by an eighth: with the half
/// itself, one of 3 texels would be a square.
std::int32_t missingAtEnds(std::int32_t size, std::int32_t row) {
    // In halves of a texel from the middle, the radius in eighths.
    const std::int32_t radius = 4 * size - 1;
    const std::int32_t y = 2 * row - (size - 1);
    std::int32_t missing = 0;
    for (std::int32_t x = size - 1; 16 * (x * x + y * y) > radius * radius; x -= 2)
        ++missing;
    return missing;
}

} // namespace

BrushSpot::BrushSpot(const Brush& brush) {
    const std::int32_t size = std::clamp(brush.size, 1, Brush::kMaxSize);
    for (std::int32_t row = 0; row < size; ++row) {
        const std::int32_t missing = brush.round ? missingAtEnds(size, row) : 0;
        const std::int32_t y = row - brush.before();
        const Rect box{missing - brush.before(), y, brush.after() - missing, y};
        if (count_ > 0 && boxes_[count_ - 1].left == box.left)
            boxes_[count_ - 1].bottom = y;
        else
            boxes_[count_++] = box;
    }
}

} // namespace dyeworks
