#pragma once

#include "paint/TextureCanvas.h"

#include <cstdint>

namespace dyeworks {

/// The rows of a canvas by their y, 0 at the top.
template <typename Byte>
class CanvasRows {
public:
    template <typename Canvas>
    explicit CanvasRows(Canvas& canvas)
        : top_(canvas.pixelRows().data() + (std::int64_t{canvas.height()} - 1) * canvas.stride())
        , stride_(canvas.stride()) {}

    [[nodiscard]] Byte* operator[](std::int64_t y) const noexcept { return top_ - y * stride_; }

private:
    Byte* top_;
    std::int64_t stride_;
};

using ReadRows = CanvasRows<const std::uint8_t>;
using WriteRows = CanvasRows<std::uint8_t>;

} // namespace dyeworks
