#include "ui/sheets/ScaledSides.h"

#include "paint/CanvasTransform.h"

#include <algorithm>

namespace dyeworks {

namespace {

std::int32_t held(std::int64_t side) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(side, 1, kLongestSide));
}

std::int32_t inRatio(std::int64_t side, std::int64_t from, std::int64_t to) {
    return held((2 * side * to + from) / (2 * from));
}

} // namespace

std::int32_t ScaledSides::heightFor(std::int32_t width) const {
    return inRatio(width, image_.width, image_.height);
}

std::int32_t ScaledSides::widthFor(std::int32_t height) const {
    return inRatio(height, image_.height, image_.width);
}

Size ScaledSides::times(std::int32_t factor) const {
    const auto side = [factor](std::int64_t of) { return held(factor < 0 ? of / -factor : of * factor); };
    return {side(image_.width), side(image_.height)};
}

} // namespace dyeworks
