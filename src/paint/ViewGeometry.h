#pragma once

#include "paint/Rect.h"

#include <array>
#include <cstdint>

namespace dyeworks {

/// Where an image lies in its view. Logical coordinates count pixels of the zoomed image from its top-left
/// corner; client coordinates count from the client area's. Content coordinates, which the view scrolls over,
/// count from the corner of everything there is to see: client coordinates plus the scroll position. That
/// corner is the image's, or, when it is repeated, the one of the copy to the left of it and above.
class ViewGeometry {
public:
    static constexpr std::int32_t kMinZoom = 1;
    static constexpr std::int32_t kMaxZoom = 16;
    /// The factors that zooming in and out steps through.
    static constexpr std::array<std::int32_t, 8> kZoomFactors{1, 2, 3, 4, 6, 8, 12, 16};

    /// A zoom outside kMinZoom to kMaxZoom is held to the nearer of them. `repeated`: the image is surrounded
    /// by its copies, 3 by 3 with itself in the middle.
    ViewGeometry(std::int32_t zoom, Size image, Size client, Point scroll, bool repeated = false);

    [[nodiscard]] static std::int32_t holdZoom(std::int32_t zoom);
    /// The zoom one step further in (out); the same zoom at the end.
    [[nodiscard]] static std::int32_t zoomedIn(std::int32_t zoom);
    [[nodiscard]] static std::int32_t zoomedOut(std::int32_t zoom);

    [[nodiscard]] std::int32_t zoom() const noexcept { return zoom_; }
    [[nodiscard]] Size contentSize() const;
    /// Content coordinates of the image's corner.
    [[nodiscard]] Point origin() const;

    /// The texel under a client point. Divides towards zero, so points up to one texel left of or above the
    /// image count as its first column or row; the result may lie outside the image. Repeated, it divides
    /// down, as there are copies on all sides.
    [[nodiscard]] Point texelAt(Point client) const;
    /// The way from the image's first texel to that of the copy which has `texel`, or is the nearest to it;
    /// none when it is not repeated.
    [[nodiscard]] Point copyAt(Point texel) const;

    /// Logical area of the texels in `texels` (inclusive); right and bottom exclusive.
    [[nodiscard]] Rect logicalArea(const Rect& texels) const;
    /// The same in client coordinates.
    [[nodiscard]] Rect clientArea(const Rect& texels) const;
    /// Logical rectangle of the frame around a selection (inclusive texels).
    [[nodiscard]] Rect selectionFrame(const Rect& texels) const;

    /// The same in client coordinates.
    [[nodiscard]] Rect clientFrame(const Rect& texels) const;

    /// The nearest scroll position that shows no more than the end of the content: never negative, and 0
    /// where the content is no larger than the client area.
    [[nodiscard]] Point clampedScroll(Point scroll) const;
    /// The scroll position that brings `texel` under the client point, as far as the content allows. A
    /// direction in which the content fits exactly keeps its position.
    [[nodiscard]] Point scrollToKeep(Point texel, Point client) const;

private:
    /// From client to logical coordinates.
    [[nodiscard]] Point shift() const;

    std::int32_t zoom_;
    Size image_;
    Size client_;
    Point scroll_;
    bool repeated_;
};

} // namespace dyeworks
