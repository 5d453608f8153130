#include "CanvasTesting.h"

#include <limits>

namespace dyeworks {
namespace {

constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();

using Rows = std::vector<std::string>;

std::unique_ptr<TextureCanvas> blank(std::int32_t width, std::int32_t height) {
    auto canvas = std::make_unique<TextureCanvas>();
    EXPECT_TRUE(canvas->Create(width, height, 1, 4));
    return canvas;
}

TEST(CanvasShapes, LineAnswersForItsLastPixel) {
    const auto canvas = blank(4, 4);
    EXPECT_FALSE(canvas->DrawLine(0, 1, 9, 1, 1));
    EXPECT_TRUE(canvas->DrawLine(-9, 1, 2, 1, 1));
    EXPECT_FALSE(canvas->DrawLine(-5, -5, -5, -5, 1));
}

TEST(CanvasShapes, LinesBetweenTheFarthestPointsAreCutExactly) {
    const auto canvas = blank(5, 5);
    EXPECT_FALSE(canvas->DrawLine(kLow, kLow, kHigh, kHigh, 1));
    EXPECT_EQ(rowsOf(*canvas), (Rows{"1....", ".1...", "..1..", "...1.", "....1"}));
    EXPECT_EQ(changedRect(*canvas), (Rect{0, 0, 4, 4}));

    // Half a row of slope over the whole width: the middle of the step lies at x = 0.
    const auto flat = blank(5, 5);
    flat->DrawLine(kLow, 2, kHigh, 3, 1);
    flat->DrawLine(3, kHigh, 3, kLow, 2);
    EXPECT_EQ(rowsOf(*flat), (Rows{"...2.", "...2.", "...2.", "11121", "...2."}));
    flat->DrawLine(kHigh, kLow, kLow, kLow, 5);
    EXPECT_EQ(changedRect(*flat), (Rect{0, 0, 4, 4}));
}

TEST(CanvasShapes, BoxesOfTheFarthestCornersAreCut) {
    const auto canvas = blank(3, 3);
    canvas->FillBox(kHigh, kHigh, kLow, kLow, 0x12345677);
    EXPECT_EQ(rowsOf(*canvas), (Rows{"777", "777", "777"}));
    canvas->DrawBox(kLow, 1, 1, kHigh, 2);
    EXPECT_EQ(rowsOf(*canvas), (Rows{"777", "227", "727"}));
    canvas->ReplaceColor({kHigh, kHigh, kLow, kLow}, 2, 2, 4);
    canvas->Flip(kLow, 0, 2, 0, TextureCanvas::kFlipHorizontal);
    EXPECT_EQ(rowsOf(*canvas), (Rows{"...", "224", "424"}));
    EXPECT_TRUE(canvas->StretchPaste(*canvasOf({"12", "34"}), kLow, kLow, kHigh, kHigh));
    EXPECT_EQ(rowsOf(*canvas), (Rows{"444", "444", "444"}));
}

TEST(CanvasShapes, FillReachesExactlyTheConnectedRegion) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        Random random(seed);
        TextureCanvas canvas;
        ASSERT_TRUE(canvas.Create(random.between(1, 40), random.between(1, 40), 1, seed % 2 == 0 ? 4 : 8));
        for (std::int32_t i = 0; i < canvas.width() * canvas.height(); ++i)
            canvas.SetPixel(i % canvas.width(), i / canvas.width(), random.once(3) ? 1 : 0);
        const Point start{random.between(0, canvas.width() - 1), random.between(0, canvas.height() - 1)};
        const std::uint32_t target = canvas.GetPixel(start.x, start.y);

        Rows expected = rowsOf(canvas);
        std::vector<Point> open{start};
        while (!open.empty()) {
            const auto [x, y] = open.back();
            open.pop_back();
            if (x < 0 || y < 0 || x >= canvas.width() || y >= canvas.height())
                continue;
            char& pixel = expected[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            if (pixel != (target == 0 ? '.' : '1'))
                continue;
            pixel = '9';
            for (const Point next : {Point{x - 1, y}, Point{x + 1, y}, Point{x, y - 1}, Point{x, y + 1}})
                open.push_back(next);
        }
        canvas.FloodFill(start.x, start.y, 9);
        ASSERT_EQ(rowsOf(canvas), expected) << "seed " << seed;
    }
}

template <typename Canvas>
void fillBetweenCombs(std::uint16_t bitsPerPixel) {
    // Every other pixel of the outer rows can be reached from the middle one alone, some 5000 on each side.
    // They are taken in turns, the upper one first, and 4096 find room.
    constexpr std::int32_t kWidth = 10001;
    Canvas canvas;
    ASSERT_TRUE(canvas.Create(kWidth, 3, 1, bitsPerPixel));
    for (std::int32_t x = 1; x < kWidth; x += 2) {
        canvas.SetPixel(x, 0, 1);
        canvas.SetPixel(x, 2, 1);
    }
    canvas.SetPixel(0, 2, 1);
    canvas.FloodFill(7000, 1, 3);
    for (std::int32_t x = 2; x < kWidth; x += 2) {
        ASSERT_EQ(canvas.GetPixel(x, 0), x <= 4096 ? 3U : 0U) << x;
        ASSERT_EQ(canvas.GetPixel(x, 1), 3U) << x;
        ASSERT_EQ(canvas.GetPixel(x, 2), x < 4096 ? 3U : 0U) << x;
    }
}

TEST(CanvasShapes, FillDropsTheSeedsBeyond4096) {
    fillBetweenCombs<TextureCanvas>(4);
    fillBetweenCombs<TextureCanvas>(8);
    fillBetweenCombs<SlowCanvas>(4);
}

TEST(CanvasShapes, ReplaceTakesClicksOnTheRectanglesEdgesOnly) {
    const Rows rows{"121", "212"};
    const auto canvas = canvasOf(rows);
    canvas->ReplaceColor({1, 1, 0, 0}, 2, 0, 9);
    EXPECT_EQ(rowsOf(*canvas), rows);
    canvas->ReplaceColor({1, 1, 0, 0}, 1, 1, 9);
    EXPECT_EQ(rowsOf(*canvas), (Rows{"921", "292"}));
    EXPECT_EQ(changedRect(*canvas), (Rect{0, 0, 1, 1}));
}

} // namespace
} // namespace dyeworks
