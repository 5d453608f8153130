#include "png/PngImport.h"

#include "common/Say.h"
#include "png/PngReader.h"
#include "png/Quantiser.h"

#include <algorithm>
#include <new>
#include <span>
#include <vector>

namespace dyeworks::plugins {

namespace {

QString noMemory() {
    return say("There is not enough memory.", "メモリが足りません。");
}

/// From 8 bits a channel to an entry. Which it is, is known at compile time: this is done for every pixel.
template <std::uint32_t colourType>
std::uint16_t entryOf(unsigned red, unsigned green, unsigned blue, unsigned alpha) noexcept {
    if constexpr (colourType == DW_COLOUR_IA) {
        // Weights of ITU-R BT.601, which leave greys as they are.
        const unsigned grey = (77 * red + 150 * green + 29 * blue + 128) >> 8;
        return static_cast<std::uint16_t>(grey << 8 | alpha);
    }
    return static_cast<std::uint16_t>((red >> 3) << 11 | (green >> 3) << 6 | (blue >> 3) << 1 | alpha >> 7);
}

/// The same, all fully transparent pixels being one colour.
template <std::uint32_t colourType>
std::uint16_t valueOf(unsigned red, unsigned green, unsigned blue, unsigned alpha) noexcept {
    const bool shows = colourType == DW_COLOUR_IA ? alpha != 0 : alpha >= 128;
    return shows ? entryOf<colourType>(red, green, blue, alpha) : std::uint16_t{0};
}

/// Of a new palette for the file: intensity and alpha where they alone hold its colours as they are.
std::uint32_t colourTypeFor(const PngHeader& header) {
    const std::span colours(header.colours.data(), static_cast<std::size_t>(header.colourCount));
    const auto isGrey = [](const auto& colour) { return colour[0] == colour[1] && colour[1] == colour[2]; };
    const auto isExact = [](const auto& colour) {
        return ((colour[0] | colour[1] | colour[2]) & 7) == 0 && (colour[3] == 0 || colour[3] == 255);
    };
    return header.indexed && std::ranges::all_of(colours, isGrey) && !std::ranges::all_of(colours, isExact)
               ? DW_COLOUR_IA
               : DW_COLOUR_RGBA;
}

/// Keeps what has an index as it is, and everything else as an entry value until all have been counted.
class ImageSink : public PngSink {
public:
    /// Without a palette the file decides on the colour type.
    ImageSink(std::int32_t bits, const TlutData* palette)
        : bits_(bits)
        , palette_(palette) {}

    QString begin(const PngHeader& header) override {
        header_ = header;
        colourType_ = palette_ == nullptr ? colourTypeFor(header) : palette_->colourType;
        image.reset(DW_newImage(header.width, header.height, bits_));
        if (image == nullptr)
            return noMemory();
        if (!header.indexed) {
            counts_.resize(kEntryValues);
            values_.reset(new std::uint16_t[pixels()]); // Left unfilled: every pixel is written once.
        }
        return {};
    }

    void take(std::int32_t y, std::int32_t first, std::int32_t step, std::int32_t count,
              const std::uint8_t* pixels) noexcept override {
        if (header_.indexed)
            takeIndices(y, first, step, count, pixels);
        else if (colourType_ == DW_COLOUR_IA)
            takeColours<DW_COLOUR_IA>(y, first, step, count, pixels);
        else
            takeColours<DW_COLOUR_RGBA>(y, first, step, count, pixels);
    }

    /// When all rows are there. Empty, or what does not fit.
    [[nodiscard]] QString finish() {
        const int room = 1 << bits_;
        if (header_.indexed) {
            if (highest_ >= header_.colourCount)
                return say("The file is damaged (a pixel has the colour %1 of %2).",
                           "ファイルが壊れています (%2 色のうち %1 番の色を使うピクセルがあります)。")
                    .arg(highest_)
                    .arg(header_.colourCount);
            if (highest_ >= room)
                return say("Its pixels use colours up to number %1; the image of %2 bits has numbers up to "
                           "%3.",
                           "%1 番までの色を使っていますが、%2 ビットの画像の番号は %3 までです。")
                    .arg(highest_)
                    .arg(bits_)
                    .arg(room - 1);
            for (int i = 0; i < std::min(header_.colourCount, room); ++i) {
                const auto& [red, green, blue, alpha] = header_.colours[static_cast<std::size_t>(i)];
                entries.push_back(colourType_ == DW_COLOUR_IA
                                      ? entryOf<DW_COLOUR_IA>(red, green, blue, alpha)
                                      : entryOf<DW_COLOUR_RGBA>(red, green, blue, alpha));
            }
            return {};
        }
        const Reduction reduction = reduceColours(std::span<const std::uint32_t, kEntryValues>(counts_),
                                                  colourType_, static_cast<std::size_t>(room));
        entries = reduction.entries;
        std::vector<std::uint8_t> row(static_cast<std::size_t>(header_.width));
        for (std::int32_t y = 0; y < header_.height; ++y) {
            const std::uint16_t* const values = rowOfValues(y);
            for (std::size_t x = 0; x < row.size(); ++x)
                row[x] = reduction.index[values[x]];
            putRow(y, row.data());
        }
        return {};
    }

