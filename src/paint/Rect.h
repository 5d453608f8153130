#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

namespace dyeworks {

/// A rectangle of pixels. Whether right and bottom are inside it is said wherever one is taken.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const Rect&) const = default;

    /// The same corners with left <= right and top <= bottom.
    [[nodiscard]] Rect normalised() const {
        return {std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom)};
    }
};

/// What two rectangles of the same kind, inclusive or exclusive, have in common; inverted, or empty, when
/// that is nothing.
[[nodiscard]] inline Rect intersection(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

/// The smallest rectangle around both of the same kind. Nothing stands for an empty one.
[[nodiscard]] inline std::optional<Rect> unionOf(const std::optional<Rect>& a, const std::optional<Rect>& b) {
    if (!a || !b)
        return a ? a : b;
    return Rect{std::min(a->left, b->left), std::min(a->top, b->top), std::max(a->right, b->right),
                std::max(a->bottom, b->bottom)};
}

/// Of a rectangle with right and bottom exclusive.
[[nodiscard]] inline bool isEmpty(const Rect& area) {
    return area.right <= area.left || area.bottom <= area.top;
}

struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool operator==(const Size&) const = default;
};

} // namespace dyeworks
