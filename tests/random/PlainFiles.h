#pragma once

#include "PlainImage.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// A palette's entries, described a second time.
struct PlainTable {
    int type = 0; ///< 0: 5-5-5-1, 1: intensity and alpha.
    std::vector<std::uint16_t> entries;

    bool operator==(const PlainTable&) const = default;

    /// As a new palette of 16 or 256 entries is.
    static PlainTable fresh(int type, int count, int alpha);
    /// Red, green and blue that the entry shows as.
    [[nodiscard]] std::vector<std::uint8_t> shown(std::size_t entry) const;
    /// 0 to 255.
    [[nodiscard]] int alpha(std::size_t entry) const;
    /// As palettes of any type give it to each other: alpha, blue, green and red, of 8 bits.
    [[nodiscard]] std::uint32_t cell(std::size_t entry) const;
    void setCell(std::size_t entry, std::uint32_t value);
    /// The place in the bank of what looks most like the entry; of an entry of the bank its own.
    [[nodiscard]] std::size_t nearestInBank(std::size_t entry, std::size_t bank) const;
};

// The files, byte by byte.
[[nodiscard]] std::string imageFile(const PlainImage& image);
[[nodiscard]] std::string paletteFile(const PlainTable& table);
/// Of files that the functions above have made.
[[nodiscard]] PlainImage readImageFile(const std::string& bytes);
[[nodiscard]] PlainTable readPaletteFile(const std::string& bytes);

} // namespace dyeworks
