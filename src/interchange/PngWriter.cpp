#include "interchange/EntryColour.h"
#include "interchange/PaletteChunkFormat.h"
#include "interchange/PngFailure.h"
#include "interchange/PngFile.h"
#include "interchange/RowProgress.h"

#include <array>
#include <csetjmp>
#include <cstring>
#include <new>

namespace dyeworks {

namespace {

constexpr std::int64_t kSmallBlock = 16384;

struct PngColours {
    std::array<png_color, 256> colours{};
    std::array<png_byte, 256> alpha{};
    int count = 0;
    int alphaCount = 0; ///< Up to the last that is not opaque.
};

PngColours coloursOf(std::int32_t bits, const TlutData* palette, std::int32_t first) {
    PngColours result;
    result.count = 1 << bits;
    for (int i = 0; i < result.count; ++i) {
        const auto grey = static_cast<std::uint8_t>(i * 255 / (result.count - 1));
        const Colour colour =
            palette == nullptr ? Colour{grey, grey, grey} : colourOf(*palette, std::int64_t{first} + i);
        const auto at = static_cast<std::size_t>(i);
        result.colours[at] = {colour.red, colour.green, colour.blue};
        result.alpha[at] = colour.alpha;
        if (colour.alpha != 255)
            result.alphaCount = i + 1;
    }
    return result;
}

enum class WriteOutcome { Done, Failed, NoMemory, Stopped };

class Writer {
public:
    explicit Writer(std::vector<std::byte>& to)
        : to_(to)
        , png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, &failure_, PngFailure::leave,
                                       PngFailure::ignore))
        , info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    ~Writer() { png_destroy_write_struct(&png_, &info_); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    [[nodiscard]] bool isReady() const noexcept { return info_ != nullptr; }
    [[nodiscard]] const char* reason() const noexcept { return failure_.reason.data(); }

    /// What stands before the pixels, ours last so that it follows the palette that it speaks of.
    [[nodiscard]] WriteOutcome writeInfo(const TmfImage& image, const PngColours& colours, bool isRgba,
                                         std::span<const std::byte> chunk) {
        if (setjmp(png_jmpbuf(png_)) != 0)
            return failed();
        png_set_write_fn(png_, this, writeBytes, flushBytes);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_IHDR(png_, info_, static_cast<png_uint_32>(image.width),
                     static_cast<png_uint_32>(image.height), image.bits, PNG_COLOR_TYPE_PALETTE,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        if (isRgba) {
            const png_color_8 significant{5, 5, 5, 0, 0};
            png_set_sBIT(png_, info_, &significant);
        }
        png_set_PLTE(png_, info_, colours.colours.data(), colours.count);
        if (colours.alphaCount > 0)
            png_set_tRNS(png_, info_, colours.alpha.data(), colours.alphaCount, nullptr);
        // What more effort saves in a small picture is less than its other chunks take.
        if (image.blockSize() <= kSmallBlock)
            png_set_compression_level(png_, 1);
        png_write_info(png_, info_);
        if (!chunk.empty())
            png_write_chunk(png_, reinterpret_cast<png_const_bytep>(kPaletteChunkType),
                            reinterpret_cast<png_const_bytep>(chunk.data()), chunk.size());
        return WriteOutcome::Done;
    }

    /// The rows need no conversion: both formats have the first of two texels in the high half of a byte.
    [[nodiscard]] WriteOutcome writeRows(const TmfImage& image, const Progress& progress) {
        const std::int64_t stride = image.stride();
        RowProgress told(progress, image.height);
        if (setjmp(png_jmpbuf(png_)) != 0)
            return failed();
        const std::uint8_t* row = image.texels + (image.height - 1) * stride;
        for (std::int32_t y = 0; y < image.height; ++y, row -= stride) {
            png_write_row(png_, row);
            if (!told.next())
                return WriteOutcome::Stopped;
        }
        png_write_end(png_, nullptr);
        return WriteOutcome::Done;
    }

private:
    /// Whether there was room. Apart from `writeBytes`, which may leave by longjmp.
    [[nodiscard]] bool append(std::span<const std::byte> bytes) noexcept {
        try {
            to_.insert(to_.end(), bytes.begin(), bytes.end());
            return true;
        } catch (const std::bad_alloc&) {
            isFull_ = true;
            return false;
        }
    }

    static void writeBytes(png_structp png, png_bytep bytes, std::size_t size) {
        if (!static_cast<Writer*>(png_get_io_ptr(png))->append(std::as_bytes(std::span(bytes, size))))
            png_error(png, "Write Error");
    }
    static void flushBytes(png_structp /*png*/) {}

    [[nodiscard]] WriteOutcome failed() const noexcept {
        return isFull_ ? WriteOutcome::NoMemory : WriteOutcome::Failed;
    }

    std::vector<std::byte>& to_;
    bool isFull_ = false;
    PngFailure failure_;
    png_structp png_;
    png_infop info_;
};

Result<std::vector<std::byte>, InterchangeError> write(const TmfImage& image, const TlutData* palette,
                                                       std::int32_t firstEntry, const Progress& progress) {
    using Kind = InterchangeError::Kind;
    const std::int32_t first = image.bits == 4 ? firstEntry : 0;
    std::optional<std::vector<std::byte>> chunk;
    if (palette != nullptr)
        chunk = serialisePaletteChunk(*palette, first);
    const bool isRgba = palette != nullptr && palette->colourType == ColourType::Rgba;

    std::vector<std::byte> file;
    Writer writer(file);
    if (!writer.isReady())
        return InterchangeError{Kind::NoMemory, {}, 0, 0};
    WriteOutcome outcome =
        writer.writeInfo(image, coloursOf(image.bits, palette, first), isRgba,
                         chunk ? std::span<const std::byte>(*chunk) : std::span<const std::byte>());
    if (outcome == WriteOutcome::Done)
        outcome = writer.writeRows(image, progress);
    switch (outcome) {
    case WriteOutcome::Failed:
        return InterchangeError{Kind::Damaged, writer.reason(), 0, 0};
    case WriteOutcome::NoMemory:
        return InterchangeError{Kind::NoMemory, {}, 0, 0};
    case WriteOutcome::Stopped:
        return InterchangeError{Kind::Cancelled, {}, 0, 0};
    case WriteOutcome::Done:
        break;
    }
    return file;
}

} // namespace

Result<std::vector<std::byte>, InterchangeError> writePng(const TmfImage& image, const TlutData* palette,
                                                          std::int32_t firstEntry,
                                                          const Progress& progress) try {
    if ((image.bits != 4 && image.bits != 8) || image.width == 0 || image.height == 0 || !image.holdsTexels())
        return InterchangeError{InterchangeError::Kind::NoTexels, {}, 0, 0};
    return write(image, palette, firstEntry, progress);
} catch (const std::bad_alloc&) {
    return InterchangeError{InterchangeError::Kind::NoMemory, {}, 0, 0};
}

} // namespace dyeworks
