#include "paint/CanvasDepth.h"

#include "core/TlutData.h"
#include "paint/CanvasRows.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <limits>
#include <new>

namespace dyeworks {

namespace {

constexpr std::size_t kColourSize = 4;

std::unique_ptr<TextureCanvas> inDepth(const TextureCanvas& canvas, std::uint16_t bits) {
    std::unique_ptr<TextureCanvas> made(new (std::nothrow) TextureCanvas);
    if (made == nullptr || !made->Create(canvas.width(), canvas.height(), canvas.planes(), bits))
        return nullptr;
    return made;
}

/// Puts as many colours as both have room for at another place.
void moveColours(std::span<const std::uint8_t> from, std::span<std::uint8_t> to) {
    std::copy_n(from.begin(), std::min({from.size(), to.size(), kBankSize * kColourSize}), to.begin());
}

std::int32_t distance(const ShownColour& a, const ShownColour& b) {
    // The eye tells greens apart better than reds, and those better than blues.
    constexpr std::int32_t kRed = 3;
    constexpr std::int32_t kGreen = 6;
    constexpr std::int32_t kBlue = 1;
    constexpr std::int32_t kAlpha = 4;
    constexpr std::int32_t kBeyondAll = 1 << 24;
    const auto square = [](std::int32_t one, std::int32_t other) { return (one - other) * (one - other); };
    return kRed * square(a.red, b.red) + kGreen * square(a.green, b.green) + kBlue * square(a.blue, b.blue) +
           kAlpha * square(a.alpha, b.alpha) + ((a.alpha == 0) != (b.alpha == 0) ? kBeyondAll : 0);
}

} // namespace

IndexCounts countIndexes(const TextureCanvas& canvas) {
    IndexCounts counts{};
    if (canvas.bitsPerPixel() != 8)
        return counts;
    const ReadRows rows(canvas);
    for (std::int32_t y = canvas.height() - 1; y >= 0; --y) {
        for (std::int32_t x = 0; x < canvas.width(); ++x)
            ++counts[rows[y][x]];
    }
    return counts;
}

std::int64_t countOutside(const IndexCounts& counts, std::int32_t bank) {
    std::int64_t outside = 0;
    for (std::size_t i = 0; i < counts.size(); ++i)
        outside += static_cast<std::int32_t>(i) / kBankSize == bank ? 0 : counts[i];
    return outside;
}

std::int32_t fullestBank(const IndexCounts& counts, std::int32_t banks) {
    std::int32_t fullest = 0;
    for (std::int32_t bank = 1; bank < banks; ++bank) {
        if (countOutside(counts, bank) < countOutside(counts, fullest))
            fullest = bank;
    }
    return fullest;
}

IndexMap nearestInBank(std::span<const ShownColour, 256> colours, std::int32_t bank) {
    IndexMap map{};
    const std::size_t first = static_cast<std::size_t>(bank) * kBankSize;
    for (std::size_t index = 0; index < map.size(); ++index) {
        if (index >= first && index < first + kBankSize) {
            map[index] = static_cast<std::uint8_t>(index - first);
            continue;
        }
        std::int32_t nearest = std::numeric_limits<std::int32_t>::max();
        for (std::size_t i = 0; i < kBankSize; ++i) {
            const std::int32_t away = distance(colours[index], colours[first + i]);
            if (away < nearest) {
                nearest = away;
                map[index] = static_cast<std::uint8_t>(i);
            }
        }
    }
    return map;
}

std::unique_ptr<TextureCanvas> inFourBits(const TextureCanvas& canvas, const IndexMap& map,
                                          std::int32_t bank) {
    std::unique_ptr<TextureCanvas> made = canvas.bitsPerPixel() == 8 ? inDepth(canvas, 4) : nullptr;
    if (made == nullptr)
        return nullptr;
    const ReadRows from(canvas);
    const WriteRows to(*made);
    const std::int64_t width = canvas.width();
    for (std::int64_t y = canvas.height() - 1; y >= 0; --y) {
        const std::uint8_t* source = from[y];
        std::uint8_t* row = to[y];
        for (std::int64_t i = 0; i < width / 2; ++i)
            row[i] = static_cast<std::uint8_t>(map[source[2 * i]] << 4U | map[source[2 * i + 1]]);
        if (width % 2 != 0)
            row[width / 2] = static_cast<std::uint8_t>(map[source[width - 1]] << 4U);
    }
    const std::size_t first = kColourSize * kBankSize * static_cast<std::size_t>(bank);
    const std::span<const std::uint8_t> colours = canvas.colourTable();
    if (first < colours.size())
        moveColours(colours.subspan(first), made->colourTable());
    return made;
}

std::unique_ptr<TextureCanvas> inEightBits(const TextureCanvas& canvas, std::int32_t bank) {
    std::unique_ptr<TextureCanvas> made = canvas.bitsPerPixel() == 4 ? inDepth(canvas, 8) : nullptr;
    if (made == nullptr)
        return nullptr;
    const ReadRows from(canvas);
    const WriteRows to(*made);
    const std::int64_t width = canvas.width();
    const auto first = static_cast<std::uint8_t>(bank * kBankSize);
    for (std::int64_t y = canvas.height() - 1; y >= 0; --y) {
        const std::uint8_t* source = from[y];
        std::uint8_t* row = to[y];
        for (std::int64_t i = 0; i < width / 2; ++i) {
            row[2 * i] = static_cast<std::uint8_t>(first | source[i] >> 4U);
            row[2 * i + 1] = static_cast<std::uint8_t>(first | (source[i] & 15U));
        }
        if (width % 2 != 0)
            row[width - 1] = static_cast<std::uint8_t>(first | source[width / 2] >> 4U);
    }
    moveColours(canvas.colourTable(), made->colourTable().subspan(kColourSize * first));
    return made;
}

} // namespace dyeworks
