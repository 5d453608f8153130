#include "interchange/ExifTurn.h"
#include "interchange/JpegFile.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <new>
#include <utility>

// Takes sizes from the headers above.
#include <jerror.h>
#include <jpeglib.h>

namespace dyeworks {

namespace {

/// Progressive files come in a dozen scans; some that were made to keep readers busy come in thousands.
constexpr int kMostScans = 500;
constexpr int kExifMarker = JPEG_APP0 + 1;

static_assert(sizeof(Colour) == 4, "the library writes pixels of four bytes");

/// The library leaves by longjmp where it finds something wrong, so each call of it is in a function that
/// begins with setjmp and holds nothing with a destructor.
class Reader {
public:
    explicit Reader(std::span<const std::byte> file)
        : file_(file) {
        state_.err = jpeg_std_error(&errors_);
        errors_.error_exit = leave;
        errors_.emit_message = note;
        errors_.output_message = [](j_common_ptr) {};
        progress_.progress_monitor = watch;
        state_.client_data = this;
    }
    ~Reader() { jpeg_destroy_decompress(&state_); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    [[nodiscard]] std::int64_t width() const noexcept { return state_.image_width; }
    [[nodiscard]] std::int64_t height() const noexcept { return state_.image_height; }
    [[nodiscard]] bool endsTooEarly() const noexcept { return ended_; }
    [[nodiscard]] bool lacksMemory() const noexcept { return errors_.msg_code == JERR_OUT_OF_MEMORY; }
    [[nodiscard]] const char* reason() const noexcept { return reason_.data(); }

    /// Whether pixels come as four inks in place of colours.
    [[nodiscard]] bool hasInks() const noexcept {
        return state_.jpeg_color_space == JCS_CMYK || state_.jpeg_color_space == JCS_YCCK;
    }

    [[nodiscard]] bool readHeader() {
        if (setjmp(leave_) != 0)
            return false;
        jpeg_create_decompress(&state_);
        state_.progress = &progress_;
        jpeg_mem_src(&state_, reinterpret_cast<const unsigned char*>(file_.data()),
                     static_cast<unsigned long>(file_.size()));
        jpeg_save_markers(&state_, kExifMarker, 0xffff);
        return jpeg_read_header(&state_, TRUE) == JPEG_HEADER_OK;
    }

    /// While the header is there, which goes with the last pixel.
    [[nodiscard]] int turn() const noexcept {
        for (const jpeg_marker_struct* marker = state_.marker_list; marker != nullptr;
             marker = marker->next) {
            if (marker->marker == kExifMarker)
                return exifTurn(std::as_bytes(std::span(marker->data, marker->data_length)));
        }
        return 1;
    }

    /// Fills width × height pixels.
    [[nodiscard]] bool readPixels(Colour* to) {
        if (setjmp(leave_) != 0)
            return false;
        state_.out_color_space = hasInks() ? JCS_CMYK : JCS_EXT_RGBA;
        jpeg_start_decompress(&state_);
        while (state_.output_scanline < state_.output_height) {
            auto* row = &to[std::size_t{state_.output_scanline} * state_.output_width].red;
            jpeg_read_scanlines(&state_, &row, 1);
        }
        jpeg_finish_decompress(&state_);
        return !ended_;
    }

private:
    [[noreturn]] static void leave(j_common_ptr state) {
        auto* const reader = static_cast<Reader*>(state->client_data);
        state->err->format_message(state, reader->reason_.data());
        std::longjmp(reader->leave_, 1);
    }

    static void note(j_common_ptr state, int level) {
        if (level < 0 && state->err->msg_code == JWRN_JPEG_EOF)
            static_cast<Reader*>(state->client_data)->ended_ = true;
    }

    static void watch(j_common_ptr state) {
        auto* const reader = static_cast<Reader*>(state->client_data);
        if (reader->state_.input_scan_number > kMostScans)
            ERREXIT(state, JERR_BAD_PROGRESSION);
    }

    std::span<const std::byte> file_;
    jpeg_decompress_struct state_{};
    jpeg_error_mgr errors_{};
    jpeg_progress_mgr progress_{};
    std::jmp_buf leave_{};
    std::array<char, JMSG_LENGTH_MAX> reason_{};
    bool ended_ = false;
};

/// Programs write how much of each ink is left out.
void mixInks(Colour& inks) noexcept {
    const auto seen = [black = inks.alpha](unsigned ink) {
        return static_cast<std::uint8_t>(ink * black / 255);
    };
    inks = {seen(inks.red), seen(inks.green), seen(inks.blue), 255};
}

PictureError errorOf(const Reader& reader) {
    if (reader.endsTooEarly())
        return {PictureError::Kind::EndsTooEarly, {}, 0, 0};
    if (reader.lacksMemory())
        return {PictureError::Kind::NoMemory, {}, 0, 0};
    return {PictureError::Kind::Damaged, reader.reason(), 0, 0};
}

Result<Picture, PictureError> read(std::span<const std::byte> file) {
    Reader reader(file);
    if (!reader.readHeader())
        return errorOf(reader);
    if (!isPictureSize(reader.width(), reader.height()))
        return PictureError{PictureError::Kind::TooLarge, {}, reader.width(), reader.height()};
    const int turn = reader.turn();
    Picture picture;
    picture.width = static_cast<std::int32_t>(reader.width());
    picture.height = static_cast<std::int32_t>(reader.height());
    picture.pixels.resize(static_cast<std::size_t>(reader.width() * reader.height()));
    if (!reader.readPixels(picture.pixels.data()))
        return errorOf(reader);
    if (reader.hasInks())
        std::ranges::for_each(picture.pixels, mixInks);
    return turned(std::move(picture), turn);
}

} // namespace

bool isJpeg(std::span<const std::byte> file) noexcept {
    constexpr std::array kStart{std::byte{0xff}, std::byte{0xd8}, std::byte{0xff}};
    return file.size() >= kStart.size() && std::ranges::equal(file.first(kStart.size()), kStart);
}

Result<Picture, PictureError> readJpeg(std::span<const std::byte> file) try {
    if (!isJpeg(file))
        return PictureError{PictureError::Kind::UnknownFormat, {}, 0, 0};
    return read(file);
} catch (const std::bad_alloc&) {
    return PictureError{PictureError::Kind::NoMemory, {}, 0, 0};
}

} // namespace dyeworks
