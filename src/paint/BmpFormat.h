#pragma once

#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace dyeworks {

/// Offsets of the fields in a BMP file with an info header of 40 bytes.
namespace bmp {
constexpr std::uint32_t kFileType = 0x4D42; ///< "BM"
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kInfoHeaderSize = 40;
constexpr std::size_t kHeadersSize = kFileHeaderSize + kInfoHeaderSize;

constexpr std::size_t kType = 0;
constexpr std::size_t kFileSize = 2;
constexpr std::size_t kPixelOffset = 10;
constexpr std::size_t kHeaderSize = 14;
constexpr std::size_t kWidth = 18;
constexpr std::size_t kHeight = 22;
constexpr std::size_t kPlanes = 26;
constexpr std::size_t kBits = 28;
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
    BadSize     ///< A negative width, or a height without counterpart of the other sign.
};

/// An uncompressed bitmap inside bytes that belong to the caller. Everything that the spans cover is there.
struct BmpImage {
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
