#pragma once

#include "paint/Rect.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

class TextureCanvas;

/// An image reduced to the size of a thumbnail, still as values: it is reduced once and then coloured through
/// as many palettes as wished, each by a look-up. A thumbnail pixel shows the texel at its middle.
class IndexThumbnail {
public:
    /// 0xffRRGGBB by value.
    using Colours = std::array<std::uint32_t, 256>;

    /// Reduces (or enlarges) an image of at most 8 bits so that it just fits into `room`, in pixels. A canvas
    /// without values, or no room, leaves it empty.
    void take(const TextureCanvas& canvas, Size room);
    /// Texels of the image (inclusive) have changed; it has the size and depth that it had at `take`. The
    /// pixels that show them (inclusive), or nothing when none does.
    std::optional<Rect> update(const TextureCanvas& canvas, const Rect& texels);

    [[nodiscard]] Size size() const noexcept { return size_; }
    [[nodiscard]] bool isEmpty() const noexcept { return values_.empty(); }
    /// All of it, inclusive; of one that is not empty.
    [[nodiscard]] Rect whole() const noexcept { return {0, 0, size_.width - 1, size_.height - 1}; }
    /// Colours a part (inclusive) of a picture of its size, whose rows are `stride` pixels apart.
    void colour(const Colours& colours, const Rect& part, std::uint32_t* picture, std::int64_t stride) const;

private:
    Size size_;
    // The column (row) of the image that each column (row) of pixels shows.
    std::vector<std::int32_t> columns_;
    std::vector<std::int32_t> rows_;
    std::vector<std::uint8_t> values_;
};

} // namespace dyeworks
