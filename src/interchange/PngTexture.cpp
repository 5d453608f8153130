#include "interchange/EntryColour.h"
#include "interchange/PngFile.h"

#include <algorithm>
#include <new>

namespace dyeworks {

namespace {

using TextureOutcome = Result<Texture, InterchangeError>;

InterchangeError noMemory() {
    return {InterchangeError::Kind::NoMemory, {}, 0, 0};
}

/// A palette of entries that show opaque black, as all do that a palette lacks.
bool makeBlack(TlutData& palette, std::int32_t count, ColourType type) {
    if (!palette.create(count, type))
        return false;
    std::fill_n(palette.entries, count, entryOf(type, Colour{}));
    return true;
}

std::uint16_t newEntry(ColourType type, Colour colour, TextureReport& report) {
    if (!isExact(type, colour))
        ++report.rounded;
    return entryOf(type, colour);
}

/// Whether the chunk can be of this picture: a bank of 16 holds no more colours.
bool fits(const PaletteChunk& chunk, const Picture& picture) {
    return chunk.firstEntry == 0 || picture.colours.size() <= 16;
}

/// The chunk's palette. It shows opaque black where it ends before the file's colours do; where one of those
/// has been changed it gets longer.
bool takeChunk(const PaletteChunk& chunk, const Picture& picture, TlutData& palette, TextureReport& report) {
    palette = chunk.palette;
    if (palette.count == 0)
        return false;
    const ColourType type = palette.colourType;
    for (std::size_t i = 0; i < picture.colours.size(); ++i) {
        const Colour colour = picture.colours[i];
        const auto at = chunk.firstEntry + static_cast<std::int32_t>(i);
        if (colourOf(palette, at) == colour)
            continue;
        if (at >= palette.count) {
            TlutData longer;
            if (!makeBlack(longer, 256, type))
                return false;
            longer.copyEntriesFrom(palette);
            palette = std::move(longer);
        }
        ++report.changed;
        palette.setEntry(at, newEntry(type, colour, report));
    }
    return true;
}

} // namespace

Result<Texture, InterchangeError> textureOf(const PngPicture& png, TextureReport& report) try {
    const Picture& picture = png.picture;
    report = {};
    if (!png.chunk || !fits(*png.chunk, picture))
        return textureOf(picture, report);
    Texture texture;
    texture.firstEntry = png.chunk->firstEntry;
    // Programs that write as few bits as there are colours leave the numbers as they were.
    const std::int32_t bits = png.bits <= 4 || texture.firstEntry != 0 ? 4 : 8;
    texture.image = imageOf(picture.width, picture.height, bits, picture.indices.data());
    if (!texture.image.holdsTexels() || !takeChunk(*png.chunk, picture, texture.palette, report))
        return noMemory();
    return texture;
} catch (const std::bad_alloc&) {
    return noMemory();
}

Result<Texture, InterchangeError> textureOf(const Picture& picture, TextureReport& report) {
    report = {};
    const std::int32_t bits = depthFor(picture.colours.size());
    const ColourType type = colourTypeFor(picture.colours);
    Texture texture;
    texture.image = imageOf(picture.width, picture.height, bits, picture.indices.data());
    if (!texture.image.holdsTexels() || !makeBlack(texture.palette, 1 << bits, type))
        return noMemory();
    for (std::size_t i = 0; i < picture.colours.size(); ++i)
        texture.palette.entries[i] = newEntry(type, picture.colours[i], report);
    return texture;
}

} // namespace dyeworks
