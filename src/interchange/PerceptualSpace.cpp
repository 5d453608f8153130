#include "interchange/PerceptualSpace.h"

#include "interchange/EntryColour.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace dyeworks {

namespace {

/// IEC 61966-2-1.
std::array<float, 256> makeDecoding() noexcept {
    std::array<float, 256> decoding{};
    for (std::size_t i = 0; i < decoding.size(); ++i) {
        const double value = static_cast<double>(i) / 255;
        decoding[i] =
            static_cast<float>(value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4));
    }
    return decoding;
}

/// By way of 1 / root, which needs no division: a guess by the exponent and two steps of third order.
float cubeRoot(float value) noexcept {
    float inverse = std::bit_cast<float>(1419500000U - std::bit_cast<std::uint32_t>(value) / 3);
    for (int i = 0; i < 2; ++i) {
        const float rest = 1 - value * inverse * inverse * inverse;
        inverse += inverse * rest * (1.0F / 3 + 2.0F / 9 * rest);
    }
    return value * inverse * inverse;
}

/// CIE 15:2004, of an amount relative to white.
float labRoot(float amount) noexcept {
    return amount > 216.0F / 24389 ? cubeRoot(amount) : amount * (24389.0F / 27 / 116) + 16.0F / 116;
}

/// Cui, Luo, Rigg, Roesner and Witt 2002, but for the turn of the hue circle at the end, which no distance
/// feels. The matrix is that of sRGB, with X less 0.12 of Z as the formula wants it, relative to D65.
ColourPoint din99d(Light light) noexcept {
    const float x = 0.4921806F * light.x + 0.4135302F * light.y + 0.0942892F * light.z;
    const float y = 0.2126729F * light.x + 0.7151522F * light.y + 0.0721750F * light.z;
    const float z = 0.0177566F * light.x + 0.1094680F * light.y + 0.8727755F * light.z;
    const float rootY = labRoot(y);
    const float a = 500 * (labRoot(x) - rootY);
    const float b = 200 * (rootY - labRoot(z));
    const float e = 0.6427876F * a + 0.7660444F * b;
    const float f = 1.14F * (0.6427876F * b - 0.7660444F * a);
    const float radius = std::sqrt(e * e + f * f);
    const float chroma = radius > 1e-4F ? 22.5F * std::log(1 + 0.06F * radius) / radius : 22.5F * 0.06F;
    return {325.22F * std::log(1 + 0.0036F * (116 * rootY - 16)), e * chroma, f * chroma};
}

/// A colour that an entry is exactly, as the display shows it: other programs may widen five bits otherwise.
Colour asShown(ColourType type, Colour colour) noexcept {
    const std::uint8_t alpha = colour.alpha;
    colour.alpha = type == ColourType::Rgba ? std::uint8_t{255} : alpha;
    if (isExact(type, colour))
        colour = colourOf(type, entryOf(type, colour));
    colour.alpha = alpha;
    return colour;
}

} // namespace

Values valuesOf(ColourType type, Colour colour) noexcept {
    colour = asShown(type, colour);
    if (type == ColourType::Ia)
        return {static_cast<float>(entryOf(type, colour) >> 8U), static_cast<float>(colour.alpha), 0};
    return {static_cast<float>(colour.red), static_cast<float>(colour.green),
            static_cast<float>(colour.blue)};
}

Light lightOf(ColourType type, Colour colour) noexcept {
    static const std::array<float, 256> decoding = makeDecoding();
    colour = asShown(type, colour);
    if (type == ColourType::Ia)
        return {decoding[entryOf(type, colour) >> 8U], static_cast<float>(colour.alpha) / 255, 0};
    return {decoding[colour.red], decoding[colour.green], decoding[colour.blue]};
}

ColourPoint pointOf(ColourType type, Light light) noexcept {
    if (type == ColourType::Rgba)
        return din99d(light);
    const float lightness = 116 * labRoot(light.x) - 16;
    return {lightness * light.y, lightness * light.y + 100 * (1 - light.y), lightness / 32};
}

const std::vector<ColourPoint>& entryPoints(ColourType type) {
    const auto make = [](ColourType of) {
        std::vector<ColourPoint> points(65536);
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i] = pointOf(of, lightOf(of, colourOf(of, static_cast<std::uint16_t>(i))));
        return points;
    };
    static const std::vector<ColourPoint> rgba = make(ColourType::Rgba);
    static const std::vector<ColourPoint> ia = make(ColourType::Ia);
    return type == ColourType::Ia ? ia : rgba;
}

} // namespace dyeworks
