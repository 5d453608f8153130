#include "BmpFile.h"
#include "CanvasTesting.h"
#include "platform/fake/FakePlatform.h"

#include <algorithm>
#include <span>

namespace dyeworks {
namespace {

class CanvasClipboard : public testing::Test {
protected:
    static std::vector<std::byte> packed(const BmpFile& file) {
        const std::vector<std::byte> bytes = file.bytes();
        return {bytes.begin() + 14, bytes.end()};
    }

    FakePlatform fake_;
};

TEST_F(CanvasClipboard, TakesThePartBetweenTheCornersWithItsColours) {
    const auto canvas = canvasOf({"123456789", "abcdef123", "456789abc", "def123456", "789abcdef"});
    canvas->colourTable()[4 * 15 + 3] = 0x99;
    const std::uint32_t fields[] = {40, 4, 2, 1 | 4 << 16, 0, 0, 0, 0, 16, 0};
    std::vector<std::byte> expected(40 + 64);
    for (std::size_t i = 0; i < std::size(fields); ++i)
        writeU32(expected, 4 * i, fields[i]);
    expected[40 + 4 * 15 + 3] = std::byte{0x99};
    // The lower row first.
    for (const unsigned byte : {0x9a, 0xbc, 0, 0, 0xf1, 0x23, 0, 0})
        expected.push_back(static_cast<std::byte>(byte));

    EXPECT_TRUE(canvas->CopyToClipboard({5, 4, 2, 3}));
    EXPECT_EQ(fake_.clipboard.bitmap(), expected);

    const auto pasted = TextureCanvas::PasteFromClipboard();
    ASSERT_NE(pasted, nullptr);
    EXPECT_TRUE(std::ranges::equal(pasted->packedBitmap(), expected));

    EXPECT_FALSE(canvas->CopyToClipboard({0, 0, 0x7ffffffe, 0x7ffffffe})) << "more than memory holds";
    fake_.clipboard.busy = true;
    EXPECT_FALSE(canvas->CopyToClipboard({0, 0, 0, 0}));
    EXPECT_EQ(fake_.clipboard.bitmap(), expected);
}

TEST_F(CanvasClipboard, PastesNothingFromWhatIsNoBitmapThatACanvasCanHold) {
    const auto cutShort = [](std::vector<std::byte> bitmap) {
        bitmap.pop_back();
        return bitmap;
    };
    EXPECT_EQ(TextureCanvas::PasteFromClipboard(), nullptr) << "empty";
    fake_.clipboard.setText("a text");
    EXPECT_EQ(TextureCanvas::PasteFromClipboard(), nullptr) << "text";
    const struct {
        const char* what;
        std::vector<std::byte> bitmap;
    } cases[] = {
        {"a byte is missing", cutShort(packed({}))},
        {"a table as large as can be", packed({.coloursUsed = 0xFFFFFFFFU})},
        {"more than a canvas may have", packed({.width = 0, .height = 1 << 27})},
    };
    for (const auto& [what, bitmap] : cases) {
        fake_.clipboard.setBitmap(bitmap);
        EXPECT_EQ(TextureCanvas::PasteFromClipboard(), nullptr) << what;
    }
    EXPECT_TRUE(fake_.messages.shown.empty());
}

} // namespace
} // namespace dyeworks
