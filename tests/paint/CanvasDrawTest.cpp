#include "CanvasTesting.h"

#include <limits>

namespace dyeworks {
namespace {

constexpr std::uint32_t kUntouched = 0x01020304;

std::uint32_t displayColour(const TextureCanvas& canvas, std::int32_t x, std::int32_t y) {
    const std::uint32_t value = canvas.GetPixel(x, y);
    switch (canvas.bitsPerPixel()) {
    case 16: {
        const auto wide = [value](unsigned shift) { return (value >> shift & 31U) * 33U / 4U; };
        return 0xFF000000U | wide(10) << 16U | wide(5) << 8U | wide(0);
    }
    case 24:
    case 32:
        return 0xFF000000U | value;
    default: {
        const std::uint8_t* quad = canvas.colourTable().data() + 4 * static_cast<std::size_t>(value);
        return 0xFF000000U | std::uint32_t{quad[2]} << 16U | std::uint32_t{quad[1]} << 8U | quad[0];
    }
    }
}

TEST(CanvasDraw, ShowsTheNearestPixelOfEveryPlace) {
    for (unsigned seed = 0; seed < 600; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        constexpr std::uint16_t kDepths[] = {1, 4, 8, 16, 24, 32};
        TextureCanvas canvas;
        ASSERT_TRUE(canvas.Create(random.between(0, 23), random.between(0, 11), 1, kDepths[seed % 6]));
        for (std::uint8_t& channel : canvas.colourTable())
            channel = static_cast<std::uint8_t>(random.bits());
        for (std::int32_t i = 0; i < canvas.width() * canvas.height(); ++i)
            canvas.SetPixel(i % canvas.width(), i / canvas.width(), random.bits());

        Surface surface;
        surface.width = random.between(0, 50);
        surface.height = random.between(0, 30);
        surface.stride = surface.width + random.between(0, 3);
        surface.originX = random.between(-5, 20);
        surface.originY = random.between(-5, 20);
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(surface.stride * (surface.height + 1)),
                                          kUntouched);
        surface.pixels = pixels.data();

        Rect from{random.between(-3, 12), random.between(-3, 6), 0, 0};
        from.right = from.left + random.between(0, 20);
        from.bottom = from.top + random.between(0, 10);
        Rect to{random.between(-20, 20), random.between(-20, 20), 0, 0};
        const bool zoomed = !random.once(3);
        const std::int32_t zoom = random.between(1, 5);
        to.right = to.left + (zoomed ? zoom * (from.right - from.left) : random.between(-1, 60));
        to.bottom = to.top + (zoomed ? zoom * (from.bottom - from.top) : random.between(-1, 60));

        std::vector<std::uint32_t> expected = pixels;
        std::int32_t rows = 0;
        for (std::int32_t y = 0; y < surface.height; ++y) {
            bool touched = false;
            for (std::int32_t x = 0; x < surface.width; ++x) {
                const std::int32_t i = surface.originX + x - to.left;
                const std::int32_t j = surface.originY + y - to.top;
                if (i < 0 || j < 0 || i >= to.right - to.left || j >= to.bottom - to.top ||
                    from.right <= from.left || from.bottom <= from.top)
                    continue;
                const std::int32_t sourceX = from.left + i * (from.right - from.left) / (to.right - to.left);
                const std::int32_t sourceY = from.top + j * (from.bottom - from.top) / (to.bottom - to.top);
                if (sourceX < 0 || sourceY < 0 || sourceX >= canvas.width() || sourceY >= canvas.height())
                    continue;
                expected[static_cast<std::size_t>(y * surface.stride + x)] =
                    canvas.bitsPerPixel() == 32 ? displayColour(canvas, sourceX, sourceY) | 0xFF000000U
                                                : displayColour(canvas, sourceX, sourceY);
                touched = true;
            }
            rows += touched ? 1 : 0;
        }
        ASSERT_EQ(canvas.Draw(surface, to, from), rows);
        ASSERT_EQ(pixels, expected);
    }
}

TEST(CanvasDraw, FarthestRectanglesAreCut) {
    constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();
    const auto canvas = canvasOf({"12"});
    canvas->colourTable()[4] = 0x10;
    canvas->colourTable()[8] = 0x20;
    std::uint32_t pixels[2] = {kUntouched, kUntouched};
    Surface surface{pixels, 2, 1, 2, -1, 0};
    EXPECT_EQ(canvas->Draw(surface, {kLow, kLow, kHigh, kHigh}, {0, 0, 2, 1}), 1);
    EXPECT_EQ(pixels[0], 0xFF000010U);
    EXPECT_EQ(pixels[1], 0xFF000020U);
    EXPECT_EQ(canvas->Draw(surface, {0, 0, 2, 1}, {kHigh, kHigh, kLow, kLow}), 0);
    EXPECT_EQ(canvas->Draw(surface, {kLow, kLow, kHigh, kHigh}, {kLow, kLow, kHigh, kHigh}), 1);
    EXPECT_EQ(pixels[1], 0xFF000010U);
}

} // namespace
} // namespace dyeworks
