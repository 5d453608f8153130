#include "BmpFile.h"
#include "CanvasTesting.h"
#include "paint/BackgroundPicture.h"
#include "paint/ViewGeometry.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::IsEmpty;

class CanvasBmp : public testing::Test {
protected:
    bool load(const std::vector<std::byte>& file) {
        fake_.files.putFile("c:\\picture.bmp", file);
        return canvas_.LoadBmp("c:\\picture.bmp");
    }

    FakePlatform fake_;
    TextureCanvas canvas_;
};

TEST_F(CanvasBmp, SavedFileIsTheBlockAndLoadsAsTheSame) {
    constexpr std::uint16_t kDepths[] = {1, 4, 8, 16, 24, 32};
    for (const std::uint16_t bits : kDepths) {
        const auto canvas = canvasOf({"1.11.1111.1", "11..1..1..1", "...1.1.1.1."}, bits);
        if (bits <= 8)
            canvas->colourTable()[5] = 200;
        ASSERT_TRUE(canvas->SaveBmp("c:\\out.bmp"));
        EXPECT_TRUE(std::ranges::equal(fake_.files.bytesOf("c:\\out.bmp").value(), canvas->block()));
        ASSERT_TRUE(canvas_.LoadBmp("c:\\out.bmp"));
        EXPECT_TRUE(std::ranges::equal(canvas_.block(), canvas->block()));
        EXPECT_EQ(changedRect(canvas_), (Rect{0, 0, -1, -1}));

        const auto packed = parsePackedBitmap(canvas->packedBitmap());
        ASSERT_TRUE(packed);
        TextureCanvas pasted;
        ASSERT_TRUE(pasted.CreateFrom(packed.value()));
        EXPECT_TRUE(std::ranges::equal(pasted.block(), canvas->block()));
    }
    EXPECT_FALSE(TextureCanvas().SaveBmp("c:\\none.bmp"));
    fake_.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(canvas_.SaveBmp("c:\\out.bmp"));
}

TEST_F(CanvasBmp, EveryAcceptedHeaderEndsInTheUsualLayout) {
    const struct {
        const char* what;
        BmpFile file;
        std::uint32_t topLeft;
        std::uint32_t colours;
        int lastColour; ///< Red of colour 200 (8 bits) or 15 (4 bits).
    } cases[] = {
        {"full table", {}, 5, 256, 200},
        {"short table", {.coloursUsed = 7, .colours = 7}, 5, 256, 0},
        {"long table", {.coloursUsed = 300, .colours = 300}, 5, 256, 200},
        {"top-down", {.height = -2}, 1, 256, 200},
        {"4 bits, 3 colours", {.bits = 4, .coloursUsed = 3, .colours = 3}, 0, 16, 0},
        {"no colours above 8 bits", {.width = 1, .bits = 24, .coloursUsed = 2, .colours = 0}, 0x070605, 0, 0},
        {"108 bytes", {.headerSize = 108, .gap = 6}, 5, 256, 200},
        {"124 bytes, short table", {.headerSize = 124, .coloursUsed = 9, .colours = 9, .gap = 3}, 5, 256, 0},
        {"124 bytes, table ends at the rows", {.headerSize = 124, .colours = 9}, 5, 256, 0},
        {"a table that 24 bits do not need",
         {.headerSize = 108, .width = 1, .bits = 24, .coloursUsed = 9, .colours = 9},
         0x070605,
         0,
         0},
        {"32 bits, top-down",
         {.headerSize = 124, .width = 1, .height = -2, .bits = 32, .colours = 0},
         0x04030201,
         0,
         0},
        {"12 bytes", {.headerSize = 12}, 5, 256, 200},
        {"12 bytes, 24 bits, gap",
         {.headerSize = 12, .width = 1, .bits = 24, .colours = 0, .gap = 5},
         0x070605,
         0,
         0},
    };
    for (const auto& [what, file, topLeft, colours, lastColour] : cases) {
        SCOPED_TRACE(what);
        std::vector<std::byte> bytes = file.bytes();
        if (file.headerSize == 40)
            writeU32(bytes, 10, 1);
        ASSERT_TRUE(load(bytes));
        EXPECT_EQ(canvas_.GetPixel(0, 0), topLeft);
        EXPECT_EQ(canvas_.height(), 2);
        EXPECT_EQ(canvas_.GetColorCount(), colours);
        EXPECT_EQ(canvas_.block().size(), 54 + 4 * colours + 8);
        EXPECT_EQ(readU32(canvas_.block(), 14), 40U);
        EXPECT_EQ(readU32(canvas_.block(), 38), file.headerSize == 12 ? 0U : 2835U);
        if (colours > 0) {
            EXPECT_EQ(canvas_.colourTable()[4 * (colours == 256 ? 200 : 15) + 2], lastColour);
        }
        // On the clipboard the rows follow the colours.
        if (file.gap == 0 && file.colours == (file.coloursUsed != 0 ? file.coloursUsed : colours)) {
            fake_.clipboard.setBitmap({bytes.begin() + 14, bytes.end()});
            const auto pasted = TextureCanvas::PasteFromClipboard();
            ASSERT_NE(pasted, nullptr);
            EXPECT_TRUE(std::ranges::equal(pasted->block(), canvas_.block()));
        }
    }
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
}

