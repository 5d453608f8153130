#include "palette/EntryAdjustment.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace dyeworks {

namespace {

using Rgb = std::array<double, 3>; // 0 to 1

constexpr double kSextants = 6;

struct Hsl {
    double hue = 0; ///< In sextants, 0 to 6: red, yellow, green, cyan, blue, magenta.
    double saturation = 0;
    double lightness = 0;
};

Hsl hslOf(const Rgb& colour) {
    const auto [red, green, blue] = colour;
    const double highest = std::max({red, green, blue});
    const double range = highest - std::min({red, green, blue});
    Hsl hsl{0, 0, highest - range / 2};
    if (range == 0)
        return hsl;
    hsl.saturation = range / (1 - std::abs(2 * hsl.lightness - 1));
    if (highest == red)
        hsl.hue = (green - blue) / range;
    else if (highest == green)
        hsl.hue = 2 + (blue - red) / range;
    else
        hsl.hue = 4 + (red - green) / range;
    return hsl;
}

Rgb rgbOf(const Hsl& hsl) {
    const double range = (1 - std::abs(2 * hsl.lightness - 1)) * hsl.saturation;
    const double lowest = hsl.lightness - range / 2;
    // Each channel is full for two sextants around its own hue, none for two on the other side.
    const auto channel = [&](double own) {
        double away = std::fmod(std::abs(hsl.hue - own), kSextants);
        away = std::min(away, kSextants - away);
        return lowest + range * std::clamp(2 - away, 0.0, 1.0);
    };
    return {channel(0), channel(2), channel(4)};
}

/// So many percent of the way to 1, or to 0 when negative.
double towards(double value, std::int32_t percent) {
    const double part = percent / static_cast<double>(EntryAdjustment::kWhole);
    return part < 0 ? value * (1 + part) : value + (1 - value) * part;
}

/// Halves go upward, also those that the arithmetic leaves a trace below.
std::int32_t rounded(double value, std::int32_t highest) {
    constexpr double kTrace = 1e-9;
    return std::clamp(static_cast<std::int32_t>(std::floor(value * highest + 0.5 + kTrace)), 0, highest);
}

ChannelValues turned(const ChannelValues& channels, std::int32_t highest, const EntryAdjustment& by) {
    const auto part = [&](Channel channel) { return channels[channel] / static_cast<double>(highest); };
    Hsl hsl = hslOf({part(Channel::Red), part(Channel::Green), part(Channel::Blue)});
    hsl.hue += by.hue * kSextants / (2 * EntryAdjustment::kHalfTurn);
    // A grey has no hue that it could take.
    if (hsl.saturation > 0)
        hsl.saturation = towards(hsl.saturation, by.saturation);
    hsl.lightness = towards(hsl.lightness, by.brightness);
    const auto [red, green, blue] = rgbOf(hsl);
    return {
        {rounded(red, highest), rounded(green, highest), rounded(blue, highest), channels[Channel::Alpha]}};
}

} // namespace

ChannelValues adjusted(ColourType type, const ChannelValues& channels, const EntryAdjustment& adjustment) {
    ChannelValues result = channels;
    const auto highest = highestValue(type, Channel::Red);
    if (!highest)
        return result;
    if (!highestValue(type, Channel::Green))
        result[Channel::Red] = rounded(
            towards(channels[Channel::Red] / static_cast<double>(*highest), adjustment.brightness), *highest);
    else if (adjustment.hue != 0 || adjustment.saturation != 0 || adjustment.brightness != 0)
        result = turned(channels, *highest, adjustment);
    const auto move = [&](Channel channel, std::int32_t by) {
        if (const auto most = highestValue(type, channel))
            result[channel] = std::clamp(result[channel] + by, 0, *most);
    };
    move(adjustment.channel, adjustment.channelBy);
    move(Channel::Alpha, adjustment.alphaBy);
    return result;
}

} // namespace dyeworks
