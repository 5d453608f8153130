#pragma once

#include "paint/Rect.h"

#include <cstdint>
#include <memory>

namespace dyeworks {

class TextureCanvas;

// Canvases made of others: of another size, scaled, shifted, turned. Each takes planes, depth and colours
// over and is null when its size cannot be had or there is no memory for it; the original is never touched.

constexpr std::int32_t kLongestSide = 65536; ///< Of a canvas that is made here, in texels.

/// Bytes of the block of a canvas of that size and depth, headers and colours included.
[[nodiscard]] std::int64_t canvasBytes(Size size, std::uint16_t bitsPerPixel);
/// Sides of 1 to kLongestSide and a block that a canvas may have.
[[nodiscard]] bool canHaveSize(Size size, std::uint16_t bitsPerPixel);

/// Where the old picture stays when the canvas around it changes.
enum class Anchor { TopLeft, Top, TopRight, Left, Middle, Right, BottomLeft, Bottom, BottomRight };

/// Texel of the new canvas that the old one's top-left texel comes to lie on, maybe outside. What cannot be
/// halved goes to the right and to the bottom.
[[nodiscard]] Point anchored(Size from, Size to, Anchor anchor);

/// A canvas of `size` with the old one's (0, 0) at `place`, which may be outside; `fill` where there was
/// none.
[[nodiscard]] std::unique_ptr<TextureCanvas> resized(const TextureCanvas& canvas, Size size, Point place,
                                                     std::uint32_t fill);
/// Nearest neighbour: a texel shows what lies under its middle, column floor((i + 1/2) * from / to). Whole
/// multiples are exact, and scaling them back gives the original.
[[nodiscard]] std::unique_ptr<TextureCanvas> scaled(const TextureCanvas& canvas, Size size);
/// Moved right and down by any number of texels; what leaves on one side comes in on the other.
[[nodiscard]] std::unique_ptr<TextureCanvas> shifted(const TextureCanvas& canvas, Point by);

enum class Turn { Left, Right, Half };
[[nodiscard]] std::unique_ptr<TextureCanvas> turned(const TextureCanvas& canvas, Turn turn);

} // namespace dyeworks
