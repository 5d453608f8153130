#include "ui/PagePlan.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace dyeworks {

namespace {

/// Whole logical pixels that fit on `dots`; one at least, so that every plan ends.
std::int32_t pixelsOn(std::int32_t dots, const PagePlan::Resolution& resolution) {
    return std::max(1, static_cast<std::int32_t>(dots * resolution.screen / resolution.printer));
}

std::int32_t pagesFor(std::int32_t length, std::int32_t perPage) {
    return std::max(1, length / perPage + (length % perPage > 0 ? 1 : 0));
}

std::int32_t dotsFor(std::int32_t pixels, const PagePlan::Resolution& resolution) {
    return static_cast<std::int32_t>(std::lround(pixels * resolution.printer / resolution.screen));
}

} // namespace

PagePlan::PagePlan(Size content, Size paper, Resolution horizontal, Resolution vertical)
    : content_(content)
    , horizontal_(horizontal)
    , vertical_(vertical)
    , perPage_{pixelsOn(paper.width, horizontal), pixelsOn(paper.height, vertical)}
    , columns_(pagesFor(content.width, perPage_.width))
    , rows_(pagesFor(content.height, perPage_.height)) {}

Rect PagePlan::contentOf(std::int32_t page) const {
    assert(page >= 0 && page < pageCount());
    const std::int32_t left = page % columns_ * perPage_.width;
    const std::int32_t top = page / columns_ * perPage_.height;
    return {left, top, std::min(content_.width, left + perPage_.width),
            std::min(content_.height, top + perPage_.height)};
}

Rect PagePlan::paperOf(std::int32_t page, const Rect& content) const {
    const Rect whole = contentOf(page);
    return {dotsFor(content.left - whole.left, horizontal_), dotsFor(content.top - whole.top, vertical_),
            dotsFor(content.right - whole.left, horizontal_), dotsFor(content.bottom - whole.top, vertical_)};
}

} // namespace dyeworks
