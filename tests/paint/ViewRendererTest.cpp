#include "paint/TextureCanvas.h"
#include "paint/ViewRenderer.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace dyeworks {
namespace {

constexpr std::uint32_t kOutside = 0xff8899aa;
constexpr std::uint32_t kUntouched = 0x12345678;

/// What the view shows at a logical point, one pixel at a time.
std::uint32_t pixelShown(const TextureCanvas& canvas, std::int32_t zoom, bool grid, std::int32_t x,
                         std::int32_t y) {
    if (x >= canvas.width() * zoom || y >= canvas.height() * zoom)
        return kOutside;
    const auto* colour = &canvas.colourTable()[canvas.GetPixel(x / zoom, y / zoom) * std::size_t{4}];
    std::uint32_t pixel =
        0xff000000 | std::uint32_t{colour[2]} << 16 | std::uint32_t{colour[1]} << 8 | colour[0];
    const bool onVertical = x > 0 && x % (8 * zoom) == 0;
    const bool onHorizontal = y > 0 && y % (8 * zoom) == 0;
    const bool white = zoom == 1 ? x % 8 == 0 && y % 8 == 0 : (x % 8 + y % 8) % 2 == 1;
    return grid && white && (onVertical || onHorizontal) ? pixel | 0x00ffffff : pixel;
}

class ViewRendererCase : public testing::TestWithParam<std::int32_t> {
protected:
    ViewRendererCase() {
        canvas.Create(19, 13, 1, 4);
        std::mt19937 random(3);
        for (std::int32_t y = 0; y < 13; ++y) {
            for (std::int32_t x = 0; x < 19; ++x)
                canvas.SetPixel(x, y, random() & 15);
        }
        for (std::uint8_t& byte : canvas.colourTable())
            byte = static_cast<std::uint8_t>(random() & 0x7f);
    }
    TextureCanvas canvas;
};

TEST_P(ViewRendererCase, DrawsWhatASimplerRuleSays) {
    const std::int32_t zoom = GetParam();
    std::mt19937 random(static_cast<unsigned>(zoom));
    const auto below = [&](std::int32_t limit) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 120; ++round) {
        const bool grid = round % 4 != 0;
        // Surfaces of odd sizes at odd places, with rows that lie further apart than they are long.
        Surface surface{nullptr, 1 + below(60), 1 + below(40), 0, below(20 * zoom), below(14 * zoom)};
        surface.stride = surface.width + 3;
        std::vector<std::uint32_t> buffer(static_cast<std::size_t>(surface.stride * surface.height),
                                          kUntouched);
        surface.pixels = buffer.data();
        const std::int32_t left = std::max(surface.originX + below(20) - 9, 0);
        const std::int32_t top = std::max(surface.originY + below(20) - 9, 0);
        const Rect area{left, top, left + below(60), top + below(40)};

        ViewRenderer(canvas, {zoom, grid, false, kOutside}).draw(surface, area);

        for (std::int32_t row = 0; row < surface.height; ++row) {
            for (std::int32_t column = 0; column < surface.stride; ++column) {
                const std::int32_t x = surface.originX + column;
                const std::int32_t y = surface.originY + row;
                const bool inside = column < surface.width && x >= area.left && x < area.right &&
                                    y >= area.top && y < area.bottom;
                ASSERT_EQ(buffer[static_cast<std::size_t>(row * surface.stride + column)],
                          inside ? pixelShown(canvas, zoom, grid, x, y) : kUntouched)
                    << "at " << x << ", " << y << " in round " << round;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Zooms, ViewRendererCase, testing::Values(1, 2, 3, 4, 16));

TEST(ViewRenderer, ShowsNothingOfTheImageWithoutPaletteOrPixels) {
    TextureCanvas canvas;
    ASSERT_TRUE(canvas.Create(4, 4, 1, 4));
    TextureCanvas flat;
    ASSERT_TRUE(flat.Create(4, 0, 1, 4));
    for (const bool noPalette : {true, false}) {
        std::vector<std::uint32_t> buffer(36, kUntouched);
        Surface surface{buffer.data(), 6, 6, 6};
        ViewRenderer(noPalette ? canvas : flat, {1, true, noPalette, kOutside}).draw(surface, {0, 0, 6, 6});
        EXPECT_EQ(buffer, std::vector<std::uint32_t>(36, kOutside));
    }
}

} // namespace
} // namespace dyeworks
