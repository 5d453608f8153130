#include "CanvasTesting.h"
#include "ViewTestWindow.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasTransform.h"
#include "platform/StringId.h"

#include <functional>

namespace dyeworks {
namespace {

class ImageSize : public ViewFixture {
protected:
    /// The image becomes what `make` makes of it: of that size and depth, each texel what the rule says. Undo
    /// brings back what there was.
    void expectMade(const CDyeworksDoc::CanvasMaker& make, Size size, int bits,
                    const std::function<std::uint32_t(int x, int y)>& rule) {
        const auto before = pixels();
        ASSERT_TRUE(document.ReplaceImage(make));
        const TextureCanvas& canvas = document.canvas();
        ASSERT_EQ((Size{canvas.width(), canvas.height()}), size);
        ASSERT_EQ(canvas.bitsPerPixel(), bits);
        ASSERT_EQ(window.content, size);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x)
                ASSERT_EQ(canvas.GetPixel(x, y), rule(x, y)) << x << ' ' << y;
        }
        // Padding is what a file of the canvas holds, too.
        const auto copy = TextureCanvas(*canvas.ToImage()).CopyRect(0, 0, size.width - 1, size.height - 1);
        ASSERT_TRUE(std::ranges::equal(copy->pixelRows(), canvas.pixelRows()));
        document.Undo();
        ASSERT_EQ(pixels(), before);
        document.ClearUndo();
    }
};

TEST_F(ImageSize, EachEditMakesOfEveryTexelWhatItsRuleSays) {
    for (unsigned seed = 0; seed < 500 && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        const int w = random.between(1, 20);
        const int h = random.between(1, 20);
        const bool wide = random.once(2);
        document.canvas().Create(w, h, 1, wide ? 8 : 4);
        view.SetZoom(1);
        for (int n = 0; n < w * h; ++n)
            document.canvas().SetPixel(n % w, n / w, random.bits());
        const auto old = document.canvas().Clone();
        const int bits = old->bitsPerPixel();
        const Size size{random.once(3) ? 2 * w : random.between(1, 20), random.between(1, 20)};
        const auto value = random.bits() & (wide ? 255U : 15U);
        const int number = random.between(0, 8);
        const Point place = anchored({w, h}, size, static_cast<Anchor>(number));
        // Floor of half the room, whatever its sign.
        const auto of = [](int part, int room) { return part * room >> 1; };
        EXPECT_EQ(place, (Point{of(number % 3, size.width - w), of(number / 3, size.height - h)}));
        expectMade([&](const auto& canvas) { return resized(canvas, size, place, value); }, size, bits,
                   [&](int x, int y) {
                       const Point from{x - place.x, y - place.y};
                       const bool has = from.x >= 0 && from.y >= 0 && from.x < w && from.y < h;
                       return has ? old->GetPixel(from.x, from.y) : value;
                   });
        expectMade([&](const auto& canvas) { return scaled(canvas, size); }, size, bits,
                   [&](int x, int y) {
                       return old->GetPixel((2 * x + 1) * w / (2 * size.width),
                                            (2 * y + 1) * h / (2 * size.height));
                   });
        const Point by{random.between(-50, 50), random.between(-50, 50)};
        expectMade(
            [&](const auto& canvas) { return shifted(canvas, by); }, {w, h}, bits,
            [&](int x, int y) { return old->GetPixel((x - by.x + 100 * w) % w, (y - by.y + 100 * h) % h); });
        expectMade([](const auto& canvas) { return turned(canvas, Turn::Half); }, {w, h}, bits,
                   [&](int x, int y) { return old->GetPixel(w - 1 - x, h - 1 - y); });
        const int bank = random.between(0, 15);
        IndexMap map;
        std::ranges::generate(map, [&] { return static_cast<std::uint8_t>(random.bits() & 15U); });
        expectMade(
            [&](const auto& canvas) {
                return wide ? inFourBits(canvas, map, bank) : inEightBits(canvas, bank);
            },
            {w, h}, wide ? 4 : 8,
            [&](int x, int y) -> std::uint32_t {
                const std::uint32_t was = old->GetPixel(x, y);
                return wide ? map.at(was) : static_cast<std::uint32_t>(bank) * 16 + was;
            });
    }
}

TEST_F(ImageSize, QuarterTurnsAgreeWithSingleTexelsAtAnySizeAndDepth) {
    Random random(1);
    for (const std::uint16_t bits : std::initializer_list<std::uint16_t>{1, 4, 8, 16, 24, 32}) {
        for (const Size size : {Size{64, 64}, Size{65, 63}, Size{1, 130}, Size{129, 1}, Size{200, 71}}) {
            TextureCanvas canvas;
            ASSERT_TRUE(canvas.Create(size.width, size.height, 1, bits));
            for (std::int32_t n = 0; n < size.width * size.height; ++n)
                canvas.SetPixel(n % size.width, n / size.width, random.bits());
            const auto right = turned(canvas, Turn::Right);
            const auto back = turned(*right, Turn::Left);
            for (std::int32_t n = 0; n < size.width * size.height; ++n)
                ASSERT_EQ(right->GetPixel(size.height - 1 - n / size.width, n % size.width),
                          canvas.GetPixel(n % size.width, n / size.width));
            EXPECT_TRUE(std::ranges::equal(back->block(), canvas.block())) << bits;
        }
    }
}

TEST_F(ImageSize, WithoutMemoryEverythingStays) {
    pixel(1, 1, 5);
    const auto before = pixels();
    view.selection().select(Rect{1, 1, 4, 4}, false);
    EXPECT_FALSE(document.ReplaceImage([](const auto&) { return nullptr; }));
    EXPECT_EQ(platform.messages.lastText(), text(StringId::NotEnoughMemory));
    EXPECT_EQ(pixels(), before);
    EXPECT_EQ(document.edits().steps->count(), 1);
    EXPECT_TRUE(view.selection().texels());
    view.selection().setFloatingPiece(document.canvas().CopyRect(0, 0, 2, 2), StringId{});
    EXPECT_FALSE(document.ReplaceImage([](const auto&) { return nullptr; }));
    EXPECT_TRUE(view.selection().hasFloatingPiece());
    EXPECT_EQ(resized(document.canvas(), {65536, 65536}, {}, 0), nullptr);
}

} // namespace
} // namespace dyeworks
