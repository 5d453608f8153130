#pragma once

#include "paint/Rect.h"
#include "paint/Surface.h"

#include <array>
#include <cstdint>

namespace dyeworks {

/// What of a selection a point lies on.
enum class TrackerHit {
    None = -1,
    TopLeft = 0,
    TopRight = 1,
    BottomRight = 2,
    BottomLeft = 3,
    Top = 4,
    Right = 5,
    Bottom = 6,
    Left = 7,
    Inside = 8
};

/// The frame around a selection that can be dragged: a dotted outline, and handles inside it.
class SelectionTracker {
public:
    // Bits of the style.
    static constexpr std::uint32_t kDottedLine = 2;
    static constexpr std::uint32_t kResizeInside = 8;

    /// Side of a handle in pixels. Three of them always fit along a side: in a small frame they are smaller,
    /// and in the smallest there are none.
    static constexpr std::int32_t kHandleSide = 5;

    /// `frame`: right and bottom exclusive. An empty one shows nothing.
    SelectionTracker(const Rect& frame, std::uint32_t style)
        : frame_(frame)
        , style_(style) {}

    /// Top left, top right, bottom right, bottom left, top, right, bottom, left; right and bottom exclusive.
    [[nodiscard]] std::array<Rect, 8> handles() const;

    /// A handle comes before the inside, and the first in their order before the others.
    [[nodiscard]] TrackerHit hitTest(Point point) const;

    /// Draws what lies in `clip`, all of which is on the surface. Of the outline, the pixels whose x + y is
    /// even are black and the others are left as they are. Handles are white with a black border.
    void draw(const Surface& surface, const Rect& clip) const;

private:
    Rect frame_;
    std::uint32_t style_;
};

} // namespace dyeworks
