#include "framework/WindowPlacement.h"
#include "framework/WindowTiling.h"

#include <gmock/gmock.h>

#include <random>

using namespace dyeworks;
using testing::ElementsAre;

TEST(WindowTiling, CoversTheAreaOnceAndGivesTheLastBandsOneMore) {
    EXPECT_THAT(tilePlaces(5, 100, 60, TileDirection::Horizontal),
                ElementsAre(TilePlace{0, 0, 50, 30}, TilePlace{0, 30, 50, 30}, TilePlace{50, 0, 50, 20},
                            TilePlace{50, 20, 50, 20}, TilePlace{50, 40, 50, 20}));
    EXPECT_THAT(tilePlaces(3, 7, 8, TileDirection::Vertical),
                ElementsAre(TilePlace{0, 0, 2, 8}, TilePlace{2, 0, 2, 8}, TilePlace{4, 0, 3, 8}));
    for (int count = 0; count < 20; ++count) {
        std::vector<int> covered(31 * 23);
        const auto places = tilePlaces(count, 31, 23, TileDirection::Vertical);
        ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
        for (const TilePlace& place : places) {
            for (int i = 0; i < place.width * place.height; ++i)
                ++covered.at(
                    static_cast<std::size_t>((place.y + i / place.width) * 31 + place.x + i % place.width));
        }
        EXPECT_THAT(covered, testing::Each(count > 0 ? 1 : 0)) << count;
    }
}

TEST(WindowPlacement, IsReadBackAndHoldsAPixelThatAScreenCanHave) {
    const WindowPlacement placement{2, 3, -1, -2, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(formatWindowPlacement(placement), "2:3:-1:-2:4:5:6:7:8:9");
    EXPECT_EQ(parseWindowPlacement("0x2:03:-1:-2:4:5:6:7:8:9 and more"), placement);
    for (const char* bad : {"", "1:2:3:4:5:6:7:8:9", "1;2:3:4:5:6:7:8:9:10", "1:2:3:4:5:6:7:8:9:x",
                            "1:2:3:4:5:6:7:8:9:2147483648", "-2147483649:2:3:4:5:6:7:8:9:1"})
        EXPECT_EQ(parseWindowPlacement(bad), std::nullopt) << bad;
    constexpr int kFar = 1 << 20;
    const auto holds = [](int left, int top, int right, int bottom) {
        return WindowPlacement{0, 1, 0, 0, 0, 0, left, top, right, bottom}.hasRectangle();
    };
    EXPECT_TRUE(holds(3, 4, 4, 5) && holds(-kFar, -kFar, kFar, kFar));
    EXPECT_FALSE(holds(3, 4, 3, 5) || holds(3, 4, 4, 4));
    EXPECT_FALSE(holds(-kFar - 1, 0, 1, 1) || holds(0, -kFar - 1, 1, 1) || holds(0, 0, kFar + 1, 1) ||
                 holds(0, 0, 1, kFar + 1));
}
