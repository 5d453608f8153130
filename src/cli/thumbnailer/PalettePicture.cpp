#include "cli/thumbnailer/PalettePicture.h"

#include "interchange/EntryColour.h"

#include <algorithm>
#include <cstddef>

namespace dyeworks {

namespace {

constexpr std::int32_t kLeastSideWithAlpha = 4;

Colour opaque(Colour colour) noexcept {
    colour.alpha = 255;
    return colour;
}

} // namespace

TexelColours texelColours(const std::optional<TlutData>& palette, std::int32_t bits,
                          std::int32_t firstEntry) {
    TexelColours colours;
    const std::int32_t highest = bits == 4 ? 15 : 255;
    bool hasAlpha = false;
    for (std::int32_t i = 0; i < 256; ++i) {
        const auto grey = static_cast<std::uint8_t>(std::min(i, highest) * 255 / highest);
        Colour& colour = colours[static_cast<std::size_t>(i)];
        colour = palette ? colourOf(*palette, std::int64_t{firstEntry} + i) : Colour{grey, grey, grey, 255};
        const bool isEntry = !palette || firstEntry + i < palette->count;
        hasAlpha = hasAlpha || (isEntry && i <= highest && colour.alpha != 0);
    }
    if (!hasAlpha)
        std::ranges::transform(colours, colours.begin(), opaque);
    return colours;
}

Picture palettePicture(const TlutData& palette, std::int32_t side) {
    const std::int32_t columns = palette.count > 16 ? 16 : 4;
    const std::int32_t swatch = std::max(side / columns, 1);
    Picture picture;
    // Where not even a pixel is left for each, some are left out.
    picture.width = std::min(columns * swatch, side);
    picture.height = picture.width;
    for (std::int32_t y = 0; y < picture.height; ++y) {
        for (std::int32_t x = 0; x < picture.width; ++x) {
            const Colour colour = colourOf(palette, y / swatch * columns + x / swatch);
            const bool throughAlpha = swatch >= kLeastSideWithAlpha && x % swatch + y % swatch >= swatch;
            picture.pixels.push_back(throughAlpha ? colour : opaque(colour));
        }
    }
    return picture;
}

} // namespace dyeworks
