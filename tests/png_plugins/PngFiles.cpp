#include "PngFiles.h"

#include <QFile>

#include <cstdio>

namespace dyeworks::plugins {

void writeRawPng(const QString& path, const RawPng& png) {
    std::FILE* const file = std::fopen(QFile::encodeName(path).constData(), "wb");
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(writer);
    png_init_io(writer, file);
    png_set_IHDR(writer, info, static_cast<png_uint_32>(png.width), static_cast<png_uint_32>(png.height),
                 png.depth, png.colourType, png.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (!png.colours.empty())
        png_set_PLTE(writer, info, png.colours.data(), static_cast<int>(png.colours.size()));
    if (!png.alpha.empty())
        png_set_tRNS(writer, info, png.alpha.data(), static_cast<int>(png.alpha.size()), nullptr);
    if (png.key != nullptr)
        png_set_tRNS(writer, info, nullptr, 0, png.key);
    png_set_check_for_invalid_index(writer, 0);
    png_write_info(writer, info);

    const int channels = png_get_channels(writer, info);
    std::vector<std::vector<png_byte>> rows(static_cast<std::size_t>(png.height),
                                            std::vector<png_byte>(png_get_rowbytes(writer, info)));
    std::vector<png_bytep> pointers;
    for (int y = 0; y < png.height; ++y) {
        std::vector<png_byte>& row = rows[static_cast<std::size_t>(y)];
        for (int i = 0; i < png.width * channels; ++i) {
            const unsigned value = png.sample(i / channels, y, i % channels);
            for (int bit = 0; bit < png.depth; ++bit) {
                const auto at = static_cast<std::size_t>(i * png.depth + bit);
                if ((value >> (png.depth - 1 - bit) & 1U) != 0)
                    row[at / 8] = static_cast<png_byte>(row[at / 8] | 0x80U >> (at % 8));
            }
        }
        pointers.push_back(row.data());
    }
    png_write_image(writer, pointers.data());
    png_write_end(writer, info);
    png_destroy_write_struct(&writer, &info);
    std::fclose(file);
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

ImageRecord imageOf(int width, int height, int bits, const std::function<unsigned(int x, int y)>& texel) {
    ImageRecord image(DW_newImage(width, height, bits));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            DW_setTexel(image.get(), x, y, static_cast<std::uint8_t>(texel(x, y)));
    }
    return image;
}

PaletteRecord paletteOf(std::uint32_t colourType, int count,
                        const std::function<unsigned(int entry)>& entry) {
    PaletteRecord palette(DW_newPalette(colourType, count));
    for (int i = 0; i < count; ++i)
        palette->entries[i] = static_cast<std::uint16_t>(entry(i));
    return palette;
}

} // namespace dyeworks::plugins
