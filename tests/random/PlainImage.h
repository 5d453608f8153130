#pragma once

#include "paint/Rect.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// What is drawn with.
struct PlainPen {
    std::uint32_t value = 0;
    std::int32_t size = 1;
    bool round = false;
    bool across = false, down = false; ///< Mirrors.
    bool wrap = false;

    /// For what is filled.
    [[nodiscard]] PlainPen thin() const { return {value, 1, false, across, down, wrap}; }
};

/// An image described a second time: a byte for each texel, top row first, and everything that is drawn set
/// texel by texel. Slow and plain. Rectangles are inclusive; what lies outside the image is left out.
struct PlainImage {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t bits = 4;
    std::vector<std::uint8_t> texels;

    bool operator==(const PlainImage&) const = default;

    static PlainImage blank(std::int32_t width, std::int32_t height, std::int32_t bits);

    [[nodiscard]] bool holds(Point at) const {
        return at.x >= 0 && at.y >= 0 && at.x < width && at.y < height;
    }
    [[nodiscard]] Rect whole() const { return {0, 0, width - 1, height - 1}; }
    [[nodiscard]] std::uint32_t mask() const { return (1U << bits) - 1; }
    /// 0 outside.
    [[nodiscard]] std::uint32_t at(Point where) const;
    void put(Point where, std::uint32_t value);

    /// Where that lies when opposite edges touch.
    [[nodiscard]] Point folded(Point where) const;
    /// The texel itself and its mirror images.
    [[nodiscard]] std::vector<Point> mirrored(Point where, const PlainPen& pen) const;
    void dot(Point where, const PlainPen& pen);
    void line(Point from, Point to, const PlainPen& pen);
    void box(Rect corners, const PlainPen& pen);
    void filledBox(Rect corners, const PlainPen& pen);
    /// The ellipse inscribed in the rectangle, walked from its sides and from its top and bottom towards the
    /// diagonals. Nothing where it has no width or no height.
    void ellipse(Rect corners, const PlainPen& pen, bool filled);
    void flood(Point from, const PlainPen& pen);
    void replace(Rect area, Point like, std::uint32_t value);
    void flip(Rect area, bool across, bool down);
    /// 0 outside, or what comes in there from the other side.
    [[nodiscard]] PlainImage part(Rect area, bool wrap = false) const;
    /// By a quarter, clockwise or the other way.
    [[nodiscard]] PlainImage turned(bool right) const;
    /// `anchor` counts the nine places where the old image may stay, row by row; half a texel goes to the
    /// left and to the top.
    [[nodiscard]] PlainImage resized(Point size, int anchor, std::uint32_t fill) const;
    /// A texel shows what lies under its middle.
    [[nodiscard]] PlainImage scaled(Point size) const;
    /// Of another depth, with another value for each.
    template <typename ValueOf>
    [[nodiscard]] PlainImage inDepth(std::int32_t newBits, ValueOf valueOf) const {
        PlainImage made{width, height, newBits, {}};
        for (const std::uint8_t value : texels)
            made.texels.push_back(static_cast<std::uint8_t>(valueOf(value)));
        return made;
    }
    /// What leaves it on one side comes in at the other.
    [[nodiscard]] PlainImage shifted(Point by) const;
    /// Scales the piece to the area by nearest neighbours. Where one that wraps covers itself, its top left
    /// lies above.
    void paste(const PlainImage& piece, Rect area, bool wrap);

    /// Rows of hexadecimal digits, for people.
    [[nodiscard]] std::string text() const;
};

} // namespace dyeworks
