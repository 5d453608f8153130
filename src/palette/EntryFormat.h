#pragma once

#include "core/TlutData.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dyeworks {

/// The channels by which an entry is edited. An intensity palette keeps its intensity in the first one and
/// has no green and blue.
enum class Channel : std::size_t { Red = 0, Green, Blue, Alpha };
inline constexpr std::size_t kChannelCount = 4;
inline constexpr std::array kChannels{Channel::Red, Channel::Green, Channel::Blue, Channel::Alpha};

struct ChannelValues {
    std::array<std::int32_t, kChannelCount> values{};

    std::int32_t& operator[](Channel channel) { return values[static_cast<std::size_t>(channel)]; }
    const std::int32_t& operator[](Channel channel) const {
        return values[static_cast<std::size_t>(channel)];
    }
    friend bool operator==(const ChannelValues&, const ChannelValues&) = default;
};

/// The plane of a palette that is shown.
enum class ViewMode : std::int32_t { Rgb = 0, Alpha = 1 };

/// A colour as the platform's controls take it, 0x00BBGGRR.
using ColourRef = std::uint32_t;
constexpr ColourRef colourRef(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return (blue & 255U) << 16U | (green & 255U) << 8U | (red & 255U);
}

/// The highest value of a channel (the lowest is 0); nothing when the colour type lacks it.
std::optional<std::int32_t> highestValue(ColourType type, Channel channel);

/// The entry that the channels make; bits beyond a channel's width are dropped. 0 for an unknown type.
std::uint16_t composeEntry(ColourType type, const ChannelValues& channels);
/// The reverse; channels that the type lacks are 0.
ChannelValues channelsOf(ColourType type, std::uint16_t entry);

/// Reads one to four hexadecimal digits. Anything else is no entry.
std::optional<std::uint16_t> parseEntry(std::string_view text);
/// Four hexadecimal digits, "7FFF".
std::string entryText(std::uint16_t entry);
/// A channel as two hexadecimal digits, "1F".
std::string channelText(std::int32_t value);

/// What a swatch grid keeps of an entry, 0xAABBGGRR. 5-bit channels are widened so that 31 becomes 255.
std::uint32_t cellValue(ColourType type, std::uint16_t entry);
/// How such a cell is shown.
ColourRef cellColour(std::uint32_t cellValue, ViewMode mode);
/// Writes a cell of a swatch grid back as entry `index`.
template <typename Palette>
void writeCell(Palette& palette, ColourType type, std::int32_t index, std::uint32_t cellValue) {
    const auto byte = [cellValue](unsigned shift) {
        return static_cast<std::int32_t>(cellValue >> shift & 255U);
    };
    palette.setAlpha(index, byte(24));
    if (type == ColourType::Ia) {
        palette.setIntensity(index, byte(0));
    } else if (type == ColourType::Rgba) {
        palette.setRed(index, byte(0) >> 3);
        palette.setGreen(index, byte(8) >> 3);
        palette.setBlue(index, byte(16) >> 3);
    }
}

/// A single entry as a patch of colour, the way image views show it: 31 becomes 248.
ColourRef entryColour(ColourType type, std::uint16_t entry, ViewMode mode);

} // namespace dyeworks
