#include "paint/CanvasDifference.h"

#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>

namespace dyeworks {

std::optional<Rect> differingRect(const TextureCanvas& a, const TextureCanvas& b, const Rect& within) {
    assert(a.width() == b.width() && a.height() == b.height() && a.bitsPerPixel() == b.bitsPerPixel());
    const Rect area{std::max(within.left, 0), std::max(within.top, 0), std::min(within.right, a.width() - 1),
                    std::min(within.bottom, a.height() - 1)};
    if (area.left > area.right || area.top > area.bottom)
        return std::nullopt;

    const std::int64_t bits = a.bitsPerPixel();
    const std::int64_t firstByte = area.left * bits / 8;
    const std::int64_t lastByte = ((area.right + 1) * bits - 1) / 8;
    const auto bytesOf = [&](const TextureCanvas& canvas, std::int32_t y) {
        const std::size_t row = static_cast<std::size_t>(canvas.height() - 1 - y) * canvas.stride();
        return canvas.pixelRows().subspan(row + static_cast<std::size_t>(firstByte),
                                          static_cast<std::size_t>(lastByte - firstByte + 1));
    };

    std::int64_t minByte = lastByte + 1;
    std::int64_t maxByte = firstByte - 1;
    Rect differing{area.left, 0, area.right, -1};
    for (std::int32_t y = area.top; y <= area.bottom; ++y) {
        const std::span<const std::uint8_t> rowA = bytesOf(a, y);
        const std::span<const std::uint8_t> rowB = bytesOf(b, y);
        const auto first = std::ranges::mismatch(rowA, rowB).in1;
        if (first == rowA.end())
            continue;
        const auto last = std::mismatch(rowA.rbegin(), rowA.rend(), rowB.rbegin()).first;
        minByte = std::min(minByte, firstByte + (first - rowA.begin()));
        maxByte = std::max(maxByte, lastByte - (last - rowA.rbegin()));
        if (differing.bottom < 0)
            differing.top = y;
        differing.bottom = y;
    }
    if (differing.bottom < 0)
        return std::nullopt;
    differing.left = static_cast<std::int32_t>(std::max<std::int64_t>(area.left, minByte * 8 / bits));
    differing.right = static_cast<std::int32_t>(std::min<std::int64_t>(area.right, (maxByte * 8 + 7) / bits));
    return differing;
}

} // namespace dyeworks
