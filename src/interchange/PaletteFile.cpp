#include "interchange/PaletteFile.h"

#include "interchange/EntryColour.h"
#include "interchange/PaletteFormats.h"
#include "interchange/PaletteText.h"
#include "interchange/PngFile.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::int32_t kMostWritten = 256;

InterchangeError errorOf(InterchangeError::Kind kind) {
    return {kind, {}, 0, 0};
}

PaletteResult readWithoutTest(std::span<const std::byte> file, std::string_view fileName) {
    if (isPng(file))
        return readPngPalette(file);
    const std::string_view text = paletteText(file);
    if (text.starts_with(kGimpHeader))
        return readGimpPalette(text);
    if (text.starts_with(kJascHeader))
        return readJascPalette(text);
    const auto format = paletteFormatFor(fileName);
    if (format == PaletteFormat::Act)
        return readActPalette(file);
    if (format == PaletteFormat::Hex)
        return readHexPalette(text);
    return errorOf(InterchangeError::Kind::UnknownFormat);
}

std::vector<std::byte> bytesOf(const std::string& text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

} // namespace

std::optional<PaletteFormat> paletteFormatFor(std::string_view fileName) {
    static constexpr std::pair<std::string_view, PaletteFormat> kEndings[] = {{".gpl", PaletteFormat::Gimp},
                                                                              {".pal", PaletteFormat::Jasc},
                                                                              {".act", PaletteFormat::Act},
                                                                              {".hex", PaletteFormat::Hex},
                                                                              {".png", PaletteFormat::Png}};
    for (const auto& [ending, format] : kEndings)
        if (lowered(fileName).ends_with(ending))
            return format;
    return std::nullopt;
}

Result<PaletteColours, InterchangeError> readPaletteFile(std::span<const std::byte> file,
                                                         std::string_view fileName) {
    auto read = readWithoutTest(file, fileName);
    if (read && read.value().colours.empty())
        return errorOf(InterchangeError::Kind::NoColours);
    return read;
}

Result<std::vector<std::byte>, InterchangeError> writePaletteFile(PaletteFormat format,
                                                                  const TlutData& palette, std::int32_t first,
                                                                  std::int32_t count,
                                                                  const std::string& name) {
    const std::int64_t end = std::int64_t{first} + count;
    if (palette.entries == nullptr || first < 0 || count <= 0 || end > palette.count)
        return errorOf(InterchangeError::Kind::NoColours);
    if (count > kMostWritten)
        return InterchangeError{InterchangeError::Kind::TooManyColours, {}, kMostWritten, 0};
    if (format == PaletteFormat::Png) {
        TlutData part;
        if (!part.create(count, palette.colourType))
            return errorOf(InterchangeError::Kind::NoMemory);
        std::copy_n(palette.entries + first, count, part.entries);
        return writePngPalette(part);
    }
    PaletteColours colours{name, {}, false};
    for (std::int64_t i = first; i < end; ++i)
        colours.colours.push_back(colourOf(palette, i));
    colours.hasAlpha =
        std::ranges::any_of(colours.colours, [](const Colour& colour) { return colour.alpha != 255; });
    switch (format) {
    case PaletteFormat::Gimp:
        return bytesOf(writeGimpPalette(colours));
    case PaletteFormat::Jasc:
        return bytesOf(writeJascPalette(colours));
    case PaletteFormat::Hex:
        return bytesOf(writeHexPalette(colours));
    case PaletteFormat::Act:
        return writeActPalette(colours);
    case PaletteFormat::Png:
        break;
    }
    return errorOf(InterchangeError::Kind::UnknownFormat);
}

ImportedEntries entriesOf(const PaletteColours& colours, ColourType type, std::int32_t room) {
    ImportedEntries result;
    const std::size_t taken =
        std::min(colours.colours.size(), static_cast<std::size_t>(std::max(room, std::int32_t{0})));
    for (std::size_t i = 0; i < taken; ++i) {
        result.entries.push_back(entryOf(type, colours.colours[i]));
        result.rounded += isExact(type, colours.colours[i]) ? 0 : 1;
    }
    result.leftOver = static_cast<std::int32_t>(colours.colours.size() - taken);
    return result;
}

} // namespace dyeworks
