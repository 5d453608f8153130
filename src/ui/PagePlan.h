#pragma once

#include "paint/Rect.h"

#include <cstdint>

namespace dyeworks {

/// How contents of the screen are shared out among pages of paper, in the size that they have on the screen.
/// Contents are measured in logical pixels, paper in the printer's dots.
class PagePlan {
public:
    struct Resolution {
        double screen = 96;  ///< Logical pixels to the inch.
        double printer = 96; ///< Dots to the inch.
    };

    /// `paper` is the part of a page that can be printed on.
    PagePlan(Size content, Size paper, Resolution horizontal, Resolution vertical);

    /// At least 1: contents of no size make an empty page.
    [[nodiscard]] std::int32_t pageCount() const { return columns_ * rows_; }
    [[nodiscard]] std::int32_t columns() const noexcept { return columns_; }
    [[nodiscard]] std::int32_t rows() const noexcept { return rows_; }
    /// What page number `page`, counted from 0, shows of the contents (right and bottom exclusive). Pages go
    /// from left to right, then down.
    [[nodiscard]] Rect contentOf(std::int32_t page) const;
    /// Where the content goes on its page, in dots from the corner of `paper`. Neighbouring areas share
    /// their edges.
    [[nodiscard]] Rect paperOf(std::int32_t page, const Rect& content) const;

private:
    Size content_;
    Resolution horizontal_;
    Resolution vertical_;
    Size perPage_; ///< Logical pixels.
    std::int32_t columns_;
    std::int32_t rows_;
};

} // namespace dyeworks
