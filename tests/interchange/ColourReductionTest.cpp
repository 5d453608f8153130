#include "interchange/ColourReduction.h"

#include "interchange/EntryColour.h"
#include "interchange/PerceptualSpace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>

namespace dyeworks {
namespace {

constexpr ColourType kTypes[] = {ColourType::Rgba, ColourType::Ia};
constexpr Dither kDithers[] = {Dither::None, Dither::Ordered, Dither::ErrorDiffusion};

class ColourReduction : public testing::Test {
protected:
    std::uint16_t anyEntry() { return static_cast<std::uint16_t>(any()); }

    std::vector<std::uint16_t> anyEntries(std::size_t count) {
        std::vector<std::uint16_t> entries(count);
        std::ranges::generate(entries, [this] { return anyEntry(); });
        return entries;
    }

    /// Colours around a few, so that cells hold several of them.
    Picture anyPicture(std::int32_t width, std::int32_t height) {
        Picture picture{width, height, {}, {}, {}};
        const std::uint32_t some = any();
        for (std::int32_t i = 0; i < width * height; ++i) {
            const std::uint32_t bits = (any() & 0x1F1F1F1FU) ^ (some >> (any() & 15U));
            picture.pixels.push_back({static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8U),
                                      static_cast<std::uint8_t>(bits >> 16U),
                                      static_cast<std::uint8_t>(any())});
        }
        return picture;
    }

    static Picture flat(Colour colour, std::int32_t side) {
        return {side, side, std::vector<Colour>(static_cast<std::size_t>(side * side), colour), {}, {}};
    }

    /// The same picture as indices into its own colours, which must be few.
    static Picture indexed(const Picture& picture) {
        Picture result{picture.width, picture.height, {}, {}, {}};
        for (const Colour& colour : picture.pixels) {
            const auto at = std::ranges::find(result.colours, colour);
            result.indices.push_back(static_cast<std::uint8_t>(at - result.colours.begin()));
            if (at == result.colours.end())
                result.colours.push_back(colour);
        }
        return result;
    }

    std::uint32_t any() { return static_cast<std::uint32_t>(random_()); }

private:
    std::mt19937 random_{7};
};

/// What a plain loop over all entries finds for a pixel.
std::size_t plainMatch(ColourType type, const std::vector<std::uint16_t>& entries, Colour colour,
                       int threshold) {
    const auto isVisible = [type](std::uint16_t entry) {
        return type == ColourType::Ia || (entry & 1U) != 0;
    };
    const bool hidden = type == ColourType::Rgba && colour.alpha < threshold;
    const auto firstHidden = std::ranges::find_if_not(entries, isVisible);
    if (hidden && firstHidden != entries.end())
        return static_cast<std::size_t>(firstHidden - entries.begin());
    const bool anyVisible = std::ranges::any_of(entries, isVisible);
    std::size_t best = 0;
    float least = std::numeric_limits<float>::max();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (anyVisible && !isVisible(entries[i]))
            continue;
        const ColourPoint shown = pointOf(type, lightOf(type, colourOf(type, entries[i])));
        if (const float distance = squared(shown - pointOf(type, lightOf(type, colour))); distance < least) {
            least = distance;
            best = i;
        }
    }
    return best;
}

TEST_F(ColourReduction, GivesEachPixelTheEntryThatAPlainLoopFinds) {
    for (const ColourType type : kTypes) {
        for (const std::size_t count : {1U, 2U, 16U, 100U, 256U}) {
            std::vector<std::uint16_t> entries = anyEntries(count);
            entries.back() = entries.front();
            for (const Picture& picture : {anyPicture(40, 31), indexed(anyPicture(16, 16))}) {
                ReductionOptions options;
                options.colourType = type;
                options.alphaThreshold = static_cast<std::int32_t>(any() % 257);
                const auto matched = matchColours(picture, entries, options);
                ASSERT_TRUE(matched.ok());
                for (std::size_t i = 0; i < matched.value().indices.size(); ++i) {
                    const Colour colour =
                        picture.isIndexed() ? picture.colours[picture.indices[i]] : picture.pixels[i];
                    ASSERT_EQ(matched.value().indices[i],
                              plainMatch(type, entries, colour, options.alphaThreshold))
                        << count << ' ' << i;
                }
            }
        }
    }
}

TEST_F(ColourReduction, KeepsColoursThatFitWhateverTheDither) {
    for (int round = 0; round < 60; ++round) {
        ReductionOptions options;
        options.colourType = kTypes[round % 2];
        options.dither = kDithers[round % 3];
        const std::size_t count = 1 + any() % 256;
        std::vector<std::uint16_t> entries = anyEntries(count);
        if (options.colourType == ColourType::Rgba)
            for (std::uint16_t& entry : entries)
                entry = (entry & 1U) != 0 ? entry : std::uint16_t{0};
        options.colours = static_cast<std::int32_t>(count);
        Picture picture{23, 29, {}, {}, {}};
        for (int i = 0; i < 23 * 29; ++i)
            picture.pixels.push_back(colourOf(options.colourType, entries[any() % count]));
        if (round % 4 == 0)
            picture = indexed(picture);

        const auto reduced = reduceColours(picture, options);
        ASSERT_TRUE(reduced.ok());
        std::set<std::uint16_t> used;
        for (std::size_t i = 0; i < reduced.value().indices.size(); ++i) {
            const std::uint16_t entry = reduced.value().entries.at(reduced.value().indices[i]);
            const Colour colour =
                picture.isIndexed() ? picture.colours[picture.indices[i]] : picture.pixels[i];
            ASSERT_EQ(colourOf(options.colourType, entry), colour) << round;
            used.insert(entry);
        }
        EXPECT_EQ(used.size(), reduced.value().entries.size());
    }
}

