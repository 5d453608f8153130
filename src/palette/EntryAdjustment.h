#pragma once

#include "palette/EntryFormat.h"

#include <cstdint>

namespace dyeworks {

/// How entries are made different, each relative to what it was.
///
/// Colours are turned and scaled as hue, saturation and lightness (the double cone of Joblove and Greenberg,
/// "Color Spaces for Computer Graphics", SIGGRAPH 1978), in which full brightness is white, none is black
/// and a grey stays grey under every hue and saturation. An intensity is a grey: only its brightness counts.
struct EntryAdjustment {
    static constexpr std::int32_t kHalfTurn = 180; ///< Hues go from -180 to 180.
    static constexpr std::int32_t kWhole = 100;    ///< Saturation and brightness go from -100 to 100.

    std::int32_t hue = 0; ///< Degrees, from red towards green.
    /// Percent of the way to grey (negative) or to the purest colour of the same hue and lightness.
    std::int32_t saturation = 0;
    /// Percent of the way to black (negative) or to white.
    std::int32_t brightness = 0;
    Channel channel = Channel::Red;
    std::int32_t channelBy = 0; ///< Steps of that channel, after the colour was turned; what goes beyond its
                                ///< lowest and highest value stays there.
    std::int32_t alphaBy = 0;   ///< Steps of alpha, likewise.

    /// Whatever channel is meant by no steps.
    [[nodiscard]] bool isNone() const noexcept {
        return hue == 0 && saturation == 0 && brightness == 0 && channelBy == 0 && alphaBy == 0;
    }
};

/// The channels of an entry, adjusted and rounded to the nearest steps, halves upward. No adjustment gives
/// the same channels again, and so does one of channels that the type lacks.
[[nodiscard]] ChannelValues adjusted(ColourType type, const ChannelValues& channels,
                                     const EntryAdjustment& adjustment);

} // namespace dyeworks
