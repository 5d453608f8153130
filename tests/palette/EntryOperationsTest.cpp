#include "palette/EntryOperations.h"

#include "core/TlutData.h"
#include "palette/EntryFormat.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

namespace dyeworks {
namespace {

TlutData tableOf(ColourType type, const std::vector<std::uint16_t>& entries) {
    TlutData table;
    EXPECT_TRUE(table.create(static_cast<std::int32_t>(entries.size()), type));
    std::ranges::copy(entries, table.entries);
    return table;
}

/// What an operation makes of one entry, as red, green, blue and alpha.
std::array<int, 4> madeOf(ColourType type, std::array<int, 4> channels, const EntryAdjustment& adjustment) {
    return adjusted(type, {channels}, adjustment).values;
}

TEST(EntryOperations, DoToARangeWhatTheChannelsOfEachEntrySay) {
    std::mt19937 random(5);
    const auto below = [&](int limit) { return std::uniform_int_distribution(0, limit - 1)(random); };
    for (int round = 0; round < 400; ++round) {
        const ColourType type = below(2) == 0 ? ColourType::Rgba : ColourType::Ia;
        std::vector<std::uint16_t> before(below(2) == 0 ? 16 : 256);
        std::ranges::generate(before, [&] { return static_cast<std::uint16_t>(below(65536)); });
        const int first = below(static_cast<int>(before.size()));
        const EntryRange range{first, first + below(static_cast<int>(before.size()) - first)};
        const int length = range.last - range.first;
        const auto fill = static_cast<std::uint16_t>(below(65536));
        TlutData ramp = tableOf(type, before), inverted = ramp, reversed = ramp, filled = ramp, same = ramp,
                 bright = ramp;
        rampEntries(ramp, range);
        invertEntries(inverted, range);
        reverseEntries(reversed, range);
        fillEntries(filled, range, fill);
        adjustEntries(same, range, {.channel = Channel::Blue});
        EXPECT_EQ(same, tableOf(type, before));
        adjustEntries(bright, range, {.brightness = 100});
        const auto at = [&](int i) { return channelsOf(type, before[static_cast<std::size_t>(i)]); };
        for (int i = 0; i < static_cast<int>(before.size()); ++i) {
            const bool inside = i >= range.first && i <= range.last;
            const auto old = before[static_cast<std::size_t>(i)];
            EXPECT_EQ(filled.getEntry(i), inside ? fill : old);
            EXPECT_EQ(reversed.getEntry(i),
                      inside ? before[static_cast<std::size_t>(range.first + range.last - i)] : old);
            // Alpha is the low bit of one kind and the low byte of the other; all above it is colour.
            const int colour = !inside ? 0 : type == ColourType::Rgba ? 0xfffe : 0xff00;
            EXPECT_EQ(inverted.getEntry(i), old ^ colour);
            EXPECT_EQ(bright.getEntry(i), old | colour);
            if (!inside || length == 0) {
                EXPECT_EQ(ramp.getEntry(i), old);
                continue;
            }
            for (const Channel channel : kChannels) {
                // Never more than half a step from the line between the ends.
                const int exact =
                    at(range.first)[channel] * (range.last - i) + at(range.last)[channel] * (i - range.first);
                EXPECT_LE(std::abs(2 * (channelsOf(type, ramp.getEntry(i))[channel] * length - exact)),
                          length);
            }
        }
    }
}

TEST(EntryOperations, ColoursKeepTheirRulesUnderEveryAdjustment) {
    using Made = std::array<int, 4>;
    for (int red = 0; red < 32; ++red) {
        for (int green = 0; green < 32; ++green) {
            for (int blue = 0; blue < 32; ++blue) {
                const auto make = [&](const EntryAdjustment& by) {
                    return madeOf(ColourType::Rgba, {red, green, blue, 1}, by);
                };
                // A third of a turn exchanges the channels, half a turn keeps lightest and darkest.
                ASSERT_EQ(make({.hue = 120}), (Made{blue, red, green, 1}));
                ASSERT_EQ(make({.hue = -120}), (Made{green, blue, red, 1}));
                const int sum = std::max({red, green, blue}) + std::min({red, green, blue});
                ASSERT_EQ(make({.hue = 180}), (Made{sum - red, sum - green, sum - blue, 1}));
                ASSERT_EQ(make({.brightness = 100}), (Made{31, 31, 31, 1}));
                ASSERT_EQ(make({.brightness = -100}), (Made{0, 0, 0, 1}));
                const int grey = (sum + 1) / 2;
                ASSERT_EQ(make({.saturation = -100}), (Made{grey, grey, grey, 1}));
                // The purest colour leaves none of one channel or all of another; a grey has none.
                const auto [pureRed, pureGreen, pureBlue, alpha] = make({.saturation = 100});
                if (red == green && green == blue)
                    ASSERT_TRUE(pureRed == red && pureGreen == red && pureBlue == red);
                else
                    ASSERT_TRUE(std::min({pureRed, pureGreen, pureBlue}) == 0 ||
                                std::max({pureRed, pureGreen, pureBlue}) == 31);
            }
        }
    }
    EXPECT_EQ(
        madeOf(ColourType::Rgba, {3, 30, 9, 0}, {.channel = Channel::Green, .channelBy = 5, .alphaBy = 1}),
        (Made{3, 31, 9, 1}));
    EXPECT_EQ(madeOf(ColourType::Ia, {100, 0, 0, 200}, {.hue = 90, .saturation = -50, .brightness = 20}),
              (Made{131, 0, 0, 200}));
    EXPECT_EQ(madeOf(ColourType::Ia, {100, 0, 0, 200}, {.channelBy = -120, .alphaBy = 60}),
              (Made{0, 0, 0, 255}));
    EXPECT_EQ(madeOf(ColourType::Ia, {100, 0, 0, 7}, {.channel = Channel::Blue, .channelBy = 9}),
              (Made{100, 0, 0, 7}));
}

} // namespace
} // namespace dyeworks
