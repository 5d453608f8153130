#include "common/IndexedPng.h"

#include "common/PngFailure.h"
#include "common/Say.h"
#include "common/WriteFile.h"

#include <QBuffer>
#include <png.h>

#include <array>
#include <csetjmp>

namespace dyeworks::plugins {

namespace {

struct PngColours {
    std::array<png_color, 256> colours{};
    std::array<png_byte, 256> alpha{};
    int count = 0;
    int alphaCount = 0; ///< Up to the last that is not opaque.
};

PngColours coloursOf(const TmfImage& image, const TlutData* palette, std::int32_t first) {
    PngColours result;
    result.count = 1 << image.bits;
    const std::int64_t start = image.bits == 4 ? first : 0;
    for (int i = 0; i < result.count; ++i) {
        const auto grey = static_cast<std::uint8_t>(i * 255 / (result.count - 1));
        std::array<std::uint8_t, 4> rgba{grey, grey, grey, 255};
        if (palette != nullptr) {
            rgba = {0, 0, 0, 255};
            const std::int64_t entry = start + i;
            if (entry >= 0 && entry < palette->count)
                DW_colour(palette, static_cast<std::int32_t>(entry), rgba.data());
        }
        const auto at = static_cast<std::size_t>(i);
        result.colours[at] = {rgba[0], rgba[1], rgba[2]};
        result.alpha[at] = rgba[3];
        if (rgba[3] != 255)
            result.alphaCount = i + 1;
    }
    return result;
}

void writeBytes(png_structp png, png_bytep bytes, std::size_t size) {
    auto* const device = static_cast<QIODevice*>(png_get_io_ptr(png));
    const auto length = static_cast<qint64>(size);
    if (device->write(reinterpret_cast<const char*>(bytes), length) != length)
        png_error(png, "Write Error");
}

void flushBytes(png_structp /*png*/) {}

class Writer {
public:
    Writer()
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, &failure_, PngFailure::leave,
                                       PngFailure::ignore))
        , info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    ~Writer() { png_destroy_write_struct(&png_, &info_); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    [[nodiscard]] bool isReady() const noexcept { return info_ != nullptr; }
    [[nodiscard]] const char* reason() const noexcept { return failure_.reason.data(); }

    /// The rows need no conversion: both formats have the first of two texels in the high half of a byte.
    [[nodiscard]] bool write(QIODevice& device, const TmfImage& image, const PngColours& colours) {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return false;
        png_set_write_fn(png_, &device, writeBytes, flushBytes);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_IHDR(png_, info_, static_cast<png_uint_32>(image.width),
                     static_cast<png_uint_32>(image.height), image.bits, PNG_COLOR_TYPE_PALETTE,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_set_PLTE(png_, info_, colours.colours.data(), colours.count);
        if (colours.alphaCount > 0)
            png_set_tRNS(png_, info_, colours.alpha.data(), colours.alphaCount, nullptr);
        png_write_info(png_, info_);
        for (std::int32_t y = 0; y < image.height; ++y)
            png_write_row(png_, DW_row(&image, y));
        png_write_end(png_, nullptr);
        return true;
    }

private:
    PngFailure failure_;
    png_structp png_;
    png_infop info_;
};

} // namespace

QString writeIndexedPng(const QString& path, const TmfImage& image, const TlutData* palette,
                        std::int32_t first) {
    if ((image.bits != 4 && image.bits != 8) || image.width <= 0 || image.height <= 0)
        return say("The image has no texels of 4 or 8 bits.",
                   "4 ビットまたは 8 ビットのテクセルがありません。");
    Writer writer;
    if (!writer.isReady())
        return say("There is not enough memory.", "メモリが足りません。");
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!writer.write(png, image, coloursOf(image, palette, first)))
        return QString::fromUtf8(writer.reason());
    return writeFile(path, png.data());
}

} // namespace dyeworks::plugins
