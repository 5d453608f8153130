#include "CanvasTesting.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

#include <limits>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

std::vector<int> numbers(std::span<const std::byte> bytes) {
    std::vector<int> values;
    for (const std::byte byte : bytes)
        values.push_back(std::to_integer<int>(byte));
    return values;
}

std::vector<int> numbers(std::span<const std::uint8_t> bytes) {
    return numbers(std::as_bytes(bytes));
}

TEST(CanvasLayout, BlockIsABmpFile) {
    TextureCanvas canvas;
    ASSERT_TRUE(canvas.Create(3, 2, 1, 4));
    canvas.SetPixel(0, 0, 0xA1);
    canvas.SetPixel(1, 0, 0xB2);
    canvas.SetPixel(2, 1, 3);
    std::vector<int> expected(126, 0);
    const auto put = [&](std::size_t offset, std::initializer_list<int> bytes) {
        std::copy(bytes.begin(), bytes.end(), expected.begin() + static_cast<std::ptrdiff_t>(offset));
    };
    put(0, {'B', 'M', 126});
    put(10, {118});
    put(14, {40});
    put(18, {3});
    put(22, {2});
    put(26, {1, 0, 4});
    put(46, {16});
    put(118, {0x00, 0x30, 0, 0, 0x12, 0, 0, 0});
    EXPECT_THAT(numbers(canvas.block()), ElementsAreArray(expected));
    EXPECT_EQ(canvas.packedBitmap().data(), canvas.block().data() + 14);
    EXPECT_EQ(canvas.packedBitmap().size(), 112U);
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
    EXPECT_EQ(canvas.CopyRect(std::numeric_limits<std::int32_t>::min(), 0, kHighest, 0), nullptr);
    EXPECT_TRUE(canvas.Create(0, 5, 1, 8));
    EXPECT_EQ(canvas.block().size(), 54U + 1024U);
    EXPECT_TRUE(canvas.CopyFrom(canvas));
    canvas.ApplyPalette(TextureLookupTable(), 0);
    Rect changed;
    EXPECT_FALSE(canvas.GetChangedRect(changed));
}

TEST(CanvasLayout, CopiesCarryColoursAndCopyFromOnlyPixels) {
    const auto canvas = canvasOf({"1234567", "89abcde"});
    canvas->colourTable()[4 * 15 + 2] = 77;
    const auto clone = canvas->Clone();
    ASSERT_NE(clone, nullptr);
    EXPECT_TRUE(std::ranges::equal(clone->block(), canvas->block()));
    EXPECT_EQ(changedRect(*clone), (Rect{0, 0, -1, -1}));

    const auto piece = canvas->CopyRect(5, 1, 8, 1);
    ASSERT_NE(piece, nullptr);
    EXPECT_THAT(rowsOf(*piece), ElementsAre("de.."));
    EXPECT_EQ(piece->colourTable()[4 * 15 + 2], 77);

    TextureCanvas other;
    ASSERT_TRUE(other.CreateLike(*canvas));
    EXPECT_TRUE(other.CopyFrom(*clone));
    EXPECT_EQ(rowsOf(other), rowsOf(*canvas));
    EXPECT_EQ(other.colourTable()[4 * 15 + 2], 0);
    EXPECT_EQ(changedRect(other), (Rect{0, 0, 6, 1}));
    ASSERT_TRUE(other.Create(7, 2, 0, 4));
    EXPECT_FALSE(other.CopyFrom(*clone)) << "planes differ";
}

TEST(CanvasLayout, PaletteColoursComeFromTheBankThatExists) {
    TlutData table;
    ASSERT_TRUE(table.create(20, ColourType::Rgba));
    for (std::int32_t i = 0; i < 20; ++i)
        table.setRed(i, i);
    const TextureLookupTable palette(table);
    const auto reds = [&](std::uint16_t bits, std::int32_t first) {
        TextureCanvas canvas;
        EXPECT_TRUE(canvas.Create(2, 3, 1, bits));
        std::ranges::fill(canvas.colourTable(), std::uint8_t{1});
        canvas.ApplyPalette(palette, first);
        EXPECT_EQ(changedRect(canvas), (Rect{0, 0, 1, 2}));
        std::vector<int> values;
        for (std::size_t i = 2; i < canvas.colourTable().size(); i += 4)
            values.push_back(canvas.colourTable()[i]);
        return values;
    };
    EXPECT_THAT(reds(1, 3), ElementsAre(24, 32));
    EXPECT_THAT(reds(4, 16), ElementsAre(128, 136, 144, 152, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1));
    EXPECT_EQ(reds(4, -2)[1], 1);
    EXPECT_EQ(reds(4, -2)[3], 8);
    EXPECT_EQ(reds(4, std::numeric_limits<std::int32_t>::max())[15], 1);
    EXPECT_EQ(reds(8, 16)[1], 8) << "256 colours begin at entry 0";
    EXPECT_THAT(reds(24, 0), IsEmpty());
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

TEST(CanvasImages, DeepPixelsSurviveTheTripThroughAnImage) {
    for (const std::uint16_t bits : {std::uint16_t{16}, std::uint16_t{24}, std::uint16_t{32}}) {
        TextureCanvas canvas;
        ASSERT_TRUE(canvas.Create(3, 2, 1, bits));
        canvas.SetPixel(2, 0, 0x12345678);
        canvas.SetPixel(0, 1, 0x9ABCDEF0);
        const auto image = canvas.ToImage();
        ASSERT_NE(image, nullptr);
        EXPECT_EQ(image->getTexel(2, 0), canvas.GetPixel(2, 0));
        EXPECT_TRUE(std::ranges::equal(TextureCanvas(*image).block(), canvas.block()));
    }
}

TEST(CanvasFiles, TmfGoesOutAndComesBack) {
    FakePlatform fake;
    const auto canvas = canvasOf({"12345", "6789a"});
    ASSERT_TRUE(canvas->SaveTmf("c:\\sky.tmf"));
    TextureCanvas loaded;
    EXPECT_TRUE(loaded.LoadTmf("c:\\sky.tmf"));
    EXPECT_EQ(rowsOf(loaded), rowsOf(*canvas));
    EXPECT_EQ(changedRect(loaded), (Rect{0, 0, 4, 1}));
    EXPECT_FALSE(loaded.LoadTmf("c:\\none.tmf"));
    EXPECT_TRUE(loaded.block().empty());
    EXPECT_EQ(fake.messages.lastText(), "[c:\\none.tmf] file open failed.\n");
    EXPECT_FALSE(canvasOf({"1"}, 16)->SaveTmf("c:\\deep.tmf"));
    EXPECT_FALSE(fake.files.exists("c:\\deep.tmf"));
}

} // namespace
} // namespace dyeworks
