#include "interchange/PaletteChunkFormat.h"
#include "interchange/PngFailure.h"
#include "interchange/PngFile.h"
#include "interchange/RowProgress.h"

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <new>

namespace dyeworks {

namespace {

constexpr std::size_t kSignatureSize = 8;
/// Chunks of our type that are looked at; a file has one.
constexpr png_uint_32 kMostChunks = 4;

static_assert(sizeof(Colour) == 4, "libpng writes pixels of four bytes");

std::uint8_t highestOf(const std::uint8_t* row, std::size_t size) noexcept {
    std::uint8_t highest = 0;
    for (std::size_t i = 0; i < size; ++i)
        highest = std::max(highest, row[i]);
    return highest;
}

enum class ReadOutcome { Done, Failed, Stopped };

class Reader {
public:
    explicit Reader(std::span<const std::byte> file)
        : rest_(file)
        , png_(
              png_create_read_struct(PNG_LIBPNG_VER_STRING, &failure_, PngFailure::leave, PngFailure::ignore))
        , info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    ~Reader() { png_destroy_read_struct(&png_, &info_, nullptr); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    [[nodiscard]] bool isReady() const noexcept { return info_ != nullptr; }
    /// Whether more was wanted than the file has.
    [[nodiscard]] bool endsTooEarly() const noexcept { return ended_; }
    [[nodiscard]] const char* reason() const noexcept { return failure_.reason.data(); }
    [[nodiscard]] png_uint_32 width() const { return png_get_image_width(png_, info_); }
    [[nodiscard]] png_uint_32 height() const { return png_get_image_height(png_, info_); }
    [[nodiscard]] std::int32_t bits() const noexcept { return bits_; }
    [[nodiscard]] bool isGrey() const noexcept { return colourType_ == PNG_COLOR_TYPE_GRAY; }
    /// The highest number of a pixel, where `readRows` was to find it.
    [[nodiscard]] std::uint8_t highest() const noexcept { return highest_; }

    /// Up to the first byte of pixels.
    [[nodiscard]] bool readInfo() {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return false;
        png_set_read_fn(png_, this, readBytes);
        // Sides are checked by the caller, who can say them. No chunk is longer than the file that has it.
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_chunk_malloc_max(png_, rest_.size());
        png_set_chunk_cache_max(png_, kMostChunks + 1);
        // Of the optional chunks only these and transparency matter, but all of them must be whole.
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_AS_DEFAULT,
                                    reinterpret_cast<png_const_bytep>("bKGD"), 1);
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_ALWAYS,
                                    reinterpret_cast<png_const_bytep>(kPaletteChunkType), 1);
        png_set_crc_action(png_, PNG_CRC_ERROR_QUIT, PNG_CRC_ERROR_QUIT);
        png_set_check_for_invalid_index(png_, 0);
        png_read_info(png_, info_);
        bits_ = png_get_bit_depth(png_, info_);
        colourType_ = png_get_color_type(png_, info_);
        return true;
    }

    /// Whether the pixels are numbers of few colours: of a palette, or of the steps of grey.
    [[nodiscard]] bool isIndexed() const {
        const bool hasFullKey = bits_ == 16 && png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
        return colourType_ == PNG_COLOR_TYPE_PALETTE || (isGrey() && !hasFullKey);
    }

    [[nodiscard]] std::size_t colourCount() const {
        png_colorp colours = nullptr;
        int count = 1 << std::min(bits_, 8);
        if (colourType_ == PNG_COLOR_TYPE_PALETTE)
            png_get_PLTE(png_, info_, &colours, &count);
        return static_cast<std::size_t>(count);
    }

    /// Whether the palette's colour `at` is the one that a page behind the picture is to have.
    [[nodiscard]] bool isBackground(std::size_t at) const {
        png_color_16p background = nullptr;
        return png_get_bKGD(png_, info_, &background) != 0 && background->index == at;
    }

    /// Fills the `colourCount` colours of an indexed picture.
    void takeColours(std::span<Colour> to) const {
        png_colorp colours = nullptr;
        int count = 0;
        png_bytep alpha = nullptr;
        int alphaCount = 0;
        png_color_16p key = nullptr;
        png_get_tRNS(png_, info_, &alpha, &alphaCount, &key);
        if (isGrey()) {
            for (std::size_t i = 0; i < to.size(); ++i) {
                const auto grey = static_cast<std::uint8_t>(i * 255 / (to.size() - 1));
                const bool isKey = key != nullptr && (key->gray & (to.size() - 1)) == i;
                to[i] = {grey, grey, grey, static_cast<std::uint8_t>(isKey ? 0 : 255)};
            }
            return;
        }
        png_get_PLTE(png_, info_, &colours, &count);
        for (int i = 0; i < count; ++i) {
            const png_byte opacity = i < alphaCount ? alpha[i] : png_byte{255};
            to[static_cast<std::size_t>(i)] = {colours[i].red, colours[i].green, colours[i].blue, opacity};
        }
    }

    /// Settles the form of the pixels: numbers of a byte each, or colours of four.
    [[nodiscard]] bool prepare() {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return false;
        if (isIndexed()) {
            png_set_packing(png_);
        } else {
            png_set_expand(png_);
            png_set_gray_to_rgb(png_);
            png_set_add_alpha(png_, 255, PNG_FILLER_AFTER);
        }
        png_set_scale_16(png_);
        passes_ = png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
        return true;
    }

