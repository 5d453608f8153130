#pragma once

#include "paint/Rect.h"
#include "paint/Surface.h"

#include <algorithm>
#include <cstdint>

// Drawing on a surface, in its coordinates. Rectangles have right and bottom exclusive; what is drawn must
// lie on the surface.
namespace dyeworks {

inline constexpr std::uint32_t kBlack = 0xff000000;
inline constexpr std::uint32_t kWhite = 0xffffffff;

[[nodiscard]] inline Rect grown(const Rect& area, std::int32_t by) {
    return {area.left - by, area.top - by, area.right + by, area.bottom + by};
}

/// Everything that has a place on the surface.
[[nodiscard]] inline Rect reachOf(const Surface& surface) {
    return {surface.originX, surface.originY, surface.originX + surface.width,
            surface.originY + surface.height};
}

[[nodiscard]] inline std::uint32_t* pixelAt(const Surface& surface, std::int32_t x, std::int32_t y) {
    return surface.pixels + (y - surface.originY) * surface.stride + (x - surface.originX);
}

/// A surface that is the area of another one, for drawing that is to be cut at its edges.
[[nodiscard]] inline Surface partOf(const Surface& surface, const Rect& area) {
    return {pixelAt(surface, area.left, area.top),
            area.right - area.left,
            area.bottom - area.top,
            surface.stride,
            area.left,
            area.top};
}

inline void fillArea(const Surface& surface, const Rect& area, std::uint32_t colour) {
    for (std::int32_t y = area.top; y < area.bottom; ++y)
        std::fill_n(pixelAt(surface, area.left, y), std::max(area.right - area.left, 0), colour);
}

/// Calls `draw(x, y, pixel)` for the pixels in `clip` of an outline one pixel wide along the inside of
/// `area`.
template <typename Draw>
void drawOutline(const Surface& surface, const Rect& area, const Rect& clip, Draw draw) {
    if (isEmpty(area))
        return;
    const auto drawPart = [&](const Rect& part) {
        const Rect shown = intersection(part, clip);
        for (std::int32_t y = shown.top; y < shown.bottom; ++y) {
            for (std::int32_t x = shown.left; x < shown.right; ++x)
                draw(x, y, *pixelAt(surface, x, y));
        }
    };
    const std::int32_t innerTop = std::min(area.top + 1, area.bottom);
    const std::int32_t innerBottom = std::max(area.bottom - 1, innerTop);
    drawPart({area.left, area.top, area.right, innerTop});
    drawPart({area.left, innerBottom, area.right, area.bottom});
    drawPart({area.left, innerTop, std::min(area.left + 1, area.right), innerBottom});
    drawPart({std::max(area.right - 1, area.left + 1), innerTop, area.right, innerBottom});
}

} // namespace dyeworks
