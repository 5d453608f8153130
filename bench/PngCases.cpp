#include "bench/Cases.h"
#include "common/Records.h"
#include "png/PngImport.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace dyeworks {

namespace {

constexpr png_uint_32 kSide = 4096;

struct Kind {
    const char* name;
    int colourType;
};

constexpr Kind kKinds[] = {
    {"indexed", PNG_COLOR_TYPE_PALETTE}, {"rgb", PNG_COLOR_TYPE_RGB}, {"rgba", PNG_COLOR_TYPE_RGB_ALPHA}};

/// A slope with some noise on it: neither the smallest file nor one that does not compress.
void writeFile(const std::string& path, int colourType) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, file);
    png_set_compression_level(png, 1);
    png_set_IHDR(png, info, kSide, kSide, 8, colourType, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    std::vector<png_color> colours(256);
    for (std::size_t i = 0; i < colours.size(); ++i)
        colours[i] = {static_cast<png_byte>(i), static_cast<png_byte>(255 - i), static_cast<png_byte>(i / 2)};
    if (colourType == PNG_COLOR_TYPE_PALETTE)
        png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
    png_write_info(png, info);
    std::vector<png_byte> row(png_get_rowbytes(png, info));
    std::uint32_t noise = 1;
    for (png_uint_32 y = 0; y < kSide; ++y) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            noise = noise * 1664525U + 1013904223U;
            row[i] = static_cast<png_byte>((i * 255 / row.size() + y / 16 * (i % 4)) + (noise >> 29));
        }
        png_write_row(png, row.data());
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    std::fclose(file);
}

/// What libpng alone takes to have the file's pixels in memory.
bool readAlone(const std::string& path, std::vector<png_bytep>& rows) {
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, file);
    png_read_info(png, info);
    const std::size_t size = png_get_rowbytes(png, info);
    auto* const pixels = static_cast<png_bytep>(std::malloc(size * kSide));
    for (std::size_t y = 0; y < rows.size(); ++y)
        rows[y] = pixels + y * size;
    png_read_image(png, rows.data());
    png_read_end(png, nullptr);
    png_destroy_read_struct(&png, &info, nullptr);
    std::free(pixels);
    std::fclose(file);
    return true;
}

const std::string& fileOf(const Kind& kind) {
    static const QTemporaryDir folder;
    static std::string paths[std::size(kKinds)];
    std::string& path = paths[&kind - kKinds];
    if (path.empty()) {
        path = folder.filePath(QString::fromLatin1(kind.name)).toStdString();
        writeFile(path, kind.colourType);
    }
    return path;
}

template <class Step>
void add(const std::string& name, const std::string& base, const Kind& kind, Step step) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=, &kind](benchmark::State& state) {
                                     const std::string& path = fileOf(kind);
                                     for (auto _ : state) {
                                         if (!step(path))
                                             state.SkipWithError("failed");
                                     }
                                     state.SetLabel(base);
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

void registerPngCases() {
    for (const Kind& kind : kKinds) {
        const std::string base = std::string("libpng/") + kind.name;
        add(base, "", kind, [](const std::string& path) {
            static std::vector<png_bytep> rows(kSide);
            return readAlone(path, rows);
        });
        for (const int bits : {4, 8}) {
            if (bits == 4 && kind.colourType == PNG_COLOR_TYPE_PALETTE)
                continue;
            add("importPng/" + std::string(kind.name) + "/" + std::to_string(bits) + "bit", base, kind,
                [bits](const std::string& path) {
                    const plugins::ImageRecord current(DW_newImage(1, 1, bits));
                    const PlugInPicture picture{current.get(), nullptr, 0, 0};
                    return plugins::importPng(QString::fromStdString(path), picture).refusal.isEmpty();
                });
        }
    }
}

} // namespace dyeworks
