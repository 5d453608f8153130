#include "paint/ViewRenderer.h"

#include "paint/TextureCanvas.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace dyeworks {
namespace {

constexpr std::uint32_t kOutside = 0xff8899aa;
constexpr std::uint32_t kUntouched = 0x12345678;
constexpr std::uint32_t kBlack = 0xff000000;
constexpr std::uint32_t kWhite = 0xffffffff;

std::uint32_t colourAt(const TextureCanvas& canvas, std::int32_t x, std::int32_t y) {
    const auto* colour = &canvas.colourTable()[canvas.GetPixel(x, y) * std::size_t{4}];
    return kBlack | std::uint32_t{colour[2]} << 16 | std::uint32_t{colour[1]} << 8 | colour[0];
}

/// What the view shows at a logical point, one pixel at a time.
std::uint32_t imageShown(const TextureCanvas& canvas, const ViewLook& look, std::int32_t x, std::int32_t y) {
    const std::int32_t zoom = look.zoom;
    if (x >= canvas.width() * zoom || y >= canvas.height() * zoom)
        return kOutside;
    const bool onLine = (x > 0 && x % (8 * zoom) == 0) || (y > 0 && y % (8 * zoom) == 0);
    const bool white = zoom == 1 ? x % 8 == 0 && y % 8 == 0 : (x + y) % 2 == 1;
    return look.gridShown && white && onLine ? kWhite : colourAt(canvas, x / zoom, y / zoom);
}

std::uint32_t selectionShown(const SelectionLook& selection, std::int32_t zoom, std::int32_t x,
                             std::int32_t y, std::uint32_t beneath) {
    // Coordinates within the selected texels' area.
    const std::int32_t width = (selection.texels.right - selection.texels.left + 1) * zoom;
    const std::int32_t height = (selection.texels.bottom - selection.texels.top + 1) * zoom;
    const std::int32_t u = x - selection.texels.left * zoom;
    const std::int32_t v = y - selection.texels.top * zoom;
    if (u < 0 || v < 0 || u >= width || v >= height)
        return beneath;
    if (u == 0 || v == 0 || u == width - 1 || v == height - 1)
        return (x / 2 + y / 2) % 2 == (selection.antsPhase ? 1 : 0) ? kWhite : kBlack;

    const std::int32_t side =
        (selection.trackerStyle & 8) == 0 ? 0 : std::min({(width - 2) / 3, (height - 2) / 3, 5});
    for (const std::int32_t left : {1, 1 + (width - 2 - side) / 2, width - 1 - side}) {
        for (const std::int32_t top : {1, 1 + (height - 2 - side) / 2, height - 1 - side}) {
            const bool centre = left != 1 && left != width - 1 - side && top != 1 && top != height - 1 - side;
            if (centre || u < left || v < top || u >= left + side || v >= top + side)
                continue;
            const bool edge = u == left || v == top || u == left + side - 1 || v == top + side - 1;
            return edge ? kBlack : kWhite;
        }
    }
    const bool onFrame = u == 1 || v == 1 || u == width - 2 || v == height - 2;
    if ((selection.trackerStyle & 2) != 0 && onFrame && (x + y) % 2 == 0)
        return kBlack;
    const TextureCanvas* piece = selection.floating;
    return piece == nullptr ? beneath
                            : colourAt(*piece, u * piece->width() / width, v * piece->height() / height);
}

class ViewRendererCase : public testing::TestWithParam<std::int32_t> {
protected:
    ViewRendererCase() {
        paint(canvas, 19, 13);
        paint(piece, 5, 3);
    }

    std::int32_t below(std::int32_t limit) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(limit));
    }

    void paint(TextureCanvas& target, std::int32_t width, std::int32_t height) {
        target.Create(width, height, 1, 4);
        for (std::int32_t i = 0; i < width * height; ++i)
            target.SetPixel(i % width, i / width, random() & 15);
        for (std::uint8_t& byte : target.colourTable())
            byte = static_cast<std::uint8_t>(random() & 0x7f);
    }

    /// In turns without and with grid, selection and floating piece, and in each phase of the border.
    ViewLook look(int round) {
        ViewLook result;
        result.zoom = GetParam();
        result.gridShown = round % 3 != 0;
        result.outsideColour = kOutside;
        if (round % 4 != 0) {
            const std::int32_t left = below(19);
            const std::int32_t top = below(13);
            result.selection = {{left, top, left + below(9), top + below(9)},
                                round % 2 != 0 ? &piece : nullptr,
                                round % 5 != 0 ? 10U : 2U,
                                round % 8 < 4};
            result.imageShown = round % 7 != 0;
        }
        return result;
    }

    std::mt19937 random{static_cast<unsigned>(GetParam())};
    TextureCanvas canvas;
    TextureCanvas piece;
};

TEST_P(ViewRendererCase, DrawsWhatASimplerRuleSays) {
    const std::int32_t zoom = GetParam();
    for (int round = 0; round < 280; ++round) {
        const ViewLook shown = look(round);
        // Surfaces of odd sizes at odd places, with rows that lie further apart than they are long.
        Surface surface{nullptr, 1 + below(90), 1 + below(70), 0, below(20 * zoom), below(14 * zoom)};
        surface.stride = surface.width + 3;
        std::vector<std::uint32_t> buffer(static_cast<std::size_t>(surface.stride * surface.height),
                                          kUntouched);
        surface.pixels = buffer.data();
        const std::int32_t left = std::max(surface.originX + below(20) - 9, 0);
        const std::int32_t top = std::max(surface.originY + below(20) - 9, 0);
        const Rect area{left, top, left + below(90), top + below(70)};

        ViewRenderer(canvas, shown).draw(surface, area);

        for (std::int32_t row = 0; row < surface.height; ++row) {
            for (std::int32_t column = 0; column < surface.stride; ++column) {
                const std::int32_t x = surface.originX + column;
                const std::int32_t y = surface.originY + row;
                std::uint32_t expected = kUntouched;
                if (column < surface.width && x >= area.left && x < area.right && y >= area.top &&
                    y < area.bottom) {
                    if (shown.imageShown)
                        expected = imageShown(canvas, shown, x, y);
                    if (shown.selection)
                        expected = selectionShown(*shown.selection, zoom, x, y, expected);
                }
                ASSERT_EQ(buffer[static_cast<std::size_t>(row * surface.stride + column)], expected)
                    << "at " << x << ", " << y << " in round " << round;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Zooms, ViewRendererCase, testing::Values(1, 2, 3, 4, 6, 8, 12, 16));

TEST(ViewRenderer, ShowsNothingOfTheImageWithoutPalettePixelsOrColours) {
    const struct {
        std::int32_t height;
        std::uint16_t bits;
        bool noPalette;
    } cases[] = {{4, 4, true}, {0, 4, false}, {4, 12, false}};
    for (const auto& [height, bits, noPalette] : cases) {
        TextureCanvas canvas;
        ASSERT_TRUE(canvas.Create(4, height, 1, bits));
        std::vector<std::uint32_t> buffer(36, kUntouched);
        Surface surface{buffer.data(), 6, 6, 6};
        ViewLook look;
        look.noPalette = noPalette;
        look.gridShown = false;
        look.outsideColour = kOutside;
        ViewRenderer(canvas, look).draw(surface, {0, 0, 6, 6});
        EXPECT_EQ(buffer, std::vector<std::uint32_t>(36, kOutside));
    }
}

} // namespace
} // namespace dyeworks
