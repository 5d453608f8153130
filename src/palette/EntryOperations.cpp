#include "palette/EntryOperations.h"

#include "core/TlutData.h"
#include "palette/EntryFormat.h"

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

constexpr std::array kColourChannels{Channel::Red, Channel::Green, Channel::Blue};

ChannelValues channelsAt(const TlutData& table, std::int32_t index) {
    return channelsOf(table.colourType, table.getEntry(index));
}

/// An unknown type has no channels to make an entry of.
void store(TlutData& table, std::int32_t index, const ChannelValues& channels) {
    if (highestValue(table.colourType, Channel::Red))
        table.setEntry(index, composeEntry(table.colourType, channels));
}

} // namespace

void rampEntries(TlutData& table, EntryRange range) {
    const std::int32_t steps = range.last - range.first;
    const ChannelValues from = channelsAt(table, range.first);
    const ChannelValues to = channelsAt(table, range.last);
    for (std::int32_t step = 1; step < steps; ++step) {
        ChannelValues between;
        for (const Channel channel : kChannels)
            between[channel] =
                (2 * (from[channel] * (steps - step) + to[channel] * step) + steps) / (2 * steps);
        store(table, range.first + step, between);
    }
}

void adjustEntries(TlutData& table, EntryRange range, const EntryAdjustment& adjustment) {
    for (std::int32_t i = range.first; i <= range.last; ++i)
        store(table, i, adjusted(table.colourType, channelsAt(table, i), adjustment));
}

void invertEntries(TlutData& table, EntryRange range) {
    for (std::int32_t i = range.first; i <= range.last; ++i) {
        ChannelValues channels = channelsAt(table, i);
        for (const Channel channel : kColourChannels) {
            if (const auto highest = highestValue(table.colourType, channel))
                channels[channel] = *highest - channels[channel];
        }
        store(table, i, channels);
    }
}

void reverseEntries(TlutData& table, EntryRange range) {
    std::reverse(table.entries + range.first, table.entries + range.last + 1);
}

void fillEntries(TlutData& table, EntryRange range, std::uint16_t entry) {
    std::fill(table.entries + range.first, table.entries + range.last + 1, entry);
}

} // namespace dyeworks
