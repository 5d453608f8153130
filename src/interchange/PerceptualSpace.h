#pragma once

#include "core/ColourType.h"
#include "platform/Picture.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace dyeworks {

struct Triple {
    float x = 0;
    float y = 0;
    float z = 0;

    friend constexpr Triple operator+(Triple a, Triple b) noexcept {
        return {a.x + b.x, a.y + b.y, a.z + b.z};
    }
    friend constexpr Triple operator-(Triple a, Triple b) noexcept {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
    friend constexpr Triple operator*(Triple a, float factor) noexcept {
        return {a.x * factor, a.y * factor, a.z * factor};
    }
};

[[nodiscard]] constexpr float squared(Triple a) noexcept {
    return a.x * a.x + a.y * a.y + a.z * a.z;
}

/// Amounts that mix as light does, 0 to 1: red, green and blue; of an IA entry its intensity and its alpha.
using Light = Triple;

/// Where a colour lies in a space in which equal distances look about equally large. Of RGBA it is DIN99d,
/// whose plain distances follow CIEDE2000 closely. Of IA: the lightness that the colour shows over black and
/// over white, so that alpha counts as far as it can be seen, and a trace of the intensity itself, by which
/// the hidden ones still differ.
using ColourPoint = Triple;

/// What dithers mix: the channels as they are stored, 0 to 255, because the machine filters texels by them.
/// Red, green and blue; of an IA entry its intensity and its alpha.
using Values = Triple;

[[nodiscard]] Values valuesOf(ColourType type, Colour colour) noexcept;

/// Without the alpha of an RGBA colour.
[[nodiscard]] Light lightOf(ColourType type, Colour colour) noexcept;
[[nodiscard]] ColourPoint pointOf(ColourType type, Light light) noexcept;

/// The points of all 65536 entries of the type. They are worked out once, by the first who asks; throws
/// bad_alloc.
[[nodiscard]] const std::vector<ColourPoint>& entryPoints(ColourType type);

} // namespace dyeworks
