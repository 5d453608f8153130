#include "paint/TexelCursor.h"

#include "paint/SurfaceDrawing.h"

#include <algorithm>

namespace dyeworks {

namespace {

/// Pixels within the lines at least, so that they stay apart where a texel is small.
constexpr std::int32_t kSmallestInside = 7;

/// Pixels of each of the two colours around the inside.
std::int32_t lineWidth(bool holdsTool) {
    return holdsTool ? 2 : 1;
}

} // namespace

void TexelCursor::showAt(Point texel, Size image) {
    const Point inside{std::clamp(texel.x, 0, std::max(image.width - 1, 0)),
                       std::clamp(texel.y, 0, std::max(image.height - 1, 0))};
    dragged_ = dragged_ || texel_ != inside;
    texel_ = inside;
    shown_ = true;
}

void TexelCursor::hide() {
    shown_ = held_ = false;
}

std::optional<Point> TexelCursor::walked(Point texel, const KeyEvent& key, Size image) {
    const std::int32_t step = key.control ? kFarStep : 1;
    switch (key.key) {
    case Key::Left:
        texel.x -= step;
        break;
    case Key::Right:
        texel.x += step;
        break;
    case Key::Up:
        texel.y -= step;
        break;
    case Key::Down:
        texel.y += step;
        break;
    case Key::Home:
        texel.x = 0;
        break;
    case Key::End:
        texel.x = image.width - 1;
        break;
    case Key::PageUp:
        texel.y = 0;
        break;
    case Key::PageDown:
        texel.y = image.height - 1;
        break;
    default:
        return std::nullopt;
    }
    return Point{std::clamp(texel.x, 0, image.width - 1), std::clamp(texel.y, 0, image.height - 1)};
}

void TexelCursor::press(const KeyEvent& key) {
    held_ = true;
    dragged_ = false;
    control_ = key.control;
    centred_ = key.shift;
}

PointerEvent TexelCursor::eventAt(Point client, PointerButton button) const {
    return {client, false, control_, centred_, button};
}

Rect texelCursorArea(const Rect& texel, Size content, bool holdsTool) {
    const auto missing = [](std::int32_t side) { return std::max(kSmallestInside - side, 0); };
    const std::int32_t across = missing(texel.right - texel.left);
    const std::int32_t down = missing(texel.bottom - texel.top);
    const Rect inside{texel.left - across / 2, texel.top - down / 2, texel.right + across - across / 2,
                      texel.bottom + down - down / 2};
    return intersection(grown(inside, 2 * lineWidth(holdsTool)), {0, 0, content.width, content.height});
}

void drawTexelCursor(const Surface& surface, const Rect& area, bool holdsTool) {
    const std::int32_t width = lineWidth(holdsTool);
    for (std::int32_t line = 0; line < 2 * width; ++line) {
        const std::uint32_t colour = line < width ? kBlack : kWhite;
        drawOutline(surface, grown(area, -line), reachOf(surface),
                    [colour](std::int32_t, std::int32_t, std::uint32_t& pixel) { pixel = colour; });
    }
}

} // namespace dyeworks
