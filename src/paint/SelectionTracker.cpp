#include "paint/SelectionTracker.h"

#include "paint/SurfaceDrawing.h"

namespace dyeworks {

std::array<Rect, 8> SelectionTracker::handles() const {
    const std::int32_t width = frame_.right - frame_.left;
    const std::int32_t height = frame_.bottom - frame_.top;
    const std::int32_t side = std::clamp(std::min(width, height) / 3, 0, kHandleSide);
    const std::int32_t middleX = frame_.left + (width - side) / 2;
    const std::int32_t middleY = frame_.top + (height - side) / 2;
    const std::int32_t endX = frame_.right - side;
    const std::int32_t endY = frame_.bottom - side;
    const auto at = [side](std::int32_t x, std::int32_t y) { return Rect{x, y, x + side, y + side}; };
    return {at(frame_.left, frame_.top), at(endX, frame_.top), at(endX, endY),    at(frame_.left, endY),
            at(middleX, frame_.top),     at(endX, middleY),    at(middleX, endY), at(frame_.left, middleY)};
}

TrackerHit SelectionTracker::hitTest(Point point) const {
    const auto isIn = [point](const Rect& area) {
        return point.x >= area.left && point.x < area.right && point.y >= area.top && point.y < area.bottom;
    };
    if (!isIn(frame_))
        return TrackerHit::None;
    const std::array<Rect, 8> areas = handles();
    const auto* const handle = std::find_if(areas.begin(), areas.end(), isIn);
    return static_cast<TrackerHit>(handle - areas.begin());
}

void SelectionTracker::draw(const Surface& surface, const Rect& clip) const {
    if ((style_ & kDottedLine) != 0) {
        drawOutline(surface, frame_, clip, [](std::int32_t x, std::int32_t y, std::uint32_t& pixel) {
            if (((x + y) & 1) == 0)
                pixel = kBlack;
        });
    }
    if ((style_ & kResizeInside) != 0) {
        for (const Rect& handle : handles()) {
            fillArea(surface, intersection(handle, clip), kBlack);
            fillArea(surface, intersection(grown(handle, -1), clip), kWhite);
        }
    }
}

} // namespace dyeworks
