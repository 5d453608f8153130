#include "paint/ViewRenderer.h"

#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cstddef>

namespace dyeworks {

namespace {

/// Texels from one grid line to the next.
constexpr std::int32_t kGridTexels = 8;
/// Side of the pattern that grid lines are drawn with; it repeats from the logical origin on.
constexpr std::int32_t kPatternSide = 8;
constexpr std::uint32_t kWhite = 0x00ffffff;

Rect intersection(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

bool isEmpty(const Rect& area) {
    return area.left >= area.right || area.top >= area.bottom;
}

std::uint32_t* pixelAt(const Surface& surface, std::int32_t x, std::int32_t y) {
    return surface.pixels + (y - surface.originY) * surface.stride + (x - surface.originX);
}

void fill(const Surface& surface, const Rect& area, std::uint32_t colour) {
    for (std::int32_t y = area.top; y < area.bottom; ++y)
        std::fill_n(pixelAt(surface, area.left, y), std::max(area.right - area.left, 0), colour);
}

/// The first number from `from` on that leaves `rest` when divided by `period`; none is negative.
std::int32_t firstFrom(std::int32_t from, std::int32_t rest, std::int32_t period) {
    return from + (rest - from % period + period) % period;
}

} // namespace

ViewRenderer::ViewRenderer(const TextureCanvas& canvas, const ViewLook& look)
    : canvas_(canvas)
    , look_(look) {}

void ViewRenderer::draw(Surface& surface, const Rect& area) const {
    const Rect reach{surface.originX, surface.originY, surface.originX + surface.width,
                     surface.originY + surface.height};
    const Rect visible = intersection(area, reach);
    if (isEmpty(visible))
        return;

    const Rect content{0, 0, canvas_.width() * look_.zoom, canvas_.height() * look_.zoom};
    const Rect image = intersection(visible, content);
    if (look_.noPalette || isEmpty(image)) {
        fill(surface, visible, look_.outsideColour);
        return;
    }
    fill(surface, {visible.left, visible.top, visible.right, image.top}, look_.outsideColour);
    fill(surface, {visible.left, image.top, image.left, image.bottom}, look_.outsideColour);
    fill(surface, {image.right, image.top, visible.right, image.bottom}, look_.outsideColour);
    fill(surface, {visible.left, image.bottom, visible.right, visible.bottom}, look_.outsideColour);
    drawImage(surface, image);
    if (look_.gridShown)
        drawGrid(surface, image);
}

void ViewRenderer::drawImage(Surface& surface, const Rect& area) const {
    // Whole texels are drawn; a surface of exactly the area cuts them at its edges.
    Surface part = surface;
    part.pixels = pixelAt(surface, area.left, area.top);
    part.width = area.right - area.left;
    part.height = area.bottom - area.top;
    part.originX = area.left;
    part.originY = area.top;

    const std::int32_t zoom = look_.zoom;
    const Rect texels{area.left / zoom, area.top / zoom, std::min(area.right / zoom + 1, canvas_.width()),
                      std::min(area.bottom / zoom + 1, canvas_.height())};
    canvas_.Draw(part, {texels.left * zoom, texels.top * zoom, texels.right * zoom, texels.bottom * zoom},
                 texels);
}

void ViewRenderer::drawGrid(Surface& surface, const Rect& area) const {
    // The pen draws where its pattern is white and merges with what is there. At zoom 1 the pattern has one
    // white pixel at its corner, at larger zooms it is a checkerboard that is white where x + y is odd. Lines
    // lie at multiples of its side, so along each line the white pixels are the same.
    const std::int32_t step = kGridTexels * look_.zoom;
    const std::int32_t period = look_.zoom == 1 ? kPatternSide : 2;
    const std::int32_t rest = look_.zoom == 1 ? 0 : 1;

    const std::int32_t firstX = firstFrom(area.left, rest, period);
    const std::int32_t firstY = firstFrom(area.top, rest, period);
    for (std::int32_t x = firstFrom(std::max(area.left, 1), 0, step); x < area.right; x += step) {
        for (std::int32_t y = firstY; y < area.bottom; y += period)
            *pixelAt(surface, x, y) |= kWhite;
    }
    for (std::int32_t y = firstFrom(std::max(area.top, 1), 0, step); y < area.bottom; y += step) {
        for (std::int32_t x = firstX; x < area.right; x += period)
            *pixelAt(surface, x, y) |= kWhite;
    }
}

} // namespace dyeworks
