#include "cli/BitmapReader.h"

#include "paint/BmpFormat.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <new>

namespace dyeworks {

namespace {

constexpr std::uint8_t kAlphaBit = 8;

PictureError failure(PictureError::Kind kind, const char* detail = "") {
    PictureError error;
    error.kind = kind;
    error.detail = detail;
    return error;
}

PictureError errorOf(BmpError error) {
    switch (error) {
    case BmpError::NotABitmap:
        return failure(PictureError::Kind::UnknownFormat);
    case BmpError::Compressed:
        return failure(PictureError::Kind::Damaged, "compressed bitmaps are not read");
    case BmpError::BadSize:
        return failure(PictureError::Kind::Damaged, "size");
    case BmpError::Truncated:
        break;
    }
    return failure(PictureError::Kind::Damaged, "end of file");
}

std::vector<Colour> coloursOf(const TextureCanvas& canvas) {
    const std::span<const std::uint8_t> table = canvas.colourTable();
    bool hasAlpha = false;
    for (std::size_t at = 3; at < table.size(); at += 4)
        hasAlpha = hasAlpha || table[at] != 0;
    // An index that the table lacks is black.
    std::vector<Colour> colours(std::size_t{1} << canvas.bitsPerPixel());
    for (std::size_t i = 0; i < colours.size() && 4 * i < table.size(); ++i) {
        const std::uint8_t* const quad = table.data() + 4 * i;
        const bool isClear = hasAlpha && (quad[3] & kAlphaBit) == 0;
        colours[i] = {quad[2], quad[1], quad[0], isClear ? std::uint8_t{0} : std::uint8_t{255}};
    }
    return colours;
}

/// Of a pixel of 16, 24 or 32 bits without a table: five or eight bits a channel, blue lowest.
Colour directColour(std::uint32_t value, std::uint16_t bits) {
    const auto channel = [value](unsigned shift, unsigned mask) {
        return static_cast<std::uint8_t>(value >> shift & mask);
    };
    if (bits != 16)
        return {channel(16, 255), channel(8, 255), channel(0, 255), 255};
    const auto widened = [](std::uint8_t five) { return static_cast<std::uint8_t>(five << 3 | five >> 2); };
    return {widened(channel(10, 31)), widened(channel(5, 31)), widened(channel(0, 31)), 255};
}

Picture pictureOf(const TextureCanvas& canvas) {
    Picture picture;
    picture.width = canvas.width();
    picture.height = canvas.height();
    const auto pixels = static_cast<std::size_t>(std::int64_t{picture.width} * picture.height);
    const std::uint16_t bits = canvas.bitsPerPixel();
    const bool isIndexed = !canvas.holdsColours();
    if (isIndexed) {
        picture.colours = coloursOf(canvas);
        picture.indices.reserve(pixels);
    } else {
        picture.pixels.reserve(pixels);
    }
    for (std::int32_t y = 0; y < picture.height; ++y) {
        for (std::int32_t x = 0; x < picture.width; ++x) {
            const std::uint32_t value = canvas.GetPixel(x, y);
            if (isIndexed)
                picture.indices.push_back(static_cast<std::uint8_t>(value));
            else
                picture.pixels.push_back(directColour(value, bits));
        }
    }
    return picture;
}

} // namespace

Result<Picture, PictureError> BitmapReader::read(std::span<const std::byte> file) const {
    const Result<BmpImage, BmpError> bitmap = parseBmp(file);
    if (!bitmap)
        return errorOf(bitmap.error());
    const BmpImage& image = bitmap.value();
    if (!isPictureSize(image.width, image.height))
        return PictureError{PictureError::Kind::TooLarge, {}, image.width, image.height};
    try {
        TextureCanvas canvas;
        if (!canvas.CreateFrom(image))
            return failure(PictureError::Kind::NoMemory);
        return pictureOf(canvas);
    } catch (const std::bad_alloc&) {
        return failure(PictureError::Kind::NoMemory);
    }
}

} // namespace dyeworks
