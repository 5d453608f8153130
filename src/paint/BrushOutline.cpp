#include "paint/BrushOutline.h"

#include "paint/SurfaceDrawing.h"

namespace dyeworks {

namespace {

void drawDots(const Surface& surface, const Rect& clip, const Rect& line) {
    const Rect shown = intersection(line, clip);
    for (std::int32_t y = shown.top; y < shown.bottom; ++y) {
        for (std::int32_t x = shown.left; x < shown.right; ++x)
            *pixelAt(surface, x, y) = (((x >> 1) + (y >> 1)) & 1) == 0 ? kWhite : kBlack;
    }
}

} // namespace

Rect brushOutlineArea(const Brush& brush, Point corner, std::int32_t zoom) {
    return {corner.x - brush.before() * zoom - 1, corner.y - brush.before() * zoom - 1,
            corner.x + (brush.after() + 1) * zoom + 1, corner.y + (brush.after() + 1) * zoom + 1};
}

void drawBrushOutline(const Surface& surface, const Rect& clip, const Brush& brush, Point corner,
                      std::int32_t zoom) {
    const BrushSpot spot(brush);
    const std::span<const Rect> boxes = spot.boxes();
    // The pixels around a box of texels.
    const auto around = [&](const Rect& box) {
        return Rect{corner.x + box.left * zoom - 1, corner.y + box.top * zoom - 1,
                    corner.x + (box.right + 1) * zoom, corner.y + (box.bottom + 1) * zoom};
    };
    const auto draw = [&](std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
        drawDots(surface, clip, {left, top, right + 1, bottom + 1});
    };
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const Rect box = around(boxes[i]);
        draw(box.left, box.top + 1, box.left, box.bottom - 1);
        draw(box.right, box.top + 1, box.right, box.bottom - 1);
        if (i == 0)
            draw(box.left, box.top, box.right, box.top);
        if (i + 1 == boxes.size()) {
            draw(box.left, box.bottom, box.right, box.bottom);
            continue;
        }
        // The steps to the next box, beside the narrower of the two.
        const Rect next = around(boxes[i + 1]);
        const bool widens = next.left < box.left;
        const std::int32_t y = widens ? next.top : box.bottom;
        draw(std::min(box.left, next.left), y, std::max(box.left, next.left), y);
        draw(std::min(box.right, next.right), y, std::max(box.right, next.right), y);
    }
}

} // namespace dyeworks
