#include "viewer/TileRenderer.h"

#include "Pictures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace dyeworks::plugins {
namespace {

/// Pixel by pixel, from the bits of the records, with the blend in floating point.
QRgb expectedPixel(const PlugInPicture& picture, int x, int y, int zoom,
                   const std::optional<Checkerboard>& board) {
    const TmfImage& image = *picture.image;
    const int column = x / zoom % image.width;
    const int row = image.height - 1 - y / zoom % image.height;
    const int stride = (image.width * image.bits + 31) / 32 * 4;
    const int bit = column * image.bits;
    const int value =
        image.texels[row * stride + bit / 8] >> (8 - image.bits - bit % 8) & ((1 << image.bits) - 1);
    const int entry = value + (image.bits == 4 ? picture.paletteNumber : 0);
    if (entry >= picture.palette->count)
        return 0xFF000000;
    const int word = picture.palette->entries[entry];
    const bool grey = picture.palette->colourType == DW_COLOUR_IA;
    const int channels[3] = {grey ? word / 256 : word / 2048 * 8, grey ? word / 256 : word / 64 % 32 * 8,
                             grey ? word / 256 : word / 2 % 32 * 8};
    const double alpha = !board ? 1.0 : grey ? word % 256 / 255.0 : word % 2;
    const QRgb ground = !board                                         ? 0
                        : (x / board->side + y / board->side) % 2 == 0 ? board->light
                                                                       : board->dark;
    const auto mixed = [&](int channel, int below) {
        return static_cast<int>(std::floor(channel * alpha + below * (1 - alpha) + 0.5));
    };
    return qRgb(mixed(channels[0], qRed(ground)), mixed(channels[1], qGreen(ground)),
                mixed(channels[2], qBlue(ground)));
}

TEST(TileRenderer, AgreesWithPixelByPixelComputation) {
    const Checkerboard eights;
    const Checkerboard threes{3, 0xFF667788, 0xFF123456};
    struct Case {
        int width;
        int height;
        int bits;
        std::uint32_t colourType;
        int paletteNumber;
        int zoom;
        QPoint origin;
        std::optional<Checkerboard> board;
    };
    const Case cases[] = {
        {32, 16, 8, DW_COLOUR_RGBA, 0, 1, {0, 0}, eights},
        {7, 5, 4, DW_COLOUR_RGBA, 32, 3, {0, 0}, threes},
        {7, 5, 4, DW_COLOUR_IA, 240, 4, {5, 1}, threes},
        {9, 3, 4, DW_COLOUR_RGBA, 248, 2, {11, 7}, std::nullopt},
        {3, 2, 8, DW_COLOUR_IA, 16, 8, {23, 9}, eights},
        {1, 1, 8, DW_COLOUR_RGBA, 0, 5, {2, 3}, threes},
        {33, 70, 8, DW_COLOUR_RGBA, 0, 1, {32, 69}, std::nullopt},
    };
    for (const Case& c : cases) {
        const RandomPicture source(c.width, c.height, c.bits, c.colourType, c.paletteNumber);
        ViewerPicture picture;
        ASSERT_TRUE(picture.take(source.record));
        QImage target(61, 47, QImage::Format_RGB32);
        renderTiles(target, c.origin, picture, c.zoom, c.board);
        for (int y = 0; y < target.height(); ++y) {
            for (int x = 0; x < target.width(); ++x) {
                const QPoint at = c.origin + QPoint(x, y);
                ASSERT_EQ(target.pixel(x, y), expectedPixel(source.record, at.x(), at.y(), c.zoom, c.board))
                    << x << ',' << y << " of " << c.width << 'x' << c.height;
            }
        }
    }
}

TEST(ViewerPicture, TellsTheRowsThatDiffer) {
    RandomPicture source(10, 6, 4, DW_COLOUR_RGBA, 0);
    ViewerPicture picture;
    const auto expectRows = [&](int first, int last, const char* what) {
        const auto rows = picture.take(source.record);
        ASSERT_TRUE(rows) << what;
        EXPECT_EQ(std::pair(rows->first, rows->last), std::pair(first, last)) << what;
    };
    const auto flip = [&](int x, int y) {
        DW_setTexel(source.image.get(), x, y, DW_getTexel(source.image.get(), x, y) ^ 15u);
    };
    expectRows(0, 5, "first");
    EXPECT_GT(picture.take(source.record)->first, picture.take(source.record)->last);
    flip(0, 0);
    expectRows(0, 0, "top");
    flip(9, 5);
    expectRows(5, 5, "bottom");
    flip(3, 1);
    flip(4, 4);
    expectRows(1, 4, "between");
    source.record.paletteNumber = 16;
    expectRows(0, 5, "bank");
    source.palette->entries[31] ^= 0xFFFFu;
    flip(2, 2);
    expectRows(0, 5, "colours");
}

TEST(ViewerPicture, KeepsTheOldOneWhenTheNewOneCannotBeShown) {
    const RandomPicture source(4, 4, 8, DW_COLOUR_RGBA, 0);
    const RandomPicture deep(8, 8, 8, DW_COLOUR_RGBA, 0);
    deep.image->bits = 16;
    const RandomPicture flat(8, 8, 8, DW_COLOUR_RGBA, 0);
    flat.image->height = 0;
    ViewerPicture picture;
    ASSERT_TRUE(picture.take(source.record));
    for (const PlugInPicture& wrong :
         {deep.record, flat.record, PlugInPicture{nullptr, source.palette.get(), 0, 0},
          PlugInPicture{deep.image.get(), nullptr, 0, 0}})
        EXPECT_FALSE(picture.take(wrong));
    EXPECT_EQ(picture.width(), 4);
    std::uint8_t value = 0;
    picture.readRow(3, 3, {&value, 1});
    EXPECT_EQ(value, DW_getTexel(source.image.get(), 3, 3));
}

} // namespace
} // namespace dyeworks::plugins
