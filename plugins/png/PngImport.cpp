#include "png/PngImport.h"

#include "common/InterchangeReason.h"
#include "common/LibraryRecords.h"
#include "common/Say.h"
#include "interchange/ColourReduction.h"
#include "interchange/EntryColour.h"
#include "interchange/PngFile.h"

#include <QFile>

#include <algorithm>
#include <new>
#include <optional>
#include <utility>
#include <vector>

namespace dyeworks::plugins {

namespace {

using Kind = InterchangeError::Kind;

/// What a file becomes in an image of so many colours.
struct Imported {
    std::vector<std::uint8_t> indices;
    std::vector<std::uint16_t> entries; ///< The first of the image's own.
};

/// Steps of grey of which the image has too few are colours like others.
void unindex(Picture& picture) {
    picture.pixels.reserve(picture.indices.size());
    for (const std::uint8_t index : picture.indices)
        picture.pixels.push_back(picture.colours[index]);
    picture.indices.clear();
    picture.colours.clear();
}

/// The entries that stand for the file's colours: bit by bit where the file has them.
std::vector<std::uint16_t> entriesFor(const PngPicture& png, ColourType type) {
    std::vector<std::uint16_t> entries;
    if (png.chunk && png.chunk->palette.colourType == type) {
        TextureReport report;
        if (const auto texture = textureOf(png, report)) {
            const TlutData& palette = texture.value().palette;
            std::int32_t at = texture.value().firstEntry;
            for (const Colour& colour : png.picture.colours) {
                entries.push_back(at < palette.count ? palette.getEntry(at) : entryOf(type, colour));
                ++at;
            }
            return entries;
        }
    }
    for (const Colour& colour : png.picture.colours)
        entries.push_back(entryOf(type, colour));
    return entries;
}

Result<Imported, InterchangeError> fitted(PngPicture png, ColourType type, std::size_t room) {
    Picture& picture = png.picture;
    if (png.isGrey && picture.colours.size() > room)
        unindex(picture);
    if (!picture.isIndexed()) {
        ReductionOptions options;
        options.colourType = type;
        options.colours = static_cast<std::int32_t>(room);
        auto reduced = reduceColours(picture, options);
        if (!reduced)
            return reduced.error();
        return Imported{std::move(reduced.value().indices), std::move(reduced.value().entries)};
    }
    if (const std::size_t highest = *std::ranges::max_element(picture.indices); highest >= room)
        return InterchangeError{
            Kind::IndexTooHigh, {}, static_cast<std::int64_t>(highest), static_cast<std::int64_t>(room) - 1};
    Imported imported{{}, entriesFor(png, type)};
    imported.entries.resize(std::min(imported.entries.size(), room));
    imported.indices = std::move(picture.indices);
    return imported;
}

/// The current palette with the new entries in the place of the image's own. Entries that neither has are
/// black.
PaletteRecord paletteOf(const std::vector<std::uint16_t>& entries, ColourType type,
                        const ::PlugInPicture& current) {
    const bool isSmall = current.image->bits == 4;
    const std::int32_t before = current.palette == nullptr ? 0 : current.palette->count;
    PaletteRecord palette(
        DW_newPalette(static_cast<std::uint32_t>(type), isSmall ? std::max(before, 16) : 256));
    if (palette == nullptr)
        return palette;
    const bool isBank = isSmall && current.paletteNumber >= 0 && current.paletteNumber <= palette->count - 16;
    const std::int32_t first = isBank ? current.paletteNumber : 0;
    std::fill_n(palette->entries, palette->count, entryOf(type, Colour{}));
    if (before > 0)
        std::copy_n(current.palette->entries, std::min(before, palette->count), palette->entries);
    std::ranges::copy(entries, palette->entries + first);
    return palette;
}

PngImport refused(const QString& reason) {
    return {nullptr, nullptr, reason};
}

PngImport refused(const InterchangeError& error) {
    return refused(reasonOf(error));
}

} // namespace

PngImport importPng(const QString& path, const ::PlugInPicture& current) try {
    if (current.image == nullptr || (current.image->bits != 4 && current.image->bits != 8))
        return refused({Kind::NoTexels, {}, 0, 0});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refused(file.errorString());
    const QByteArray bytes = file.readAll();
    auto png = readPng(std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
    if (!png && png.error().kind == Kind::UnknownFormat)
        return refused(say("It is not a PNG file.", "PNG ファイルではありません。"));
    if (!png)
        return refused(png.error());
    const Picture& picture = png.value().picture;
    const std::int32_t width = picture.width;
    const std::int32_t height = picture.height;
    const std::int32_t bits = current.image->bits;
    // Without a palette the file decides on the colour type.
    const ColourType type = current.palette != nullptr ? static_cast<ColourType>(current.palette->colourType)
                            : picture.isIndexed()      ? colourTypeFor(picture.colours)
                                                       : ColourType::Rgba;
    const auto imported = fitted(std::move(png).value(), type, std::size_t{1} << bits);
    if (!imported)
        return refused(imported.error());
    ImageRecord image = recordOf(imageOf(width, height, bits, imported.value().indices.data()));
    PaletteRecord palette = paletteOf(imported.value().entries, type, current);
    if (image == nullptr || palette == nullptr)
        return refused({Kind::NoMemory, {}, 0, 0});
    return {std::move(image), std::move(palette), {}};
} catch (const std::bad_alloc&) {
    return refused({Kind::NoMemory, {}, 0, 0});
}

} // namespace dyeworks::plugins
