#include "palette/EntryFormat.h"

#include <cstdio>

namespace dyeworks {

namespace {

constexpr std::int32_t kFiveBits = 31;
constexpr std::int32_t kByte = 255;
constexpr std::size_t kEntryDigits = 4;

std::optional<unsigned> hexDigit(char character) {
    if (character >= '0' && character <= '9')
        return static_cast<unsigned>(character - '0');
    if (character >= 'A' && character <= 'F')
        return static_cast<unsigned>(character - 'A') + 10U;
    if (character >= 'a' && character <= 'f')
        return static_cast<unsigned>(character - 'a') + 10U;
    return std::nullopt;
}

/// The top bits repeated below, so that the full range is used.
std::uint32_t widened(std::int32_t fiveBits) {
    const auto value = static_cast<std::uint32_t>(fiveBits);
    return value << 3U | value >> 2U;
}

ColourRef grey(std::uint32_t level) {
    return colourRef(level, level, level);
}

} // namespace

std::optional<std::int32_t> highestValue(ColourType type, Channel channel) {
    const bool colour = channel == Channel::Green || channel == Channel::Blue;
    if (type == ColourType::Rgba)
        return channel == Channel::Alpha ? 1 : kFiveBits;
    if (type == ColourType::Ia && !colour)
        return kByte;
    return std::nullopt;
}

std::uint16_t composeEntry(ColourType type, const ChannelValues& channels) {
    const std::int32_t red = channels[Channel::Red];
    const std::int32_t alpha = channels[Channel::Alpha];
    switch (type) {
    case ColourType::Rgba:
        return static_cast<std::uint16_t>((red & kFiveBits) << 11 |
                                          (channels[Channel::Green] & kFiveBits) << 6 |
                                          (channels[Channel::Blue] & kFiveBits) << 1 | (alpha & 1));
    case ColourType::Ia:
        return static_cast<std::uint16_t>((red & kByte) << 8 | (alpha & kByte));
    default:
        return 0;
    }
}

ChannelValues channelsOf(ColourType type, std::uint16_t entry) {
    switch (type) {
    case ColourType::Rgba:
        return {{entry >> 11, entry >> 6 & kFiveBits, entry >> 1 & kFiveBits, entry & 1}};
    case ColourType::Ia:
        return {{entry >> 8, 0, 0, entry & kByte}};
    default:
        return {};
    }
}

std::optional<std::uint16_t> parseEntry(std::string_view text) {
    if (text.empty() || text.size() > kEntryDigits)
        return std::nullopt;
    unsigned value = 0;
    for (const char character : text) {
        const auto digit = hexDigit(character);
        if (!digit)
            return std::nullopt;
        value = value << 4U | *digit;
    }
    return static_cast<std::uint16_t>(value);
}

std::string entryText(std::uint16_t entry) {
    char digits[kEntryDigits + 1];
    std::snprintf(digits, sizeof digits, "%04X", static_cast<unsigned>(entry));
    return digits;
}

std::string channelText(std::int32_t value) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(value & kByte));
    return digits;
}

std::uint32_t cellValue(ColourType type, std::uint16_t entry) {
    const ChannelValues channels = channelsOf(type, entry);
    const auto alpha = static_cast<std::uint32_t>(channels[Channel::Alpha]);
    switch (type) {
    case ColourType::Rgba:
        return (alpha != 0 ? 255U : 0U) << 24U |
               colourRef(widened(channels[Channel::Red]), widened(channels[Channel::Green]),
                         widened(channels[Channel::Blue]));
    case ColourType::Ia:
        return alpha << 24U | grey(static_cast<std::uint32_t>(channels[Channel::Red]));
    default:
        return 0;
    }
}

ColourRef cellColour(std::uint32_t cellValue, ViewMode mode) {
    return mode == ViewMode::Alpha ? grey(cellValue >> 24U) : cellValue & 0xFFFFFFU;
}

ColourRef entryColour(ColourType type, std::uint16_t entry, ViewMode mode) {
    if (mode == ViewMode::Alpha || type != ColourType::Rgba)
        return cellColour(cellValue(type, entry), mode);
    const ChannelValues channels = channelsOf(type, entry);
    const auto patch = [&channels](Channel channel) {
        return static_cast<std::uint32_t>(channels[channel]) << 3U;
    };
    return colourRef(patch(Channel::Red), patch(Channel::Green), patch(Channel::Blue));
}

} // namespace dyeworks
