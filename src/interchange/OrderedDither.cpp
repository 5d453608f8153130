#include "interchange/OrderedDither.h"

#include "interchange/EntryColour.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::size_t kRgbaCells = std::size_t{1} << 18;
constexpr std::size_t kIaCells = 65536;

/// Bayer's matrix of 8 by 8: the bits of x ^ y and y, interleaved from the lowest on.
std::size_t bayer(std::size_t x, std::size_t y) noexcept {
    const std::size_t both = x ^ y;
    std::size_t value = 0;
    for (unsigned bit = 0; bit < 3; ++bit)
        value = value << 2U | (both >> bit & 1U) << 1U | (y >> bit & 1U);
    return value;
}

/// By which the shares are sorted: near enough (ITU-R BT.601).
float lightnessOf(Values values) noexcept {
    return 0.299F * values.x + 0.587F * values.y + 0.114F * values.z;
}

} // namespace

OrderedDither::OrderedDither(EntryMatcher& matcher, ColourType type)
    : matcher_(matcher)
    , type_(type)
    , mixtures_(type == ColourType::Ia ? kIaCells : kRgbaCells) {}

std::size_t OrderedDither::cellOf(Colour colour) const noexcept {
    if (type_ == ColourType::Ia)
        return entryOf(type_, colour);
    return std::size_t{colour.red} >> 2U << 12U | std::size_t{colour.green} >> 2U << 6U | colour.blue >> 2U;
}

void OrderedDither::mix(Mixture& mixture, Colour colour) noexcept {
    mixture.known = true;
    const Values wanted = valuesOf(type_, colour);
    Values missing;
    std::array<std::pair<float, std::uint8_t>, kShares> shares{};
    for (auto& [lightness, index] : shares) {
        const EntryMatcher::Found found = matcher_.findToMix(wanted + missing);
        missing = missing + wanted - found.values;
        lightness = lightnessOf(found.values);
        index = found.index;
    }
    std::ranges::sort(shares);
    for (std::size_t i = 0; i < kShares; ++i)
        mixture.entries[i] = shares[i].second;
}

std::uint8_t OrderedDither::find(std::size_t x, std::size_t y, Colour colour) noexcept {
    if (const int exact = matcher_.findExact(colour); exact >= 0)
        return static_cast<std::uint8_t>(exact);
    Mixture& mixture = mixtures_[cellOf(colour)];
    if (!mixture.known)
        mix(mixture, colour);
    return mixture.entries[bayer(x, y) * kShares / 64];
}

} // namespace dyeworks