TEST_F(ColourReduction, LeavesLockedEntriesAndSharesATransparentOne) {
    for (int round = 0; round < 40; ++round) {
        const Picture picture = anyPicture(30, 30);
        ReductionOptions options;
        options.colours = static_cast<std::int32_t>(1 + any() % 40);
        options.dither = kDithers[round % 3];
        bool lockedTransparent = false;
        std::vector<bool> isLocked(static_cast<std::size_t>(options.colours));
        for (std::int32_t i = 0; i < options.colours; ++i) {
            if (any() % 4 != 0)
                continue;
            const auto entry = static_cast<std::uint16_t>(anyEntry() | (round % 2 == 0 ? 1U : 0U));
            options.locked.push_back({i, entry});
            isLocked[static_cast<std::size_t>(i)] = true;
            lockedTransparent = lockedTransparent || (entry & 1U) == 0;
        }
        const auto reduced = reduceColours(picture, options);
        ASSERT_TRUE(reduced.ok());
        const auto& [indices, entries] = reduced.value();
        ASSERT_LE(entries.size(), static_cast<std::size_t>(options.colours));
        for (const LockedEntry& locked : options.locked)
            EXPECT_EQ(entries.at(static_cast<std::size_t>(locked.index)), locked.entry);

        std::set<std::uint8_t> shared;
        for (std::size_t i = 0; i < indices.size(); ++i) {
            ASSERT_LT(indices[i], entries.size());
            if (picture.pixels[i].alpha < options.alphaThreshold)
                shared.insert(indices[i]);
        }
        const auto firstFree = std::ranges::find(isLocked, false) - isLocked.begin();
        if (lockedTransparent || firstFree < options.colours) {
            ASSERT_EQ(shared.size(), 1U);
            EXPECT_EQ(entries[*shared.begin()] & 1U, 0U);
        }
        if (!lockedTransparent && firstFree < options.colours) {
            EXPECT_EQ(*shared.begin(), firstFree);
            EXPECT_EQ(entries[*shared.begin()], 0);
        }
    }
}

TEST_F(ColourReduction, DithersKeepTheMeanOfAFlatPatch) {
    // The corners of the cube and greys: each patch is a mixture of some of them.
    const std::vector<std::uint16_t> entries{0x0001, 0xFFFF, 0x8421, 0xF801, 0x07C1,
                                             0x003F, 0xFFC1, 0xF83F, 0x07FF, 0x4211};
    for (const Colour colour :
         {Colour{100, 100, 100}, Colour{200, 120, 90}, Colour{20, 60, 30}, Colour{230, 230, 250}}) {
        for (const Dither dither : {Dither::Ordered, Dither::ErrorDiffusion}) {
            ReductionOptions options;
            options.dither = dither;
            const auto matched = matchColours(flat(colour, 64), entries, options);
            ASSERT_TRUE(matched.ok());
            Values sum;
            for (const std::uint8_t index : matched.value().indices)
                sum = sum + valuesOf(ColourType::Rgba, colourOf(ColourType::Rgba, entries[index]));
            const Values off = sum * (1.0F / (64 * 64)) - valuesOf(ColourType::Rgba, colour);
            EXPECT_LT(std::sqrt(squared(off)), dither == Dither::Ordered ? 16 : 8)
                << int{colour.red} << ' ' << static_cast<int>(dither);
        }
    }
}

TEST_F(ColourReduction, DitherStaysOutOfTransparentPixels) {
    // Left of a hidden column the patch is one that has to be mixed, right of it one that has its entry.
    Picture picture = flat(colourOf(ColourType::Rgba, 0x8421), 32);
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        if (i % 32 < 16)
            picture.pixels[i] = {90, 120, 70, 255};
        else if (i % 32 < 18)
            picture.pixels[i] = {255, 0, 255, 0};
    }
    const std::vector<std::uint16_t> entries{0x0001, 0xFFFF, 0x8421, 0x0000, 0x07C1};
    for (const Dither dither : kDithers) {
        ReductionOptions options;
        options.dither = dither;
        const auto matched = matchColours(picture, entries, options);
        ASSERT_TRUE(matched.ok());
        for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
            if (i % 32 >= 16) {
                ASSERT_EQ(matched.value().indices[i], i % 32 < 18 ? 3 : 2) << i;
            }
        }
    }
}

TEST_F(ColourReduction, StopsWhenToldAndIsToldAtMostAHundredTimes) {
    const Picture picture = anyPicture(300, 300);
    for (const Dither dither : kDithers) {
        ReductionOptions options;
        options.dither = dither;
        int calls = 0;
        int last = 0;
        const auto whole = reduceColours(picture, options, [&](int thousandths) {
            EXPECT_GT(thousandths, last);
            last = thousandths;
            return ++calls > 0;
        });
        ASSERT_TRUE(whole.ok());
        EXPECT_LE(calls, 100);
        EXPECT_GT(calls, 50);
        for (int stopAt = 1; stopAt <= calls; stopAt += 9) {
            int more = 0;
            const auto stopped = reduceColours(picture, options, [&](int) { return ++more < stopAt; });
            ASSERT_FALSE(stopped.ok());
            EXPECT_EQ(stopped.error().kind, InterchangeError::Kind::Cancelled);
            EXPECT_EQ(more, stopAt);
        }
        const auto again = reduceColours(picture, options);
        EXPECT_EQ(again.value().indices, whole.value().indices);
        EXPECT_EQ(again.value().entries, whole.value().entries);
    }
    std::vector<int> told;
    (void)reduceColours(anyPicture(3, 2), {}, [&](int now) { return told.push_back(now), true; });
    EXPECT_EQ(told, (std::vector{100, 500, 750}));
}

} // namespace
} // namespace dyeworks
