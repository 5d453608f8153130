#include "paint/CanvasDifference.h"

#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace dyeworks {

namespace {

/// The same bytes [begin, end) of the rows of two canvases.
class RowPair {
public:
    RowPair(const TextureCanvas& a, const TextureCanvas& b, std::int32_t y)
        : a_(rowOf(a, y))
        , b_(rowOf(b, y)) {}

    [[nodiscard]] bool differ(std::int64_t begin, std::int64_t end) const {
        return end > begin && std::memcmp(a_ + begin, b_ + begin, static_cast<std::size_t>(end - begin)) != 0;
    }
    /// `end` when they do not differ.
    [[nodiscard]] std::int64_t firstDifference(std::int64_t begin, std::int64_t end) const {
        return differ(begin, end) ? std::mismatch(a_ + begin, a_ + end, b_ + begin).first - a_ : end;
    }
    /// One past the last difference; `begin` when they do not differ.
    [[nodiscard]] std::int64_t endOfDifferences(std::int64_t begin, std::int64_t end) const {
        if (!differ(begin, end))
            return begin;
        while (a_[end - 1] == b_[end - 1])
            --end;
        return end;
    }

private:
    static const std::uint8_t* rowOf(const TextureCanvas& canvas, std::int32_t y) {
        return canvas.pixelRows().data() + std::int64_t{canvas.height() - 1 - y} * canvas.stride();
    }

    const std::uint8_t* a_;
    const std::uint8_t* b_;
};

} // namespace

std::optional<Rect> differingRect(const TextureCanvas& a, const TextureCanvas& b, const Rect& within) {
    assert(a.width() == b.width() && a.height() == b.height() && a.bitsPerPixel() == b.bitsPerPixel());
    Rect area{std::max(within.left, 0), std::max(within.top, 0), std::min(within.right, a.width() - 1),
              std::min(within.bottom, a.height() - 1)};
    if (area.left > area.right || area.top > area.bottom)
        return std::nullopt;

    const std::int64_t bits = a.bitsPerPixel();
    const std::int64_t firstByte = area.left * bits / 8;
    const std::int64_t endByte = ((area.right + 1) * bits + 7) / 8;
    while (!RowPair(a, b, area.top).differ(firstByte, endByte)) {
        if (++area.top > area.bottom)
            return std::nullopt;
    }
    while (!RowPair(a, b, area.bottom).differ(firstByte, endByte))
        --area.bottom;

    // What lies between the outermost differences found so far need not be looked at again.
    std::int64_t begin = endByte;
    std::int64_t end = firstByte;
    for (std::int32_t y = area.top; y <= area.bottom; ++y) {
        const RowPair rows(a, b, y);
        begin = rows.firstDifference(firstByte, begin);
        end = rows.endOfDifferences(std::max(end, begin), endByte);
    }
    area.left = static_cast<std::int32_t>(std::max<std::int64_t>(area.left, begin * 8 / bits));
    area.right = static_cast<std::int32_t>(std::min<std::int64_t>(area.right, (end * 8 - 1) / bits));
    return area;
}

} // namespace dyeworks
