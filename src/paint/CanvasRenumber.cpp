#include "paint/CanvasRenumber.h"

#include "paint/CanvasRows.h"
#include "paint/TextureCanvas.h"

namespace dyeworks {

namespace {

/// What a byte of several texels becomes; the first of them has its upper bits.
ByteTable byteMap(const ByteTable& map, std::uint32_t bits) {
    if (bits == 8)
        return map;
    ByteTable bytes{};
    const std::uint32_t mask = (1U << bits) - 1;
    for (std::uint32_t byte = 0; byte < bytes.size(); ++byte) {
        std::uint32_t made = 0;
        for (std::uint32_t shift = 0; shift < 8; shift += bits)
            made |= (map[byte >> shift & mask] & mask) << shift;
        bytes[byte] = static_cast<std::uint8_t>(made);
    }
    return bytes;
}

bool hasValues(const TextureCanvas& canvas) {
    const std::uint32_t bits = canvas.bitsPerPixel();
    return (bits == 1 || bits == 4 || bits == 8) && canvas.width() > 0 && canvas.height() > 0;
}

} // namespace

void renumber(TextureCanvas& canvas, const ByteTable& map) {
    if (!hasValues(canvas))
        return;
    const std::uint32_t bits = canvas.bitsPerPixel();
    const ByteTable bytes = byteMap(map, bits);
    const std::int64_t rowBits = std::int64_t{canvas.width()} * bits;
    if (rowBits == std::int64_t{canvas.stride()} * 8) {
        lookUp(canvas.pixelRows(), bytes);
    } else {
        const WriteRows rows(canvas);
        // Bits behind the last texel of a row are none.
        const auto own = static_cast<std::uint8_t>(0xFF00U >> (rowBits % 8));
        for (std::int64_t y = canvas.height() - 1; y >= 0; --y) {
            std::uint8_t* const row = rows[y];
            lookUp({row, static_cast<std::size_t>(rowBits / 8)}, bytes);
            if (own != 0) {
                std::uint8_t& last = row[rowBits / 8];
                last = static_cast<std::uint8_t>((bytes[last] & own) | (last & ~own));
            }
        }
    }
    canvas.ExtendChangedRect(0, 0);
    canvas.ExtendChangedRect(canvas.width() - 1, canvas.height() - 1);
}

} // namespace dyeworks
