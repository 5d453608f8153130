#include "platform/qt/PackedDib.h"

#include <cstdint>
#include <limits>

namespace dyeworks {

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kPixelOffsetPosition = 10;
constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kLargestHeaderSize = 124;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kAlphaBitFields = 6;

/// Little-endian number of `size` bytes; the caller has checked that they are there.
std::uint32_t number(std::span<const std::byte> bytes, std::size_t position, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i > 0; --i)
        value = value << 8U | std::to_integer<std::uint32_t>(bytes[position + i - 1]);
    return value;
}

void appendNumber(std::vector<std::byte>& bytes, std::uint32_t value) {
    for (unsigned shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::byte>(value >> shift & 0xFFU));
}

/// Bytes of the colour table behind a header of 40 bytes or more, with the masks that a 40-byte header keeps
/// outside itself.
std::uint64_t tableSize(std::span<const std::byte> dib, std::uint32_t headerSize) {
    const std::uint32_t bits = number(dib, 14, 2);
    const std::uint32_t compression = number(dib, 16, 4);
    const std::uint32_t coloursUsed = number(dib, 32, 4);
    std::uint64_t masks = 0;
    if (headerSize == kInfoHeaderSize && compression == kBitFields)
        masks = 12;
    if (headerSize == kInfoHeaderSize && compression == kAlphaBitFields)
        masks = 16;
    const bool wholeTable = coloursUsed == 0 && bits >= 1 && bits <= 8;
    return masks + 4 * (wholeTable ? std::uint64_t{1} << bits : std::uint64_t{coloursUsed});
}

/// Where the pixel rows of a packed bitmap begin, or nothing when it ends before.
std::optional<std::size_t> pixelOffset(std::span<const std::byte> dib) {
    if (dib.size() < kCoreHeaderSize)
        return std::nullopt;
    const std::uint32_t headerSize = number(dib, 0, 4);
    if (headerSize > dib.size())
        return std::nullopt;
    std::uint64_t offset = headerSize;
    if (headerSize == kCoreHeaderSize) {
        const std::uint32_t bits = number(dib, 10, 2);
        if (bits >= 1 && bits <= 8)
            offset += std::uint64_t{3} << bits;
    } else if (headerSize >= kInfoHeaderSize && headerSize <= kLargestHeaderSize) {
        offset += tableSize(dib, headerSize);
    } else {
        return std::nullopt;
    }
    if (offset > dib.size())
        return std::nullopt;
    return static_cast<std::size_t>(offset);
}

} // namespace

std::optional<std::vector<std::byte>> bmpFromDib(std::span<const std::byte> dib) {
    const std::optional<std::size_t> pixels = pixelOffset(dib);
    if (!pixels || dib.size() > std::numeric_limits<std::uint32_t>::max() - kFileHeaderSize)
        return std::nullopt;
    std::vector<std::byte> bmp;
    bmp.reserve(kFileHeaderSize + dib.size());
    bmp.push_back(std::byte{'B'});
    bmp.push_back(std::byte{'M'});
    appendNumber(bmp, static_cast<std::uint32_t>(kFileHeaderSize + dib.size()));
    appendNumber(bmp, 0);
    appendNumber(bmp, static_cast<std::uint32_t>(kFileHeaderSize + *pixels));
    bmp.insert(bmp.end(), dib.begin(), dib.end());
    return bmp;
}

std::optional<std::vector<std::byte>> dibFromBmp(std::span<const std::byte> bmp) {
    if (bmp.size() < kFileHeaderSize || bmp[0] != std::byte{'B'} || bmp[1] != std::byte{'M'})
        return std::nullopt;
    const std::span<const std::byte> dib = bmp.subspan(kFileHeaderSize);
    const std::optional<std::size_t> packed = pixelOffset(dib);
    if (!packed)
        return std::nullopt;
    const std::size_t stated = number(bmp, kPixelOffsetPosition, 4);
    const std::size_t pixels =
        stated > kFileHeaderSize + *packed && stated <= bmp.size() ? stated - kFileHeaderSize : *packed;
    std::vector<std::byte> bytes;
    bytes.reserve(dib.size());
    bytes.assign(dib.begin(), dib.begin() + static_cast<std::ptrdiff_t>(*packed));
    bytes.insert(bytes.end(), dib.begin() + static_cast<std::ptrdiff_t>(pixels), dib.end());
    return bytes;
}

} // namespace dyeworks
