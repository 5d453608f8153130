#pragma once

#include <cstdint>
#include <vector>

namespace dyeworks {

/// A colour of 8 bits a channel. Alpha 255 is opaque; the other channels are not multiplied by it.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;
    bool operator==(const Colour&) const = default;
};

/// A picture of another program: of direct colours, or of indices into a table of colours of its own.
struct Picture {
    static constexpr std::int32_t kMaxSide = 65536; ///< Inclusive.
    /// Of which a picture may have no more: four bytes each of them make 1 GiB.
    static constexpr std::int64_t kMostPixels = std::int64_t{1} << 28;

    std::int32_t width = 0; ///< At least 1, as the height.
    std::int32_t height = 0;
    /// The pixels of a picture of direct colours, row by row from the top, without gaps; else empty.
    std::vector<Colour> pixels;
    /// The same of a picture of indices: each is below `colours.size()`, which is 1 to 256.
    std::vector<std::uint8_t> indices;
    std::vector<Colour> colours; ///< In the order of the file. Empty for a picture of direct colours.

    [[nodiscard]] bool isIndexed() const noexcept { return !colours.empty(); }
};

/// Whether a picture may have these sides.
[[nodiscard]] constexpr bool isPictureSize(std::int64_t width, std::int64_t height) noexcept {
    return width >= 1 && height >= 1 && width <= Picture::kMaxSide && height <= Picture::kMaxSide &&
           width * height <= Picture::kMostPixels;
}

} // namespace dyeworks
