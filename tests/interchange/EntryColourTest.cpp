#include "interchange/EntryColour.h"

#include "interchange/PerceptualSpace.h"

#include <gtest/gtest.h>

#include <cmath>

namespace dyeworks {
namespace {

TEST(EntryColour, EveryEntryComesBackFromTheColourThatItShows) {
    for (const ColourType type : {ColourType::Rgba, ColourType::Ia})
        for (int entry = 0; entry < 65536; ++entry)
            ASSERT_EQ(entryOf(type, colourOf(type, static_cast<std::uint16_t>(entry))), entry);
}

TEST(EntryColour, FiveBitsComeBackFromEitherWideningAndOthersAreRounded) {
    int exact = 0;
    for (int value = 0; value < 256; ++value) {
        const auto eight = static_cast<std::uint8_t>(value);
        const auto five = static_cast<unsigned>(value >> 3);
        const bool isWidened = eight == five * 8 || eight == (five << 3 | five >> 2);
        const unsigned nearest = value < 244 ? static_cast<unsigned>(std::lround(value / 8.0)) : 31U;
        EXPECT_EQ(entryOf(ColourType::Rgba, {eight, 9, 0}) >> 11, nearest) << value;
        EXPECT_EQ(entryOf(ColourType::Rgba, {eight, 0, 0}), (isWidened ? five : nearest) << 11 | 1U);
        EXPECT_EQ(isExact(ColourType::Rgba, {0, eight, 8}), isWidened) << value;
        exact += isWidened ? 1 : 0;
    }
    EXPECT_EQ(exact, 2 * 32 - 4);
}

TEST(PerceptualSpace, HoldsColoursWhereAnotherProgramComputesThem) {
    // None that an entry is exactly, which would be taken as the display shows it.
    const struct {
        Colour colour;
        Triple point;
    } cases[] = {{{254, 1, 3}, {56.856F, 44.831F, -14.055F}},
                 {{2, 3, 253}, {35.654F, -27.775F, -37.888F}},
                 {{10, 200, 30}, {73.558F, 4.444F, 43.896F}},
                 {{250, 251, 252}, {98.767F, -0.927F, -0.132F}},
                 {{3, 2, 1}, {0.686F, 0.738F, 0.105F}}};
    for (const auto& [colour, point] : cases) {
        const Triple away = pointOf(ColourType::Rgba, lightOf(ColourType::Rgba, colour)) - point;
        EXPECT_LT(squared(away), 0.0004F) << int{colour.red};
    }
    const Triple grey = pointOf(ColourType::Ia, lightOf(ColourType::Ia, {119, 119, 119, 255}));
    EXPECT_LT(squared(grey - Triple{50.034F, 50.034F, 1.5636F}), 0.0004F);
}

TEST(EntryColour, GreysThatFiveBitsLoseMakeAPaletteOfIntensities) {
    EXPECT_EQ(colourTypeFor({{8, 8, 8}, {0, 0, 0, 0}}), ColourType::Rgba);
    EXPECT_EQ(colourTypeFor({{9, 9, 9}}), ColourType::Ia);
    EXPECT_EQ(colourTypeFor({{8, 8, 8, 127}}), ColourType::Ia);
    EXPECT_EQ(colourTypeFor({{9, 9, 9}, {8, 8, 9}}), ColourType::Rgba);
}

} // namespace
} // namespace dyeworks
