#include "core/TmfImage.h"

#include <gmock/gmock.h>

#include <vector>

using namespace dyeworks;

TEST(TmfImage, StoresTexelsHighByteFirstInRowsFromTheBottomUp) {
    const struct {
        std::int32_t bits, x;
        std::uint32_t value, readBack;
        std::ptrdiff_t at; // In a block of 3 x 2 texels, the top row set.
        std::vector<int> bytes;
    } cases[] = {
        {4, 2, 0x1E, 0xE, 5, {0xEF}},
        {4, 1, 0xF2, 0x2, 4, {0xF2}},
        {8, 1, 0x134, 0x34, 5, {0x34}},
        {16, 2, 0x98765, 0x8765, 12, {0x87, 0x65}},
        {24, 0, 0x12345678, 0x345678, 12, {0x34, 0x56, 0x78, 0}},
        {32, 0, 0x92345678, 0x92345678, 12, {0x92, 0x34, 0x56, 0x78}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        TmfImage image;
        ASSERT_TRUE(image.create(3, 2, c.bits));
        std::vector<int> expected(image.block().size(), 0xFF);
        std::copy(c.bytes.begin(), c.bytes.end(), expected.begin() + c.at);
        std::fill_n(image.texels, expected.size(), std::uint8_t{0xFF});
        EXPECT_TRUE(image.setTexel(c.x, 0, c.value));
        EXPECT_EQ(std::vector<int>(image.texels, image.texels + image.blockSize()), expected);
        EXPECT_EQ(image.getTexel(c.x, 0), c.readBack);
    }
}

TEST(TmfImage, NothingLiesOutside) {
    TmfImage image, hollow;
    ASSERT_TRUE(image.create(3, 2, 8));
    hollow.width = hollow.height = hollow.bits = 8;
    for (const auto& [x, y] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        EXPECT_FALSE(image.setTexel(x, y, 1) || hollow.setTexel(x, y, 1));
        EXPECT_EQ(image.getTexel(x, y) + hollow.getTexel(x, y), 0U);
    }
    EXPECT_THAT(image.block(), testing::Each(std::byte{0}));
}