    [[nodiscard]] std::uint32_t colourType() const noexcept { return colourType_; }

    ImageRecord image;
    std::vector<std::uint16_t> entries;

private:
    [[nodiscard]] std::size_t pixels() const {
        return static_cast<std::size_t>(header_.width) * static_cast<std::size_t>(header_.height);
    }
    [[nodiscard]] std::uint16_t* rowOfValues(std::int32_t y) const noexcept {
        return values_.get() + static_cast<std::size_t>(y) * static_cast<std::size_t>(header_.width);
    }

    /// A whole row of indices, one a byte.
    void putRow(std::int32_t y, const std::uint8_t* indices) const noexcept {
        std::uint8_t* const row = DW_row(image.get(), y);
        if (bits_ == 8) {
            std::copy_n(indices, header_.width, row);
            return;
        }
        for (std::int32_t x = 0; x < header_.width; x += 2) {
            const unsigned right = x + 1 < header_.width ? indices[x + 1] & 15U : 0U;
            row[x / 2] = static_cast<std::uint8_t>((indices[x] & 15U) << 4 | right);
        }
    }

    void takeIndices(std::int32_t y, std::int32_t first, std::int32_t step, std::int32_t count,
                     const std::uint8_t* indices) noexcept {
        std::uint8_t highest = 0;
        for (std::int32_t i = 0; i < count; ++i)
            highest = std::max(highest, indices[i]);
        highest_ = std::max<int>(highest_, highest);
        if (step == 1 && count == header_.width) {
            putRow(y, indices);
            return;
        }
        for (std::int32_t i = 0; i < count; ++i)
            DW_setTexel(image.get(), first + i * step, y, indices[i]);
    }

    template <std::uint32_t colourType>
    void takeColours(std::int32_t y, std::int32_t first, std::int32_t step, std::int32_t count,
                     const std::uint8_t* p) noexcept {
        std::uint16_t* to = rowOfValues(y) + first;
        const auto put = [&](std::uint16_t value) {
            *to = value;
            to += step;
            ++counts_[value];
        };
        switch (header_.channels) {
        case 1:
            for (std::int32_t i = 0; i < count; ++i, ++p)
                put(valueOf<colourType>(p[0], p[0], p[0], 255));
            break;
        case 2:
            for (std::int32_t i = 0; i < count; ++i, p += 2)
                put(valueOf<colourType>(p[0], p[0], p[0], p[1]));
            break;
        case 3:
            for (std::int32_t i = 0; i < count; ++i, p += 3)
                put(valueOf<colourType>(p[0], p[1], p[2], 255));
            break;
        default:
            for (std::int32_t i = 0; i < count; ++i, p += 4)
                put(valueOf<colourType>(p[0], p[1], p[2], p[3]));
            break;
        }
    }

    std::int32_t bits_;
    const TlutData* palette_;
    std::uint32_t colourType_ = DW_COLOUR_RGBA;
    PngHeader header_;
    int highest_ = 0;
    std::unique_ptr<std::uint16_t[]> values_;
    std::vector<std::uint32_t> counts_;
};

/// The current palette with the new entries in the place of the image's own. Entries that neither has are
/// black.
PaletteRecord paletteOf(const std::vector<std::uint16_t>& entries, std::uint32_t colourType,
                        const PlugInPicture& current) {
    const bool isSmall = current.image->bits == 4;
    const std::int32_t before = current.palette == nullptr ? 0 : current.palette->count;
    PaletteRecord palette(DW_newPalette(colourType, isSmall ? std::max(before, 16) : 256));
    if (palette == nullptr)
        return palette;
    const bool isBank = isSmall && current.paletteNumber >= 0 && current.paletteNumber <= palette->count - 16;
    const std::int32_t first = isBank ? current.paletteNumber : 0;
    std::fill_n(palette->entries, palette->count,
                colourType == DW_COLOUR_IA ? std::uint16_t{0xFF} : std::uint16_t{1});
    if (before > 0)
        std::copy_n(current.palette->entries, std::min(before, palette->count), palette->entries);
    std::ranges::copy(entries, palette->entries + first);
    return palette;
}

PngImport refused(const QString& reason) {
    return {nullptr, nullptr, reason};
}

} // namespace

PngImport importPng(const QString& path, const PlugInPicture& current) try {
    if (current.image == nullptr || (current.image->bits != 4 && current.image->bits != 8))
        return refused(say("The image has no texels of 4 or 8 bits.",
                           "4 ビットまたは 8 ビットのテクセルがありません。"));
    ImageSink sink(current.image->bits, current.palette);
    QString refusal = readPng(path, sink);
    if (refusal.isEmpty())
        refusal = sink.finish();
    if (!refusal.isEmpty())
        return refused(refusal);
    PaletteRecord palette = paletteOf(sink.entries, sink.colourType(), current);
    if (palette == nullptr)
        return refused(noMemory());
    return {std::move(sink.image), std::move(palette), {}};
} catch (const std::bad_alloc&) {
    return refused(noMemory());
}

} // namespace dyeworks::plugins
