#include "interchange/EntryColour.h"

#include "interchange/Texture.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace dyeworks {
namespace {

int error(std::uint8_t a, std::uint8_t b) {
    return std::abs(a - b);
}

TEST(EntryColour, EveryEntryComesBackFromTheColourThatItShows) {
    for (const ColourType type : {ColourType::Rgba, ColourType::Ia})
        for (int entry = 0; entry < 65536; ++entry)
            ASSERT_EQ(entryOf(type, colourOf(type, static_cast<std::uint16_t>(entry))), entry);
}

TEST(EntryColour, NoOtherStepIsNearer) {
    for (int value = 0; value < 256; ++value) {
        const auto eight = static_cast<std::uint8_t>(value);
        const Colour shown = colourOf(ColourType::Rgba, entryOf(ColourType::Rgba, {eight, eight, eight}));
        for (int step = 0; step < 32; ++step) {
            const Colour other = colourOf(ColourType::Rgba, static_cast<std::uint16_t>(step << 6));
            ASSERT_LE(error(shown.green, eight), error(other.green, eight)) << value << ' ' << step;
        }
        ASSERT_EQ(shown.red, shown.green);
        ASSERT_EQ(shown.blue, shown.green);
    }
}

TEST(EntryColour, GreysThatFiveBitsLoseMakeAPaletteOfIntensities) {
    EXPECT_EQ(colourTypeFor({{8, 8, 8}, {0, 0, 0, 0}}), ColourType::Rgba);
    EXPECT_EQ(colourTypeFor({{9, 9, 9}}), ColourType::Ia);
    EXPECT_EQ(colourTypeFor({{8, 8, 8, 127}}), ColourType::Ia);
    EXPECT_EQ(colourTypeFor({{9, 9, 9}, {8, 8, 9}}), ColourType::Rgba);
}

TEST(Texture, TexelsOfOddWidthStandWhereTheyStood) {
    const std::uint8_t indices[] = {1, 2, 3, 4, 5, 6};
    for (const std::int32_t bits : {4, 8}) {
        const TmfImage image = imageOf(3, 2, bits, indices);
        for (std::int32_t i = 0; i < 6; ++i)
            EXPECT_EQ(image.getTexel(i % 3, i / 3), indices[i]) << bits;
    }
}

} // namespace
} // namespace dyeworks
