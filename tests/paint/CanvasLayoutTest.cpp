#include "CanvasTesting.h"

#include <gmock/gmock.h>

#include <limits>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

std::vector<int> numbers(std::span<const std::byte> bytes) {
    std::vector<int> values;
    for (const std::byte byte : bytes)
        values.push_back(std::to_integer<int>(byte));
    return values;
}

std::vector<int> numbers(std::span<const std::uint8_t> bytes) {
    return numbers(std::as_bytes(bytes));
}

TEST(CanvasLayout, PixelsLieWhereTheirDepthPutsThem) {
    const struct {
        std::uint16_t bits;
        std::uint32_t read;
        std::vector<int> row; ///< With pixel 1 of 3 set to 0x89ABCDEF.
    } cases[] = {
        {1, 1, {0x40, 0, 0, 0}},
        {2, 0, {0, 0, 0, 0}},
        {4, 0xF, {0x0F, 0, 0, 0}},
        {8, 0xEF, {0, 0xEF, 0, 0}},
        {16, 0xCDEF, {0, 0, 0xEF, 0xCD, 0, 0, 0, 0}},
        {24, 0xABCDEF, {0, 0, 0, 0xEF, 0xCD, 0xAB, 0, 0, 0, 0, 0, 0}},
        {32, 0x89ABCDEF, {0, 0, 0, 0, 0xEF, 0xCD, 0xAB, 0x89, 0, 0, 0, 0}},
    };
    for (const auto& [bits, read, row] : cases) {
        SCOPED_TRACE(bits);
        TextureCanvas canvas;
        ASSERT_TRUE(canvas.Create(3, 1, 1, bits));
        EXPECT_TRUE(canvas.PutPixel(1, 0, 0x89ABCDEF));
        EXPECT_THAT(numbers(canvas.pixelRows()), ElementsAreArray(row));
        EXPECT_EQ(canvas.GetPixel(1, 0), read);
        EXPECT_EQ(changedRect(canvas), (Rect{1, 0, 1, 0}));
        EXPECT_FALSE(canvas.SetPixel(3, 0, 1));
        EXPECT_FALSE(canvas.SetPixel(0, -1, 1));
    }
}

TEST(CanvasLayout, BlocksThatCannotBeHadLeaveTheCanvasEmpty) {
    constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
    TextureCanvas canvas;
    for (const Size size : {Size{-1, 4}, Size{4, -1}, Size{32768, 32768}, Size{kHighest, kHighest}}) {
        ASSERT_TRUE(canvas.Create(2, 2, 1, 8));
        canvas.SetPixel(1, 1, 1);
        EXPECT_FALSE(canvas.Create(size.width, size.height, 1, 8));
        EXPECT_TRUE(canvas.block().empty());
        EXPECT_EQ(canvas.width(), 0);
        EXPECT_EQ(canvas.GetColorCount(), 0U);
        EXPECT_EQ(changedRect(canvas), (Rect{0, 0, -1, -1}));
    }
}

TEST(CanvasImages, TexelsKeepTheirPlacesAndPaddingIsZero) {
    const auto canvas = canvasOf({"123", "456"});
    canvas->FillBox(0, 0, 2, 0, 0xF);
    const auto image = canvas->ToImage();
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(numbers(std::span(image->texels, 8)), (std::vector<int>{0x45, 0x60, 0, 0, 0xFF, 0xF0, 0, 0}));
    const TextureCanvas back(*image);
    EXPECT_EQ(rowsOf(back), rowsOf(*canvas));
    EXPECT_EQ(changedRect(back), (Rect{0, 0, 2, 1}));

    TextureCanvas small;
    ASSERT_TRUE(small.Create(2, 1, 1, 4));
    small.FromImage(*image);
    EXPECT_THAT(rowsOf(small), ElementsAre("ff"));
    EXPECT_EQ(canvasOf({"1"}, 1)->ToImage(), nullptr);
}

} // namespace
} // namespace dyeworks
