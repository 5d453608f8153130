#pragma once

#include "common/Records.h"

#include <random>

namespace dyeworks::plugins {

/// A picture of random texels and colours, the same ones for the same arguments.
struct RandomPicture {
    RandomPicture(int width, int height, int bits, std::uint32_t colourType, int paletteNumber)
        : image(DW_newImage(width, height, bits))
        , palette(DW_newPalette(colourType, 256))
        , record{image.get(), palette.get(), 0, paletteNumber} {
        std::minstd_rand random(42);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                DW_setTexel(image.get(), x, y, static_cast<std::uint8_t>(random() % (1u << bits)));
        }
        for (int i = 0; i < 256; ++i)
            palette->entries[i] = static_cast<std::uint16_t>(random());
    }

    ImageRecord image;
    PaletteRecord palette;
    PlugInPicture record;
};

} // namespace dyeworks::plugins
