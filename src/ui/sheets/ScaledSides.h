#pragma once

#include "paint/Rect.h"

#include <cstdint>

namespace dyeworks {

/// The sides that the scale sheet shows: typed freely, one following the other by the image's ratio, or a
/// whole multiple or part of the image.
class ScaledSides {
public:
    explicit ScaledSides(Size image)
        : image_(image) {}

    /// The other side that keeps the ratio, rounded, 1 to kLongestSide.
    [[nodiscard]] std::int32_t heightFor(std::int32_t width) const;
    [[nodiscard]] std::int32_t widthFor(std::int32_t height) const;

    /// The image times `factor`, or for a negative one divided by that, rounded down, at least 1 and at most
    /// kLongestSide.
    [[nodiscard]] Size times(std::int32_t factor) const;

private:
    Size image_;
};

} // namespace dyeworks
