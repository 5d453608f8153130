#include "CanvasTesting.h"

#include <functional>

namespace dyeworks {
namespace {

/// The same canvas and the same partner twice: of the plain class and of a derived one.
struct Way {
    std::unique_ptr<TextureCanvas> canvas;
    std::unique_ptr<TextureCanvas> partner;
};

template <typename Canvas>
std::unique_ptr<TextureCanvas> randomCanvas(Random& random, std::uint16_t bitsPerPixel) {
    auto canvas = std::make_unique<Canvas>();
    // A few are wide enough for everything that works in pieces.
    const bool wide = random.once(10);
    const std::int32_t width = random.between(0, wide ? 2600 : 70);
    EXPECT_TRUE(canvas->Create(width, random.between(0, wide ? 4 : 40), 1, bitsPerPixel));
    // Few values, so that there are runs; now and then all bits.
    const bool wild = random.once(4);
    std::uint32_t value = 0;
    for (std::int32_t y = 0; y < canvas->height(); ++y) {
        for (std::int32_t x = 0; x < canvas->width(); ++x) {
            if (random.once(6))
                value = wild ? random.bits() : random.bits() & 1U;
            canvas->SetPixel(x, y, value);
        }
    }
    canvas->ResetChangedRect();
    return canvas;
}

template <typename Canvas>
Way randomWay(unsigned seed, std::uint16_t bitsPerPixel, std::uint16_t partnerBits) {
    Random random(seed);
    Way way;
    way.canvas = randomCanvas<Canvas>(random, bitsPerPixel);
    way.partner = randomCanvas<Canvas>(random, partnerBits);
    return way;
}

struct PaintingPrimitive {
    const char* name;
    std::function<bool(TextureCanvas&, TextureCanvas&, Random&)> run;
};

std::int32_t near(Random& random) {
    return random.once(8) ? random.between(-900, 2500) : random.between(-12, 75);
}

std::int32_t inside(Random& random) {
    return random.between(0, 50);
}

std::uint32_t anyValue(Random& random) {
    return random.once(2) ? random.bits() & 1U : random.bits();
}

using Shape = void (TextureCanvas::*)(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::uint32_t);

PaintingPrimitive shape(const char* name, Shape draw) {
    return {name, [draw](TextureCanvas& canvas, TextureCanvas&, Random& random) {
                const std::int32_t x = near(random);
                const std::int32_t y = near(random);
                const std::int32_t x2 = random.once(10) ? x : near(random);
                (canvas.*draw)(x, y, x2, near(random), anyValue(random));
                return true;
            }};
}

const std::vector<PaintingPrimitive>& primitives() {
    using Canvas = TextureCanvas;
    static const std::vector<PaintingPrimitive> all = {
        shape("DrawBox", &Canvas::DrawBox),
        shape("FillBox", &Canvas::FillBox),
        shape("DrawEllipse", &Canvas::DrawEllipse),
        shape("FillEllipse", &Canvas::FillEllipse),
        {"DrawLine",
         [](Canvas& canvas, Canvas&, Random& random) {
             const std::int32_t reach = random.once(3) ? 20000 : 80;
             const auto at = [&] { return random.between(-reach, reach); };
             const std::int32_t x = at();
             const std::int32_t y = at();
             const std::int32_t x2 = random.once(10) ? x : at();
             return canvas.DrawLine(x, y, x2, at(), anyValue(random));
         }},
        {"FloodFill",
         [](Canvas& canvas, Canvas&, Random& random) {
             const std::int32_t x = inside(random);
             canvas.FloodFill(x, inside(random), anyValue(random));
             return true;
         }},
        {"ReplaceColor",
         [](Canvas& canvas, Canvas&, Random& random) {
             const Rect area{near(random), near(random), near(random), near(random)};
             const std::int32_t x = inside(random);
             canvas.ReplaceColor(area, x, inside(random), anyValue(random));
             return true;
         }},
        {"Flip",
         [](Canvas& canvas, Canvas&, Random& random) {
             const Rect area{near(random), near(random), near(random), near(random)};
             canvas.Flip(area.left, area.top, area.right, area.bottom, random.bits() & 7U);
             return true;
         }},
        {"CopyTo",
         [](Canvas& canvas, Canvas& partner, Random& random) {
             const std::int32_t x = near(random);
             return canvas.CopyTo(random.once(4) ? canvas : partner, x, near(random));
         }},
        {"StretchPaste",
         [](Canvas& canvas, Canvas& partner, Random& random) {
             const Canvas& source = random.once(5) ? canvas : partner;
             const std::int32_t x = near(random);
             const std::int32_t y = near(random);
             const std::int32_t factor = random.between(1, 4);
             if (random.once(2))
                 return canvas.StretchPaste(source, x, y, x + factor * source.width(),
                                            y + factor * source.height());
             const std::int32_t x2 = near(random);
             return canvas.StretchPaste(source, x, y, x2, near(random));
         }},
        {"FromImage",
         [](Canvas& canvas, Canvas& partner, Random&) {
             const std::unique_ptr<TmfImage> image = partner.ToImage();
             if (image != nullptr)
                 canvas.FromImage(*image);
             return image != nullptr;
         }},
        {"CopyRect",
         [](Canvas& canvas, Canvas& partner, Random& random) {
             const std::int32_t x = near(random);
             const std::int32_t y = near(random);
             const auto piece = canvas.CopyRect(x, y, x + random.between(-1, 40), y + random.between(-1, 40));
             return piece != nullptr && partner.CreateLike(*piece) && partner.CopyFrom(*piece);
         }},
    };
    return all;
}

class CanvasBothWays : public testing::TestWithParam<std::uint16_t> {};

TEST_P(CanvasBothWays, GiveTheSameBytesChangedRectangleAndResult) {
    const std::uint16_t bitsPerPixel = GetParam();
    for (unsigned seed = 0; seed < 1200; ++seed) {
        const PaintingPrimitive& primitive = primitives()[seed % primitives().size()];
        SCOPED_TRACE(testing::Message() << primitive.name << ", seed " << seed);
        Random choice(seed);
        const auto partnerBits = choice.once(6) ? std::uint16_t{8} : bitsPerPixel;
        Way fast = randomWay<TextureCanvas>(seed, bitsPerPixel, partnerBits);
        Way slow = randomWay<SlowCanvas>(seed, bitsPerPixel, partnerBits);
        Random fastRandom(seed + 1);
        Random slowRandom(seed + 1);

        EXPECT_EQ(primitive.run(*fast.canvas, *fast.partner, fastRandom),
                  primitive.run(*slow.canvas, *slow.partner, slowRandom));
        ASSERT_TRUE(std::ranges::equal(fast.canvas->block(), slow.canvas->block()));
        ASSERT_TRUE(std::ranges::equal(fast.partner->block(), slow.partner->block()));
        ASSERT_EQ(changedRect(*fast.canvas), changedRect(*slow.canvas));
        ASSERT_EQ(changedRect(*fast.partner), changedRect(*slow.partner));
    }
}

INSTANTIATE_TEST_SUITE_P(Depths, CanvasBothWays, testing::Values(1, 2, 4, 8, 16, 24, 32),
                         testing::PrintToStringParamName());

} // namespace
} // namespace dyeworks
