#include "cli/LoadedPicture.h"

#include "cli/CliTexts.h"
#include "cli/FileKind.h"
#include "cli/FormatFaults.h"
#include "cli/NamedFile.h"
#include "interchange/EntryColour.h"
#include "interchange/PaletteFile.h"
#include "interchange/PictureFile.h"

#include <utility>

namespace dyeworks {

namespace {

constexpr std::int32_t kSmallPalette = 16;
constexpr std::int32_t kLargePalette = 256;

/// The five bits that the editor takes of each channel when it opens a BMP file: the upper ones, not the
/// nearest.
void cutToFiveBits(TlutData& palette, const std::vector<Colour>& colours) {
    if (palette.colourType != ColourType::Rgba)
        return;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const auto at = static_cast<std::int32_t>(i);
        palette.setRed(at, colours[i].red >> 3);
        palette.setGreen(at, colours[i].green >> 3);
        palette.setBlue(at, colours[i].blue >> 3);
    }
}

Result<LoadedPicture, std::string> loadOther(std::span<const std::byte> file, bool isBitmap) {
    Result<PngPicture, InterchangeError> read = readPictureFile(file);
    if (!read)
        return describe(read.error());
    LoadedPicture loaded;
    if (!read.value().picture.isIndexed()) {
        loaded.direct = std::move(read.value().picture);
        return loaded;
    }
    Result<Texture, InterchangeError> texture = textureOf(read.value(), loaded.report);
    if (!texture)
        return describe(texture.error());
    if (isBitmap)
        cutToFiveBits(texture.value().palette, read.value().picture.colours);
    loaded.image = std::move(texture.value().image);
    loaded.palette = std::move(texture.value().palette);
    loaded.firstEntry = texture.value().firstEntry;
    return loaded;
}

Result<TlutData, std::string> loadPaletteFile(std::span<const std::byte> file, const std::string& name) {
    const Result<PaletteColours, InterchangeError> read = readPaletteFile(file, lastPartOf(name));
    if (!read)
        return describe(read.error());
    const std::vector<Colour>& colours = read.value().colours;
    if (colours.size() > kLargePalette)
        return say(CliText::TooManyColours, {std::to_string(colours.size())});
    const ColourType type = colourTypeFor(colours);
    const std::int32_t count = colours.size() <= kSmallPalette ? kSmallPalette : kLargePalette;
    const ImportedEntries imported = entriesOf(read.value(), type, count);
    TlutData palette;
    if (!palette.create(count, type))
        return say(CliText::OutOfMemory);
    for (std::int32_t i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        palette.entries[at] = at < imported.entries.size() ? imported.entries[at] : std::uint16_t{0};
    }
    return palette;
}

} // namespace

Result<LoadedPicture, std::string> loadPicture(std::span<const std::byte> file, const std::string& name) {
    switch (kindOf(file, name)) {
    case FileKind::Image: {
        Result<TmfImage, TmfError> image = parseTmf(file);
        if (!image)
            return describe(image.error());
        LoadedPicture loaded;
        loaded.image = std::move(image).value();
        return loaded;
    }
    case FileKind::Png:
    case FileKind::Jpeg:
        return loadOther(file, false);
    case FileKind::Bitmap:
        return loadOther(file, true);
    case FileKind::Palette:
    case FileKind::Project:
    case FileKind::PaletteFile:
    case FileKind::Unknown:
        break;
    }
    return say(CliText::NoPicture);
}

Result<TlutData, std::string> loadPalette(std::span<const std::byte> file, const std::string& name) {
    switch (kindOf(file, name)) {
    case FileKind::Palette: {
        Result<TlutData, TlfError> table = parseTlf(file);
        if (!table)
            return describe(table.error());
        return std::move(table).value();
    }
    case FileKind::PaletteFile:
        return loadPaletteFile(file, name);
    case FileKind::Png:
    case FileKind::Jpeg:
    case FileKind::Bitmap: {
        Result<LoadedPicture, std::string> picture = loadPicture(file, name);
        if (!picture)
            return picture.error();
        if (!picture.value().palette)
            return say(CliText::BringsNoPalette);
        return *std::move(picture.value().palette);
    }
    case FileKind::Image:
        return say(CliText::BringsNoPalette);
    case FileKind::Project:
    case FileKind::Unknown:
        break;
    }
    return say(CliText::NoPalette);
}

std::string tlfBytes(const TlutData& palette) {
    const std::optional<ByteBuffer> file = serialiseTlf(palette);
    if (!file)
        return {};
    return {reinterpret_cast<const char*>(file->data()), file->size()};
}

} // namespace dyeworks
