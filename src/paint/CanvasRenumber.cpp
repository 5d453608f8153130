#include "paint/CanvasRenumber.h"

#include "paint/CanvasRows.h"
#include "paint/TextureCanvas.h"

#include <cstring>

namespace dyeworks {

namespace {

/// What a byte of several texels becomes; the first of them has its upper bits.
ValueMap byteMap(const ValueMap& map, std::uint32_t bits) {
    if (bits == 8)
        return map;
    ValueMap bytes{};
    const std::uint32_t mask = (1U << bits) - 1;
    for (std::uint32_t byte = 0; byte < bytes.size(); ++byte) {
        std::uint32_t made = 0;
        for (std::uint32_t shift = 0; shift < 8; shift += bits)
            made |= (map[byte >> shift & mask] & mask) << shift;
        bytes[byte] = static_cast<std::uint8_t>(made);
    }
    return bytes;
}

/// Eight bytes are read and written at once; the table is all that is read byte by byte.
void renumberBytes(std::uint8_t* bytes, std::size_t count, const ValueMap& map) {
    const std::uint8_t* const table = map.data();
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes + i, sizeof word);
        std::uint64_t made = 0;
        for (unsigned shift = 0; shift < 64; shift += 8)
            made |= std::uint64_t{table[word >> shift & 0xFF]} << shift;
        std::memcpy(bytes + i, &made, sizeof made);
    }
    for (; i < count; ++i)
        bytes[i] = table[bytes[i]];
}

bool hasValues(const TextureCanvas& canvas) {
    const std::uint32_t bits = canvas.bitsPerPixel();
    return (bits == 1 || bits == 4 || bits == 8) && canvas.width() > 0 && canvas.height() > 0;
}

} // namespace

void renumber(TextureCanvas& canvas, const ValueMap& map) {
    if (!hasValues(canvas))
        return;
    const std::uint32_t bits = canvas.bitsPerPixel();
    const ValueMap bytes = byteMap(map, bits);
    const std::int64_t rowBits = std::int64_t{canvas.width()} * bits;
    if (rowBits == std::int64_t{canvas.stride()} * 8) {
        renumberBytes(canvas.pixelRows().data(), canvas.pixelRows().size(), bytes);
    } else {
        const WriteRows rows(canvas);
        // Bits behind the last texel of a row are none.
        const auto own = static_cast<std::uint8_t>(0xFF00U >> (rowBits % 8));
        for (std::int64_t y = canvas.height() - 1; y >= 0; --y) {
            std::uint8_t* const row = rows[y];
            renumberBytes(row, static_cast<std::size_t>(rowBits / 8), bytes);
            if (own != 0) {
                std::uint8_t& last = row[rowBits / 8];
                last = static_cast<std::uint8_t>((bytes[last] & own) | (last & ~own));
            }
        }
    }
    canvas.ExtendChangedRect(0, 0);
    canvas.ExtendChangedRect(canvas.width() - 1, canvas.height() - 1);
}

std::array<std::int64_t, 256> countValues(const TextureCanvas& canvas) {
    std::array<std::int64_t, 256> counts{};
    if (!hasValues(canvas))
        return counts;
    const std::uint32_t bits = canvas.bitsPerPixel();
    const std::int64_t rowBits = std::int64_t{canvas.width()} * bits;
    const ReadRows rows(canvas);
    // Neighbours are often equal, and a counter takes a while until it can be counted up again.
    std::array<std::array<std::int64_t, 256>, 4> bytes{};
    std::uint32_t mask = (1U << bits) - 1;
    for (std::int64_t y = canvas.height() - 1; y >= 0; --y) {
        const std::uint8_t* const row = rows[y];
        std::int64_t i = 0;
        for (; i + 4 <= rowBits / 8; i += 4) {
            for (std::size_t lane = 0; lane < bytes.size(); ++lane)
                ++bytes[lane][row[i + static_cast<std::int64_t>(lane)]];
        }
        for (; i < rowBits / 8; ++i)
            ++bytes[0][row[i]];
        for (std::int64_t bit = 0; bit < rowBits % 8; bit += bits)
            ++counts[row[i] >> (8 - bit - bits) & mask];
    }
    for (std::size_t byte = 0; byte < 256; ++byte) {
        const std::int64_t number = bytes[0][byte] + bytes[1][byte] + bytes[2][byte] + bytes[3][byte];
        for (std::uint32_t shift = 0; shift < 8; shift += bits)
            counts[byte >> shift & mask] += number;
    }
    return counts;
}

} // namespace dyeworks
