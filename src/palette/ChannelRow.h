#pragma once

#include "palette/EntryFormat.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

/// The controls of one channel. The lowest value is 0.
struct ChannelRow {
    bool visible = false;
    bool intensity = false; ///< The first channel is the intensity, not red.
    std::int32_t highest = 0;
};
/// None shows without a palette.
[[nodiscard]] ChannelRow channelRow(std::optional<ColourType> type, Channel channel);

/// How the bar of the first channel is drawn (its properties 4, 5 and 6), each 0x00BBGGRR. The others
/// keep the colours that they have by themselves.
struct SliderColours {
    std::int32_t lowColour;
    std::int32_t highColour;
    std::int32_t markerColour;
};
[[nodiscard]] SliderColours sliderColours(std::optional<ColourType> type);

} // namespace dyeworks
