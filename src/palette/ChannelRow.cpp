#include "palette/ChannelRow.h"

namespace dyeworks {

ChannelRow channelRow(std::optional<ColourType> type, Channel channel) {
    const auto highest = type ? highestValue(*type, channel) : std::nullopt;
    if (!highest)
        return {};
    return {true, type == ColourType::Ia && channel == Channel::Red, *highest};
}

SliderColours sliderColours(std::optional<ColourType> type) {
    if (type == ColourType::Ia)
        return {0, 0xFFFFFF, 192};
    return {0, 0x0000FF, 0xFFFFFF};
}

} // namespace dyeworks