TEST_F(CanvasBmp, DamagedFilesAreRefusedWithoutAMessage) {
    constexpr std::int32_t kLongest = BmpImage::kLongestSide;
    constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
    const auto spoilt = [](std::size_t offset, std::uint32_t value, BmpFile file = {}) {
        std::vector<std::byte> bytes = file.bytes();
        writeU32(bytes, offset, value);
        return bytes;
    };
    const auto size = static_cast<std::uint32_t>(BmpFile{}.bytes().size());
    const struct {
        const char* what;
        std::vector<std::byte> file;
    } cases[] = {
        {"wrong type", spoilt(0, 0x12344D41)},
        {"size below the file header", spoilt(2, 13)},
        {"size beyond the file", spoilt(2, size + 1)},
        {"info header of 16 bytes", spoilt(14, 16)},
        {"info header of 64 bytes", spoilt(14, 64)},
        {"info header beyond the file", spoilt(14, 0xFFFFFFFFU)},
        {"negative width", BmpFile{.width = -4}.bytes()},
        {"a row of nothing too many", BmpFile{.width = 0, .height = kLongest + 1}.bytes()},
        {"a top-down row of nothing too many", BmpFile{.width = 0, .height = -kLongest - 1}.bytes()},
        {"a column of nothing too many", BmpFile{.width = kLongest + 1, .height = 0}.bytes()},
        {"lowest height of nothing", BmpFile{.width = 0, .height = kLowest}.bytes()},
        {"highest", BmpFile{.width = kHighest, .height = kHighest, .bits = 65535}.bytes()},
        {"a row more", BmpFile{.height = 3}.bytes()},
        {"most colours", BmpFile{.coloursUsed = 0xFFFFFFFFU}.bytes()},
        {"a colour more", BmpFile{.coloursUsed = 257}.bytes()},
        {"rows inside the header", spoilt(10, 14 + 107, {.headerSize = 108})},
        {"rows beyond the file", spoilt(10, 0xFFFFFFFFU, {.headerSize = 108})},
        {"rows inside the colours", spoilt(10, 14 + 108 + 99, {.headerSize = 108, .coloursUsed = 256})},
        {"12 bytes, rows inside the header", spoilt(10, 25, {.headerSize = 12})},
    };
    for (const auto& [what, file] : cases) {
        SCOPED_TRACE(what);
        ASSERT_TRUE(canvas_.Create(2, 2, 1, 8));
        EXPECT_FALSE(load(file));
        EXPECT_TRUE(canvas_.block().empty());
    }
    EXPECT_FALSE(canvas_.LoadBmp("c:\\none.bmp"));
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
}

// The other depths are seen with the eyes of ImageMagick.
TEST_F(CanvasBmp, ABackgroundHasItsColoursOrIsNotThere) {
    const struct {
        BmpFile file;
        std::vector<std::uint32_t> pixels;
        const char* message = "";
    } cases[] = {
        {{.width = 2, .bits = 16, .colours = 0}, {0xFF088429, 0xFF100039, 0xFF008408, 0xFF080018}},
        {{.width = 2, .coloursUsed = 6, .colours = 6}, {0xFF050505, 0xFF000000, 0xFF010101, 0xFF020202}},
        {{.height = 3}, {}},
        {{.compression = 1}, {}, "compressed format not supported.\n"},
    };
    EXPECT_TRUE(BackgroundPicture::read("c:\\picture.bmp").empty());
    for (const auto& [file, pixels, message] : cases) {
        fake_.files.putFile("c:\\picture.bmp", file.bytes());
        EXPECT_EQ(BackgroundPicture::read("c:\\picture.bmp").pixels, pixels);
        EXPECT_EQ(fake_.messages.lastText(), message);
    }
}

TEST_F(CanvasBmp, TheLongestSideCanBeShownAtTheLargestZoom) {
    ASSERT_TRUE(load(BmpFile{.width = 0, .height = -BmpImage::kLongestSide}.bytes()));
    const ViewGeometry geometry(ViewGeometry::kMaxZoom, {0, canvas_.height()}, {}, {});
    EXPECT_EQ(geometry.contentSize().height, std::int64_t{16} * BmpImage::kLongestSide);
    ASSERT_TRUE(load(BmpFile{.width = BmpImage::kLongestSide, .height = 0}.bytes()));
}

TEST_F(CanvasBmp, FilesCutOffAnywhereAreRefused) {
    for (const std::uint32_t headerSize : {12U, 40U, 124U}) {
        const std::vector<std::byte> whole = BmpFile{.headerSize = headerSize}.bytes();
        for (std::size_t length = 0; length < whole.size(); ++length) {
            // In memory of exactly this length, so that a sanitizer sees a byte too much.
            std::vector<std::byte> part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
            ASSERT_FALSE(parseBmp(part)) << length;
            if (length >= 14) {
                writeU32(part, 2, static_cast<std::uint32_t>(length));
                ASSERT_FALSE(parseBmp(part)) << length;
                ASSERT_FALSE(parsePackedBitmap(std::span(part).subspan(14))) << length;
            }
        }
    }
}

} // namespace
} // namespace dyeworks
