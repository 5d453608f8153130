#include "framework/WindowPlacement.h"

#include "framework/WindowTiling.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dyeworks;
using testing::ElementsAre;

TEST(WindowPlacement, FieldsStandInTheirOrder) {
    FakePlatform fake;
    const WindowPlacement placement{2, 3, -32000, -31999, -8, -7, 10, 20, 810, 620};
    writeWindowPlacement("WindowPos", placement);
    EXPECT_EQ(fake.profile.sections["Settings"]["WindowPos"], "2:3:-32000:-31999:-8:-7:10:20:810:620");
    EXPECT_EQ(readWindowPlacement("WindowPos"), placement);
    EXPECT_EQ(readWindowPlacement("windowpos"), std::nullopt);
}

TEST(WindowPlacement, TenFieldsMustParse) {
    struct Case {
        const char* text;
        bool parses;
    };
    for (const Case& c : {
             Case{"0:1:2:3:4:5:6:7:8:9", true},
             Case{" 0: 1: 2:3:4:5:6:7:8:+9", true},
             Case{"0:1:2:3:4:5:6:7:8:9 and more", true},
             Case{"0x0:1:02:3:4:5:6:7:0x8:9", true},
             Case{"0:1:-1:3:4:5:6:7:8:2147483647", true},
             Case{"0:1:2:3:4:5:6:7:8:2147483648", false},
             Case{"0:1:2:3:4:5:6:7:8:99999999999999999999", false},
             Case{"0:1:2:3:4:5:6:7:8:", false},
             Case{"0:1:2:3:4:5:6:7:8", false},
             Case{"0:1:2:3:4:5:6:7 :8:9", false},
             Case{"0;1;2;3;4;5;6;7;8;9", false},
             Case{"0:1:2:3:x:5:6:7:8:9", false},
             Case{"", false},
         })
        EXPECT_EQ(parseWindowPlacement(c.text).has_value(), c.parses) << c.text;
}

TEST(WindowTiling, FewWindowsFollowTheDirection) {
    EXPECT_THAT(tilePlaces(2, 101, 50, TileDirection::Vertical),
                ElementsAre(TilePlace{0, 0, 50, 50}, TilePlace{50, 0, 51, 50}));
    EXPECT_THAT(tilePlaces(2, 101, 50, TileDirection::Horizontal),
                ElementsAre(TilePlace{0, 0, 101, 25}, TilePlace{0, 25, 101, 25}));
}

TEST(WindowTiling, WindowsCoverEveryPixelOnce) {
    constexpr int kWidth = 37;
    constexpr int kHeight = 29;
    for (int count = 1; count <= 12; ++count) {
        for (const TileDirection direction : {TileDirection::Horizontal, TileDirection::Vertical}) {
            const std::vector<TilePlace> places = tilePlaces(count, kWidth, kHeight, direction);
            ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
            std::vector<int> covered(kWidth * kHeight);
            for (const TilePlace& place : places) {
                for (int y = place.y; y < place.y + place.height; ++y) {
                    for (int x = place.x; x < place.x + place.width; ++x)
                        ++covered.at(static_cast<std::size_t>(y * kWidth + x));
                }
            }
            EXPECT_THAT(covered, testing::Each(1)) << count;
        }
    }
}
