#include "paint/IndexThumbnail.h"

#include "paint/CanvasRows.h"
#include "paint/PixelAccess.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cstddef>

namespace dyeworks {

namespace {

/// The texel at the middle of each of `pixels` pixels.
std::vector<std::int32_t> middles(std::int32_t texels, std::int32_t pixels) {
    std::vector<std::int32_t> all(static_cast<std::size_t>(pixels));
    for (std::int64_t i = 0; i < pixels; ++i)
        all[static_cast<std::size_t>(i)] =
            static_cast<std::int32_t>((2 * i + 1) * texels / (2 * std::int64_t{pixels}));
    return all;
}

/// The pixels [first, second) that show texels `first` to `last`.
std::pair<std::int32_t, std::int32_t> showing(const std::vector<std::int32_t>& middles, std::int32_t first,
                                              std::int32_t last) {
    const auto begin = std::ranges::lower_bound(middles, first);
    const auto end = std::upper_bound(begin, middles.end(), last);
    return {static_cast<std::int32_t>(begin - middles.begin()),
            static_cast<std::int32_t>(end - middles.begin())};
}

} // namespace

void IndexThumbnail::take(const TextureCanvas& canvas, Size room) {
    const std::int64_t width = canvas.width();
    const std::int64_t height = canvas.height();
    size_ = {};
    if (width > 0 && height > 0 && room.width > 0 && room.height > 0 && canvas.GetColorCount() > 0) {
        const bool isWide = width * room.height > height * room.width;
        size_.width = isWide ? room.width : static_cast<std::int32_t>(width * room.height / height);
        size_.height = isWide ? static_cast<std::int32_t>(height * room.width / width) : room.height;
        // Of a long line something remains to be seen.
        size_ = {std::max(size_.width, 1), std::max(size_.height, 1)};
    }
    columns_ = middles(canvas.width(), size_.width);
    rows_ = middles(canvas.height(), size_.height);
    values_.resize(columns_.size() * rows_.size());
    static_cast<void>(update(canvas, {0, 0, canvas.width() - 1, canvas.height() - 1}));
}

std::optional<Rect> IndexThumbnail::update(const TextureCanvas& canvas, const Rect& texels) {
    const auto [left, right] = showing(columns_, texels.left, texels.right);
    const auto [top, bottom] = showing(rows_, texels.top, texels.bottom);
    if (left == right || top == bottom)
        return std::nullopt;
    const Rect part{left, top, right - 1, bottom - 1};
    visitDepth<PixelAccess>(canvas.bitsPerPixel(), [&]<int Bits>(PixelAccess<Bits>) {
        const ReadRows source(canvas);
        for (std::int32_t y = part.top; y <= part.bottom; ++y) {
            const std::uint8_t* const row = source[rows_[static_cast<std::size_t>(y)]];
            const std::size_t start = static_cast<std::size_t>(y) * columns_.size();
            for (std::int32_t x = part.left; x <= part.right; ++x) {
                const auto column = static_cast<std::size_t>(x);
                values_[start + column] =
                    static_cast<std::uint8_t>(PixelAccess<Bits>::get(row, columns_[column]));
            }
        }
    });
    return part;
}

void IndexThumbnail::colour(const Colours& colours, const Rect& part, std::uint32_t* picture,
                            std::int64_t stride) const {
    const std::int64_t count = std::int64_t{part.right} - part.left + 1;
    for (std::int64_t y = part.top; y <= part.bottom; ++y) {
        const std::uint8_t* const values = values_.data() + y * size_.width + part.left;
        std::uint32_t* const out = picture + y * stride + part.left;
        for (std::int64_t x = 0; x < count; ++x)
            out[x] = colours[values[x]];
    }
}

} // namespace dyeworks
