#include "interchange/PixelMatch.h"

#include "interchange/ColourHistogram.h"
#include "interchange/ErrorDiffusion.h"
#include "interchange/OrderedDither.h"
#include "interchange/WorkProgress.h"

#include <array>
#include <cstddef>

namespace dyeworks {

namespace {

Colour colourAt(const Picture& picture, std::size_t pixel) noexcept {
    return picture.isIndexed() ? picture.colours[picture.indices[pixel]] : picture.pixels[pixel];
}

/// Calls `match` with each pixel's place and colour and its index to be, a row at a time: from the left, or,
/// of every other row if `turns`, from the right. Before each row it calls `begin`.
template <class Begin, class Match>
void eachPixel(const Picture& picture, bool turns, std::vector<std::uint8_t>& indices, WorkProgress& progress,
               Begin begin, Match match) {
    const auto width = static_cast<std::size_t>(picture.width);
    for (std::int32_t y = 0; y < picture.height && progress.reach(y, picture.height); ++y) {
        const bool fromRight = turns && y % 2 != 0;
        const std::size_t row = static_cast<std::size_t>(y) * width;
        begin(fromRight);
        for (std::size_t i = 0; i < width; ++i) {
            const std::size_t x = fromRight ? width - 1 - i : i;
            indices[row + x] = match(x, static_cast<std::size_t>(y), colourAt(picture, row + x));
        }
    }
}

} // namespace

std::vector<std::uint8_t> matchPixels(const Picture& picture, EntryMatcher& matcher,
                                      const ReductionOptions& options, WorkProgress& progress) {
    const auto width = static_cast<std::size_t>(picture.width);
    std::vector<std::uint8_t> indices(width * static_cast<std::size_t>(picture.height));
    const auto hidden = [&options](Colour colour) {
        return isTransparent(options.colourType, colour, options.alphaThreshold);
    };
    const auto plain = [&](Colour colour) {
        return hidden(colour) ? matcher.findTransparent(colour) : matcher.find(colour);
    };
    const auto nothing = [](bool) {};
    switch (options.dither) {
    case Dither::None:
        if (picture.isIndexed()) {
            std::array<std::uint8_t, 256> found{};
            for (std::size_t i = 0; i < picture.colours.size(); ++i)
                found[i] = plain(picture.colours[i]);
            const auto look = [&, pixel = std::size_t{0}](std::size_t, std::size_t, Colour) mutable {
                return found[picture.indices[pixel++]];
            };
            eachPixel(picture, false, indices, progress, nothing, look);
        } else {
            eachPixel(picture, false, indices, progress, nothing,
                      [&](std::size_t, std::size_t, Colour colour) { return plain(colour); });
        }
        break;
    case Dither::Ordered: {
        OrderedDither dither(matcher, options.colourType);
        eachPixel(picture, false, indices, progress, nothing,
                  [&](std::size_t x, std::size_t y, Colour colour) {
                      return hidden(colour) ? matcher.findTransparent(colour) : dither.find(x, y, colour);
                  });
        break;
    }
    case Dither::ErrorDiffusion: {
        ErrorDiffusion diffusion(matcher, options.colourType, width);
        eachPixel(
            picture, true, indices, progress, [&](bool fromRight) { diffusion.beginRow(fromRight); },
            [&](std::size_t x, std::size_t, Colour colour) {
                return hidden(colour) ? matcher.findTransparent(colour) : diffusion.find(x, colour);
            });
        break;
    }
    }
    return indices;
}

} // namespace dyeworks
