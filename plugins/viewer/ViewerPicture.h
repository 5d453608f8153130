#pragma once

#include "dyeworks/plugin.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks::plugins {

/// The viewer's own copy of the image that the program last showed it, and the colours of its texels.
class ViewerPicture {
public:
    /// One colour per value of a texel.
    using Colours = std::array<std::array<std::uint8_t, 4>, 256>;

    /// Rows of texels, counted from the top; empty when `first` is behind `last`.
    struct Rows {
        int first = 0;
        int last = -1;
    };

    /// Takes over texels and colours. The rows that differ from before; all of them when the colours or the
    /// size do. Nothing, with the old picture kept, for an image that cannot be shown: without texels or
    /// palette, or of another depth than 4 and 8 bits. May throw std::bad_alloc, with the old picture kept.
    [[nodiscard]] std::optional<Rows> take(const PlugInPicture& picture);

    /// In texels; 0 before the first picture.
    [[nodiscard]] int width() const noexcept { return image_.width; }
    [[nodiscard]] int height() const noexcept { return image_.height; }
    [[nodiscard]] const Colours& colours() const noexcept { return colours_; }

    /// The values of the texels of row `y` from `x` on, as many as `values` holds; all are inside the image.
    void readRow(int x, int y, std::span<std::uint8_t> values) const;

private:
    void takeAll(const TmfImage& image);
    [[nodiscard]] Rows takeDifference(const TmfImage& image);

    TmfImage image_{}; ///< Points into `texels_`.
    std::vector<std::uint8_t> texels_;
    Colours colours_{};
};

} // namespace dyeworks::plugins