    /// Every pass of an interlaced file is laid over the rows of those before.
    [[nodiscard]] ReadOutcome readRows(std::uint8_t* to, std::size_t rowSize, bool withHighest,
                                       const Progress& progress) {
        const png_uint_32 rows = height();
        RowProgress told(progress, std::int64_t{rows} * passes_);
        if (setjmp(png_jmpbuf(png_)) != 0)
            return ReadOutcome::Failed;
        for (int pass = 1; pass <= passes_; ++pass) {
            std::uint8_t* row = to;
            for (png_uint_32 y = 0; y < rows; ++y, row += rowSize) {
                png_read_row(png_, row, nullptr);
                if (withHighest && pass == passes_)
                    highest_ = std::max(highest_, highestOf(row, rowSize));
                if (!told.next())
                    return ReadOutcome::Stopped;
            }
        }
        png_read_end(png_, info_);
        return ReadOutcome::Done;
    }

    /// Ours, wherever in the file it was.
    [[nodiscard]] std::optional<PaletteChunk> paletteChunk() const {
        png_unknown_chunkp chunks = nullptr;
        const int count = png_get_unknown_chunks(png_, info_, &chunks);
        for (int i = 0; i < count; ++i) {
            if (std::memcmp(chunks[i].name, kPaletteChunkType, sizeof kPaletteChunkType) != 0)
                continue;
            if (auto chunk = parsePaletteChunk(std::as_bytes(std::span(chunks[i].data, chunks[i].size))))
                return chunk;
        }
        return std::nullopt;
    }

private:
    static void readBytes(png_structp png, png_bytep to, std::size_t size) {
        auto* const reader = static_cast<Reader*>(png_get_io_ptr(png));
        if (size > reader->rest_.size()) {
            reader->ended_ = true;
            png_error(png, "Read Error");
        }
        std::memcpy(to, reader->rest_.data(), size);
        reader->rest_ = reader->rest_.subspan(size);
    }

    std::span<const std::byte> rest_;
    bool ended_ = false;
    PngFailure failure_;
    png_structp png_;
    png_infop info_;
    std::int32_t bits_ = 0;
    int colourType_ = 0;
    int passes_ = 1;
    std::uint8_t highest_ = 0;
};

InterchangeError damaged(const Reader& reader) {
    if (reader.endsTooEarly())
        return {InterchangeError::Kind::EndsTooEarly, {}, 0, 0};
    return {InterchangeError::Kind::Damaged, reader.reason(), 0, 0};
}

Result<PngPicture, InterchangeError> read(std::span<const std::byte> file, const Progress& progress) {
    using Kind = InterchangeError::Kind;
    Reader reader(file);
    if (!reader.isReady())
        return InterchangeError{Kind::NoMemory, {}, 0, 0};
    if (!reader.readInfo())
        return damaged(reader);
    if (!isPictureSize(reader.width(), reader.height()))
        return InterchangeError{Kind::TooLarge, {}, reader.width(), reader.height()};

    PngPicture png;
    png.isGrey = reader.isGrey();
    png.bits = std::min(reader.bits(), 8);
    png.picture.width = static_cast<std::int32_t>(reader.width());
    png.picture.height = static_cast<std::int32_t>(reader.height());
    const std::size_t pixels = std::size_t{reader.width()} * reader.height();
    const bool indexed = reader.isIndexed();
    if (indexed) {
        png.picture.colours.resize(reader.colourCount());
        reader.takeColours(png.picture.colours);
    }
    if (!reader.prepare())
        return damaged(reader);
    std::uint8_t* to = nullptr;
    if (indexed) {
        png.picture.indices.resize(pixels);
        to = png.picture.indices.data();
    } else {
        png.picture.pixels.resize(pixels);
        to = &png.picture.pixels.front().red;
    }
    const auto colours = static_cast<std::int64_t>(png.picture.colours.size());
    const bool mayExceed = indexed && colours < std::int64_t{1} << png.bits;
    switch (reader.readRows(to, reader.width() * (indexed ? 1 : sizeof(Colour)), mayExceed, progress)) {
    case ReadOutcome::Failed:
        return damaged(reader);
    case ReadOutcome::Stopped:
        return InterchangeError{Kind::Cancelled, {}, 0, 0};
    case ReadOutcome::Done:
        break;
    }
    if (mayExceed && reader.highest() >= colours)
        return InterchangeError{Kind::IndexWithoutColour, {}, reader.highest(), colours};
    // ImageMagick puts the colour of the page behind a palette that lacks it. Sixteen are to stay sixteen.
    if (colours == 17 && reader.highest() < 16 && reader.isBackground(16))
        png.picture.colours.pop_back();
    // Of other pixels it says nothing, whoever left it in the file.
    if (indexed && !png.isGrey)
        png.chunk = reader.paletteChunk();
    return png;
}

} // namespace

bool isPng(std::span<const std::byte> file) noexcept {
    return file.size() >= kSignatureSize &&
           png_sig_cmp(reinterpret_cast<png_const_bytep>(file.data()), 0, kSignatureSize) == 0;
}

Result<PngPicture, InterchangeError> readPng(std::span<const std::byte> file, const Progress& progress) try {
    if (!isPng(file))
        return InterchangeError{InterchangeError::Kind::UnknownFormat, {}, 0, 0};
    return read(file, progress);
} catch (const std::bad_alloc&) {
    return InterchangeError{InterchangeError::Kind::NoMemory, {}, 0, 0};
}

} // namespace dyeworks
