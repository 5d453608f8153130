#include "interchange/PaletteFormats.h"
#include "interchange/PngFile.h"
#include "interchange/Texture.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::size_t kMostColours = 256;

/// The different colours in the order in which they come; one more than 256 when there are more.
std::vector<Colour> coloursIn(const std::vector<Colour>& pixels) {
    std::vector<Colour> colours;
    std::unordered_set<std::uint32_t> known;
    for (const Colour& pixel : pixels) {
        const std::uint32_t key = static_cast<std::uint32_t>(pixel.red) << 24U |
                                  static_cast<std::uint32_t>(pixel.green) << 16U |
                                  static_cast<std::uint32_t>(pixel.blue) << 8U | pixel.alpha;
        if (known.insert(key).second)
            colours.push_back(pixel);
        if (colours.size() > kMostColours)
            break;
    }
    return colours;
}

/// Of all the steps that a grey picture could hold those that it does, in the order in which they come.
std::vector<Colour> usedOf(const Picture& picture) {
    std::vector<Colour> colours;
    std::array<bool, kMostColours> known{};
    for (const std::uint8_t index : picture.indices) {
        if (!std::exchange(known.at(index), true))
            colours.push_back(picture.colours.at(index));
    }
    return colours;
}

} // namespace

PaletteResult readPngPalette(std::span<const std::byte> file) {
    auto png = readPng(file);
    if (!png)
        return png.error();
    Picture& picture = png.value().picture;
    PaletteColours result;
    if (!picture.isIndexed())
        result.colours = coloursIn(picture.pixels);
    else if (png.value().isGrey)
        result.colours = usedOf(picture);
    else
        result.colours = std::move(picture.colours);
    if (result.colours.size() > kMostColours)
        return InterchangeError{InterchangeError::Kind::TooManyColours, {}, std::int64_t{kMostColours}, 0};
    result.hasAlpha =
        std::ranges::any_of(result.colours, [](const Colour& colour) { return colour.alpha != 255; });
    return result;
}

Result<std::vector<std::byte>, InterchangeError> writePngPalette(const TlutData& palette) {
    const std::int32_t width = std::min(palette.count, kBankSize);
    const std::int32_t height = (palette.count + kBankSize - 1) / kBankSize;
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::int32_t i = 0; i < palette.count; ++i)
        indices[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i);
    const std::int32_t bits = depthFor(static_cast<std::size_t>(palette.count));
    return writePng(imageOf(width, height, bits, indices.data()), &palette, 0);
}

} // namespace dyeworks
