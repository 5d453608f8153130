#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace dyeworks {

// A bitmap is an info header, a colour table and pixel rows, one right after the other; so it stands on a
// clipboard. In a BMP file a file header comes before it. All numbers are little-endian.

/// Where things are in a BMP file with an info header of 40 bytes. Longer info headers begin with the same
/// fields.
namespace bmp {
constexpr std::uint32_t kFileType = 0x4D42; ///< "BM"
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kCoreHeaderSize = 12;
constexpr std::size_t kInfoHeaderSize = 40;
constexpr std::size_t kVersion4HeaderSize = 108;
constexpr std::size_t kVersion5HeaderSize = 124;
constexpr std::size_t kHeadersSize = kFileHeaderSize + kInfoHeaderSize;

constexpr std::size_t kType = 0;
constexpr std::size_t kFileSize = 2;
constexpr std::size_t kPixelOffset = 10;
constexpr std::size_t kHeaderSize = 14;
constexpr std::size_t kWidth = 18;
constexpr std::size_t kHeight = 22;
constexpr std::size_t kPlanes = 26;
constexpr std::size_t kBits = 28;
constexpr std::size_t kCompression = 30;
constexpr std::size_t kHorizontalResolution = 38;
constexpr std::size_t kVerticalResolution = 42;
constexpr std::size_t kColoursUsed = 46;

/// Bytes of a row: padded to a multiple of four. `width` is not negative.
[[nodiscard]] constexpr std::int64_t stride(std::int64_t width, std::uint16_t bitsPerPixel) noexcept {
    return (width * bitsPerPixel + 31) / 32 * 4;
}
/// Colours of a full table; 0 above 8 bits.
[[nodiscard]] constexpr std::uint32_t fullColourCount(std::uint16_t bitsPerPixel) noexcept {
    return bitsPerPixel <= 8 ? 1U << bitsPerPixel : 0U;
}
} // namespace bmp

enum class BmpError {
    NotABitmap, ///< No bitmap, or an info header of a kind that is not understood.
    Truncated,  ///< Something that the headers announce is not there.
    Compressed, ///< Run-length, bit fields, embedded JPEG or PNG.
    BadSize     ///< A negative width, or a side longer than a view can show.
};

/// What the info header of an uncompressed bitmap tells.
struct BitmapHeader {
    std::uint32_t size = 0; ///< Of the header itself: 12, 40, 108 or 124 bytes.
    std::int64_t width = 0;
    std::int64_t height = 0; ///< Negative when the first row is the top one.
    std::uint16_t planes = 0;
    std::uint16_t bitsPerPixel = 0;
    std::uint32_t horizontalResolution = 0; ///< Pixels per metre; 0 when not told.
    std::uint32_t verticalResolution = 0;
    std::uint32_t coloursUsed = 0; ///< 0: as many as the depth allows.

    /// Bytes of a colour: blue, green, red and perhaps reserved.
    [[nodiscard]] std::int64_t colourSize() const noexcept { return size == bmp::kCoreHeaderSize ? 3 : 4; }
    /// Colours of the table. Bitmaps of more than 8 bits may have one as well, for displays of few colours.
    [[nodiscard]] std::int64_t colourCount() const noexcept {
        return coloursUsed != 0 ? coloursUsed : bmp::fullColourCount(bitsPerPixel);
    }
    [[nodiscard]] std::int64_t tableSize() const noexcept { return colourSize() * colourCount(); }
};

/// The info header that `bitmap` begins with, which is there whole. What it tells is not checked any further.
[[nodiscard]] Result<BitmapHeader, BmpError> readBitmapHeader(std::span<const std::byte> bitmap);

} // namespace dyeworks
