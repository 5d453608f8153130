#pragma once

#include "platform/BitmapHeader.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace dyeworks {

/// An uncompressed bitmap inside bytes that belong to the caller. Everything that the spans cover is there.
struct BmpImage {
    /// No side is longer. Times the largest zoom that takes half of what 32 bits hold, so that a piece of an
    /// image may also lie anywhere beside it.
    static constexpr std::int32_t kLongestSide = 1 << 26;

    std::int32_t width = 0;  ///< Not negative.
    std::int32_t height = 0; ///< Not negative.
    std::uint16_t planes = 0;
    std::uint16_t bitsPerPixel = 0;
    std::uint32_t horizontalResolution = 0; ///< Pixels per metre; 0 when not told.
    std::uint32_t verticalResolution = 0;
    bool topDown = false;               ///< The first row is the top one.
    std::size_t colourSize = 4;         ///< Bytes of a colour: blue, green, red and perhaps reserved.
    std::span<const std::byte> colours; ///< Whole entries, at most a full table.
    std::span<const std::byte> rows;    ///< height rows of bmp::stride bytes.
};

/// A BMP file with an info header of 12, 40, 108 or 124 bytes. What follows the size that the file header
/// tells is not looked at. Behind a header of 40 bytes the rows follow the colour table, whose size the
/// header tells for up to 8 bits; the file's pixel offset counts only for the other headers.
[[nodiscard]] Result<BmpImage, BmpError> parseBmp(std::span<const std::byte> file);

/// The same without file header, as clipboards carry it: the rows follow the colour table.
[[nodiscard]] Result<BmpImage, BmpError> parsePackedBitmap(std::span<const std::byte> bitmap);

} // namespace dyeworks
