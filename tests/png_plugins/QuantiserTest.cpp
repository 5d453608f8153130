#include "png/Quantiser.h"

#include "dyeworks/plugin.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace dyeworks::plugins {
namespace {

using Counts = std::vector<std::uint32_t>;

Reduction reduce(const Counts& counts, std::uint32_t colourType, std::size_t room) {
    return reduceColours(std::span<const std::uint32_t, kEntryValues>(counts), colourType, room);
}

std::array<double, 3> channels(unsigned value) {
    return {static_cast<double>(value >> 11 & 31U), static_cast<double>(value >> 6 & 31U),
            static_cast<double>(value >> 1 & 31U)};
}

double distance(const std::array<double, 3>& a, const std::array<double, 3>& b) {
    double sum = 0;
    for (std::size_t i = 0; i < 3; ++i)
        sum += (a.at(i) - b.at(i)) * (a.at(i) - b.at(i));
    return sum;
}

TEST(Quantiser, KeepsColoursThatFit) {
    for (const std::uint32_t colourType : {DW_COLOUR_RGBA, DW_COLOUR_IA}) {
        for (const std::size_t room : {std::size_t{2}, std::size_t{16}, std::size_t{256}}) {
            for (const bool transparent : {false, true}) {
                Counts counts(kEntryValues);
                counts[0] = transparent ? 5 : 0;
                for (unsigned n = transparent ? 1 : 0; n < room; ++n)
                    counts[(n * 251U << 1 | 1U) & 0xFFFFU] = 1 + n;
                const Reduction reduction = reduce(counts, colourType, room);
                ASSERT_EQ(reduction.entries.size(), room);
                for (unsigned value = 0; value < kEntryValues; ++value) {
                    if (counts[value] != 0) {
                        ASSERT_EQ(reduction.entries[reduction.index[value]], value);
                    }
                }
            }
        }
    }
}

// Skewed colours, as pictures have them. A fixed grid of 256 cells, 3 bits of red and green and 2 of blue,
// with the mean of each as its colour, is what any division by the colours themselves has to beat.
TEST(Quantiser, LosesLessThanAFixedGrid) {
    Counts counts(kEntryValues);
    counts[0] = 1000;
    for (unsigned i = 0; i < 200000; ++i) {
        const unsigned red = i * 7919U % 32;
        const unsigned green = red * (i % 13) / 13;
        const unsigned blue = 31 - red * (i % 5) / 5;
        ++counts[red << 11 | green << 6 | blue << 1 | 1U];
    }
    struct Cell {
        double count = 0;
        std::array<double, 3> sum{};
    };
    std::map<unsigned, Cell> cells;
    const auto cellOf = [](unsigned value) { return value & 0xE730U; };
    for (unsigned value = 1; value < kEntryValues; ++value) {
        Cell& cell = cells[cellOf(value)];
        cell.count += counts[value];
        for (std::size_t i = 0; i < 3; ++i)
            cell.sum.at(i) += counts[value] * channels(value).at(i);
    }
    const Reduction reduction = reduce(counts, DW_COLOUR_RGBA, 256);
    EXPECT_EQ(reduction.entries.size(), 256U);
    EXPECT_EQ(reduction.entries[0], 0);
    double ours = 0;
    double grid = 0;
    for (unsigned value = 1; value < kEntryValues; ++value) {
        if (counts[value] == 0)
            continue;
        ASSERT_NE(reduction.index[value], 0) << "opaque colour shown as transparent";
        const unsigned entry = reduction.entries[reduction.index[value]];
        ASSERT_EQ(entry & 1U, 1U);
        ours += counts[value] * distance(channels(value), channels(entry));
        Cell mean = cells[cellOf(value)];
        for (double& sum : mean.sum)
            sum /= mean.count;
        grid += counts[value] * distance(channels(value), mean.sum);
    }
    EXPECT_LT(ours, grid);
}

// Of two far groups and two entries each group has its mean, rounded, weighted by how often its colours
// occur.
TEST(Quantiser, MeansFollowTheCounts) {
    Counts counts(kEntryValues);
    counts[2U << 11 | 1U] = 3;
    counts[6U << 11 | 1U] = 1;
    counts[30U << 11 | 30U << 6 | 1U] = 1;
    const Reduction reduction = reduce(counts, DW_COLOUR_RGBA, 2);
    const std::set<std::uint16_t> entries(reduction.entries.begin(), reduction.entries.end());
    EXPECT_EQ(entries, (std::set<std::uint16_t>{3U << 11 | 1U, 30U << 11 | 30U << 6 | 1U}));
}

} // namespace
} // namespace dyeworks::plugins
