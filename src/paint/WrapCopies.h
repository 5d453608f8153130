#pragma once

#include "paint/Range.h"
#include "paint/Rect.h"

#include <algorithm>
#include <cstdint>

// Where things come in again when opposite edges of an image touch.
namespace dyeworks {

/// Rounds down, `by` > 0.
[[nodiscard]] constexpr std::int64_t floorDivided(std::int64_t value, std::int64_t by) noexcept {
    return value / by - (value % by < 0 ? 1 : 0);
}

/// `value` moved by whole sizes into 0 to `size` - 1; `size` > 0.
[[nodiscard]] constexpr std::int64_t folded(std::int64_t value, std::int64_t size) noexcept {
    return value - floorDivided(value, size) * size;
}

/// How far, in sizes of the image, `first` to `last` are to be moved for each part of them that lies in it.
[[nodiscard]] inline Range copiesOf(std::int32_t first, std::int32_t last, std::int32_t size) {
    return {-floorDivided(last, size), -floorDivided(first, size)};
}

/// Calls `visit` with the way from a place (right and bottom inside) to each place where what is put there
/// shows in an image of this size, its own included, in the order in which they cover each other. Where there
/// are many in a direction, the last but one covers the image already.
template <typename Visit>
void forEachWrapCopy(const Rect& place, Size image, Visit visit) {
    if (image.width <= 0 || image.height <= 0)
        return;
    const Range across = copiesOf(place.left, place.right, image.width);
    const Range down = copiesOf(place.top, place.bottom, image.height);
    for (std::int64_t row = std::max(down.first, down.last - 1); row <= down.last; ++row) {
        for (std::int64_t column = std::max(across.first, across.last - 1); column <= across.last; ++column)
            visit(Point{static_cast<std::int32_t>(column * image.width),
                        static_cast<std::int32_t>(row * image.height)});
    }
}

} // namespace dyeworks
