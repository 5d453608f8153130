#pragma once

#include "paint/Rect.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

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

    void line(Point from, Point to, std::uint32_t value);
    void box(Rect corners, std::uint32_t value);
    void filledBox(Rect corners, std::uint32_t value);
    /// The ellipse inscribed in the rectangle, walked from its sides and from its top and bottom towards the
    /// diagonals. Nothing where it has no width or no height.
    void ellipse(Rect corners, std::uint32_t value, bool filled);
    void flood(Point from, std::uint32_t value);
    void replace(Rect area, Point like, std::uint32_t value);
    void flip(Rect area, bool across, bool down);
    [[nodiscard]] PlainImage part(Rect area) const;
    /// By a quarter, clockwise or the other way.
    [[nodiscard]] PlainImage turned(bool right) const;
    /// What leaves it on one side comes in at the other.
    [[nodiscard]] PlainImage shifted(Point by) const;
    /// Scales the piece to the area by nearest neighbours.
    void paste(const PlainImage& piece, Rect area);

    /// Rows of hexadecimal digits, for people.
    [[nodiscard]] std::string text() const;
};

} // namespace dyeworks
