#pragma once

#include <cstddef>
#include <cstdint>

namespace dyeworks {

/// A 32-bit buffer that pictures are drawn into, top row first, each pixel 0xffRRGGBB in native byte order.
/// `originX`, `originY` are the coordinates of the first pixel, so that a buffer may stand for a part of a
/// larger area; whatever falls outside it is clipped. The pixels belong to the caller.
struct Surface {
    std::uint32_t* pixels = nullptr;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::ptrdiff_t stride = 0; ///< Pixels from one row to the next.
    std::int32_t originX = 0;
    std::int32_t originY = 0;
};

} // namespace dyeworks
