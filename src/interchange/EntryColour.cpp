#include "interchange/EntryColour.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr unsigned kLowBits = 7;

constexpr std::uint8_t widened(unsigned five) noexcept {
    return static_cast<std::uint8_t>(five << 3);
}

/// Whether five bits were widened to this, in either of the ways that are usual.
constexpr bool isWidened(unsigned eight) noexcept {
    return (eight & kLowBits) == 0 || (eight & kLowBits) == eight >> 5;
}

constexpr bool isWidened(Colour colour) noexcept {
    return isWidened(colour.red) && isWidened(colour.green) && isWidened(colour.blue);
}

/// The five bits that the display shows nearest to this.
constexpr unsigned rounded(unsigned eight) noexcept {
    return std::min((eight + 4) >> 3, 31U);
}

} // namespace

Colour colourOf(ColourType type, std::uint16_t entry) noexcept {
    switch (type) {
    case ColourType::Rgba:
        return {widened(entry >> 11U), widened(entry >> 6U & 31U), widened(entry >> 1U & 31U),
                static_cast<std::uint8_t>((entry & 1U) != 0 ? 255 : 0)};
    case ColourType::Ia: {
        const auto intensity = static_cast<std::uint8_t>(entry >> 8U);
        return {intensity, intensity, intensity, static_cast<std::uint8_t>(entry & 255U)};
    }
    }
    return {};
}

Colour colourOf(const TlutData& palette, std::int64_t index) noexcept {
    if (palette.entries == nullptr || index < 0 || index >= palette.count)
        return {};
    return colourOf(palette.colourType, palette.entries[index]);
}

std::uint16_t entryOf(ColourType type, Colour colour) noexcept {
    if (type == ColourType::Ia) {
        const unsigned grey = (77U * colour.red + 150U * colour.green + 29U * colour.blue + 128U) >> 8U;
        return static_cast<std::uint16_t>(grey << 8U | colour.alpha);
    }
    const auto five = [exact = isWidened(colour)](unsigned eight) {
        return exact ? eight >> 3 : rounded(eight);
    };
    return static_cast<std::uint16_t>(five(colour.red) << 11U | five(colour.green) << 6U |
                                      five(colour.blue) << 1U | colour.alpha >> 7U);
}

bool isExact(ColourType type, Colour colour) noexcept {
    if (type == ColourType::Ia)
        return colourOf(type, entryOf(type, colour)) == colour;
    return isWidened(colour) && (colour.alpha == 0 || colour.alpha == 255);
}

ColourType colourTypeFor(const std::vector<Colour>& colours) noexcept {
    const auto isGrey = [](const Colour& colour) {
        return colour.red == colour.green && colour.green == colour.blue;
    };
    const auto isExactRgba = [](const Colour& colour) { return isExact(ColourType::Rgba, colour); };
    return std::ranges::all_of(colours, isGrey) && !std::ranges::all_of(colours, isExactRgba)
               ? ColourType::Ia
               : ColourType::Rgba;
}

} // namespace dyeworks
