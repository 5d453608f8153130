#include "cli/OutputFormat.h"

#include "cli/CliTexts.h"
#include "cli/FormatFaults.h"
#include "interchange/PaletteFile.h"
#include "interchange/PngFile.h"
#include "interchange/TextureSource.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <span>

namespace dyeworks {

namespace {

using Written = Result<OutputFiles, std::string>;

std::string bytesText(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

const std::string& endingOf(OutputFormat format) {
    return outputFormatNames()[static_cast<std::size_t>(format)];
}

Written one(OutputFormat format, std::string bytes) {
    return OutputFiles{{endingOf(format), std::move(bytes)}};
}

Written tmfOf(const TmfImage& image) {
    const std::optional<TmfFile> file = layOutTmf(image);
    if (!file)
        return say(CliText::ImageTooLarge);
    return one(OutputFormat::Tmf, bytesText(file->header) + bytesText(file->body));
}

Written bmpOf(const TmfImage& image, const TlutData* palette, std::int32_t firstEntry) {
    TextureCanvas canvas(image);
    if (canvas.block().empty())
        return say(CliText::ImageTooLarge);
    if (palette != nullptr) {
        canvas.ApplyPalette(TextureLookupTable(*palette), firstEntry);
    } else {
        // A ramp of greys, as a PNG file without a palette has it.
        const std::span<std::uint8_t> table = canvas.colourTable();
        const std::size_t colours = table.size() / 4;
        for (std::size_t i = 0; i < colours; ++i)
            std::fill_n(table.begin() + static_cast<std::ptrdiff_t>(4 * i), 3,
                        static_cast<std::uint8_t>(i * 255 / (colours - 1)));
    }
    return one(OutputFormat::Bmp, bytesText(canvas.block()));
}

template <typename Read>
Written written(OutputFormat format, const Read& bytes) {
    if (!bytes)
        return describe(bytes.error());
    return one(format, bytesText(std::as_bytes(std::span(bytes.value()))));
}

Written sourceOf(const TmfImage& image, const TlutData* palette, std::int32_t firstEntry,
                 const SourceOptions& options, const std::string& stem) {
    const Result<SourcePair, InterchangeError> pair =
        headerAndSource(image, palette, firstEntry, options, stem + "." + endingOf(OutputFormat::Header));
    if (!pair)
        return describe(pair.error());
    return OutputFiles{{endingOf(OutputFormat::Source), pair.value().source},
                       {endingOf(OutputFormat::Header), pair.value().header}};
}

PaletteFormat paletteFormatOf(OutputFormat format) {
    switch (format) {
    case OutputFormat::Gimp:
        return PaletteFormat::Gimp;
    case OutputFormat::Jasc:
        return PaletteFormat::Jasc;
    case OutputFormat::Act:
        return PaletteFormat::Act;
    case OutputFormat::Hex:
        return PaletteFormat::Hex;
    default:
        return PaletteFormat::Png;
    }
}

} // namespace

const std::vector<std::string>& outputFormatNames() {
    static const std::vector<std::string> names{"tmf", "bmp", "png", "c",   "h",  "raw",
                                                "tlf", "gpl", "pal", "act", "hex"};
    return names;
}

std::optional<OutputFormat> outputFormatFor(std::string_view ending) {
    const auto found = std::ranges::find(outputFormatNames(), ending == "bin" ? "raw" : ending);
    if (found == outputFormatNames().end())
        return std::nullopt;
    return static_cast<OutputFormat>(found - outputFormatNames().begin());
}

bool isPaletteFormat(OutputFormat format) {
    return format >= OutputFormat::Tlf;
}

Written outputOf(OutputFormat format, const TmfImage& image, const TlutData* palette, std::int32_t firstEntry,
                 const SourceOptions& options, const std::string& stem) {
    switch (format) {
    case OutputFormat::Tmf:
        return tmfOf(image);
    case OutputFormat::Bmp:
        return bmpOf(image, palette, image.bits == 4 ? firstEntry : 0);
    case OutputFormat::Png:
        return written(format, writePng(image, palette, firstEntry));
    case OutputFormat::Source:
        return sourceOf(image, palette, firstEntry, options, stem);
    case OutputFormat::Header:
        return written(format, headerWithData(image, palette, firstEntry, options));
    case OutputFormat::Raw:
        return written(format, rawBytes(image, palette, firstEntry, options));
    default:
        break;
    }
    if (palette == nullptr)
        return say(CliText::BringsNoPalette);
    return outputOf(format, *palette, 0, palette->count, stem);
}

Written outputOf(OutputFormat format, const TlutData& palette, std::int32_t first, std::int32_t count,
                 const std::string& stem) {
    TlutData part;
    if (!part.create(count, palette.colourType))
        return say(CliText::OutOfMemory);
    std::copy_n(palette.entries + first, count, part.entries);
    switch (format) {
    case OutputFormat::Tlf: {
        std::string bytes = tlfBytes(part);
        return bytes.empty() ? Written(say(CliText::NoPalette)) : one(format, std::move(bytes));
    }
    case OutputFormat::Raw:
        return one(format, bytesText(rawPalette(part, 0, count)));
    case OutputFormat::Tmf:
    case OutputFormat::Bmp:
    case OutputFormat::Source:
    case OutputFormat::Header:
        return say(CliText::PaletteIsNoPicture);
    default:
        return written(format, writePaletteFile(paletteFormatOf(format), part, 0, count, stem));
    }
}

} // namespace dyeworks
