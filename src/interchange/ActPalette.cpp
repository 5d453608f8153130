#include "interchange/PaletteFormats.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::size_t kColours = 256;
constexpr std::size_t kTableSize = kColours * 3;
/// With the count of the colours that are meant, and the number of the transparent one.
constexpr std::size_t kWholeSize = kTableSize + 4;
constexpr std::size_t kNoneTransparent = 0xFFFF;

/// 16 bits with the high byte first, as all of Adobe's files have them.
std::size_t wordAt(std::span<const std::byte> file, std::size_t offset) {
    return std::to_integer<std::size_t>(file[offset]) << 8U | std::to_integer<std::size_t>(file[offset + 1]);
}

} // namespace

PaletteResult readActPalette(std::span<const std::byte> file) {
    if (file.size() != kTableSize && file.size() != kWholeSize)
        return InterchangeError{InterchangeError::Kind::UnknownFormat, {}, 0, 0};
    const bool isWhole = file.size() == kWholeSize;
    std::size_t count = isWhole ? wordAt(file, kTableSize) : kColours;
    if (count == 0 || count > kColours)
        count = kColours;
    PaletteColours result;
    for (std::size_t i = 0; i < count; ++i) {
        const auto channel = [&](std::size_t c) { return std::to_integer<std::uint8_t>(file[i * 3 + c]); };
        result.colours.push_back({channel(0), channel(1), channel(2)});
    }
    const std::size_t transparent = isWhole ? wordAt(file, kTableSize + 2) : kNoneTransparent;
    if (transparent < count) {
        result.colours[transparent].alpha = 0;
        result.hasAlpha = true;
    }
    return result;
}

std::vector<std::byte> writeActPalette(const PaletteColours& colours) {
    const std::size_t count = std::min(colours.colours.size(), kColours);
    const auto first = std::ranges::find(colours.colours, 0, &Colour::alpha);
    const auto transparent = static_cast<std::size_t>(first - colours.colours.begin());
    const bool isTransparent = transparent < count;
    const bool isWhole = count < kColours || isTransparent;
    std::vector<std::byte> file(isWhole ? kWholeSize : kTableSize);
    for (std::size_t i = 0; i < count; ++i) {
        const Colour& colour = colours.colours[i];
        file[i * 3] = std::byte{colour.red};
        file[i * 3 + 1] = std::byte{colour.green};
        file[i * 3 + 2] = std::byte{colour.blue};
    }
    if (isWhole) {
        const std::size_t index = isTransparent ? transparent : kNoneTransparent;
        file[kTableSize] = static_cast<std::byte>(count >> 8U);
        file[kTableSize + 1] = static_cast<std::byte>(count);
        file[kTableSize + 2] = static_cast<std::byte>(index >> 8U);
        file[kTableSize + 3] = static_cast<std::byte>(index);
    }
    return file;
}

} // namespace dyeworks
