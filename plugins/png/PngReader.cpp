#include "png/PngReader.h"

#include "common/PngFailure.h"
#include "common/Say.h"

#include <QFile>
#include <png.h>

#include <cerrno>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace dyeworks::plugins {

namespace {

constexpr std::size_t kSignatureSize = 8;
/// The program's images have no longer side.
constexpr png_uint_32 kLargestSide = 65536;
/// A few bytes can claim any number of pixels; more than these nobody means.
constexpr std::uint64_t kMostPixels = std::uint64_t{1} << 28;

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

class Reader {
public:
    Reader()
        : png_(
              png_create_read_struct(PNG_LIBPNG_VER_STRING, &failure_, PngFailure::leave, PngFailure::ignore))
        , info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    ~Reader() { png_destroy_read_struct(&png_, &info_, nullptr); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    [[nodiscard]] bool isReady() const noexcept { return info_ != nullptr; }
    [[nodiscard]] const char* reason() const noexcept { return failure_.reason.data(); }
    [[nodiscard]] png_uint_32 width() const { return png_get_image_width(png_, info_); }
    [[nodiscard]] png_uint_32 height() const { return png_get_image_height(png_, info_); }
    [[nodiscard]] std::size_t rowSize() const { return png_get_rowbytes(png_, info_); }

    /// Up to the first byte of pixels.
    [[nodiscard]] bool readInfo(std::FILE* file) {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return false;
        png_init_io(png_, file);
        png_set_sig_bytes(png_, kSignatureSize);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        // Of the optional chunks only transparency matters, but all of them must be whole.
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
        png_set_crc_action(png_, PNG_CRC_ERROR_QUIT, PNG_CRC_ERROR_QUIT);
        png_read_info(png_, info_);
        return true;
    }

    /// Settles the form of the pixels.
    [[nodiscard]] bool prepare(PngHeader& header) {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return false;
        header.width = static_cast<std::int32_t>(width());
        header.height = static_cast<std::int32_t>(height());
        header.indexed = png_get_color_type(png_, info_) == PNG_COLOR_TYPE_PALETTE;
        png_set_packing(png_);
        if (header.indexed) {
            takeColours(header);
        } else {
            png_set_expand_gray_1_2_4_to_8(png_);
            png_set_tRNS_to_alpha(png_);
            png_set_scale_16(png_);
        }
        png_read_update_info(png_, info_);
        header.channels = png_get_channels(png_, info_);
        return true;
    }

    /// The passes of an interlaced file come as the small images that they are: no row is read twice, and no
    /// image has to be kept to put them together. `row` has room for `rowSize` bytes.
    [[nodiscard]] bool readRows(PngSink& sink, const PngHeader& header, std::uint8_t* row) {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return false;
        if (png_get_interlace_type(png_, info_) == PNG_INTERLACE_NONE) {
            for (std::int32_t y = 0; y < header.height; ++y) {
                png_read_row(png_, row, nullptr);
                sink.take(y, 0, 1, header.width, row);
            }
        } else {
            for (int pass = 0; pass < PNG_INTERLACE_ADAM7_PASSES; ++pass)
                readPass(pass, sink, header, row);
        }
        png_read_end(png_, nullptr);
        return true;
    }

private:
    void takeColours(PngHeader& header) const {
        png_colorp colours = nullptr;
        png_get_PLTE(png_, info_, &colours, &header.colourCount);
        png_bytep alpha = nullptr;
        int alphaCount = 0;
        png_get_tRNS(png_, info_, &alpha, &alphaCount, nullptr);
        for (int i = 0; i < header.colourCount; ++i) {
            const png_byte opacity = i < alphaCount ? alpha[i] : png_byte{255};
            header.colours[static_cast<std::size_t>(i)] = {colours[i].red, colours[i].green, colours[i].blue,
                                                           opacity};
        }
    }

    void readPass(int pass, PngSink& sink, const PngHeader& header, std::uint8_t* row) {
        const std::int32_t count = PNG_PASS_COLS(header.width, pass);
        const std::int32_t rows = count == 0 ? 0 : PNG_PASS_ROWS(header.height, pass);
        for (std::int32_t y = 0; y < rows; ++y) {
            png_read_row(png_, row, nullptr);
            sink.take(PNG_ROW_FROM_PASS_ROW(y, pass), PNG_PASS_START_COL(pass), PNG_PASS_COL_OFFSET(pass),
                      count, row);
        }
    }

    PngFailure failure_;
    png_structp png_;
    png_infop info_;
};

QString damaged(const Reader& reader) {
    return say("The file is damaged (%1).", "ファイルが壊れています (%1)。")
        .arg(QString::fromUtf8(reader.reason()));
}

} // namespace

QString readPng(const QString& path, PngSink& sink) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(QFile::encodeName(path).constData(), "rbe"));
    if (file == nullptr)
        return QString::fromLocal8Bit(std::strerror(errno));
    std::array<png_byte, kSignatureSize> signature{};
    if (std::fread(signature.data(), 1, kSignatureSize, file.get()) != kSignatureSize ||
        png_sig_cmp(signature.data(), 0, kSignatureSize) != 0)
        return say("It is not a PNG file.", "PNG ファイルではありません。");

    Reader reader;
    if (!reader.isReady())
        return say("There is not enough memory.", "メモリが足りません。");
    if (!reader.readInfo(file.get()))
        return damaged(reader);
    if (reader.width() > kLargestSide || reader.height() > kLargestSide ||
        std::uint64_t{reader.width()} * reader.height() > kMostPixels)
        return say("It is too large: %1 x %2 pixels.", "大きすぎます: %1 x %2 ピクセル。")
            .arg(reader.width())
            .arg(reader.height());
    PngHeader header;
    if (!reader.prepare(header))
        return damaged(reader);
    if (const QString refusal = sink.begin(header); !refusal.isEmpty())
        return refusal;
    std::vector<std::uint8_t> row(reader.rowSize());
    return reader.readRows(sink, header, row.data()) ? QString() : damaged(reader);
}

} // namespace dyeworks::plugins
