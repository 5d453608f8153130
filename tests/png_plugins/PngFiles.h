#pragma once

#include "common/Records.h"

#include <QByteArray>
#include <QString>
#include <png.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace dyeworks::plugins {

/// A PNG file of any kind, written row by row with libpng and none of the plug-ins' code.
struct RawPng {
    int width = 1;
    int height = 1;
    int colourType = PNG_COLOR_TYPE_PALETTE;
    int depth = 8;
    bool interlaced = false;
    std::vector<png_color> colours;
    std::vector<png_byte> alpha;       ///< Of the palette.
    const png_color_16* key = nullptr; ///< The colour that is transparent.
    /// Channel `channel` of a pixel, in `depth` bits.
    std::function<unsigned(int x, int y, int channel)> sample;
};

void writeRawPng(const QString& path, const RawPng& png);

QByteArray bytesOf(const QString& path);
void writeBytes(const QString& path, const QByteArray& bytes);

/// An image with these texels.
ImageRecord imageOf(int width, int height, int bits, const std::function<unsigned(int x, int y)>& texel);
/// A palette with these entries.
PaletteRecord paletteOf(std::uint32_t colourType, int count, const std::function<unsigned(int entry)>& entry);

} // namespace dyeworks::plugins
