#include "palette/EntryShade.h"

#include "palette/EntryFormat.h"

#include <cmath>
#include <numbers>

namespace dyeworks {

namespace {

/// A channel of 8 bits as a share of the light of white.
double light(ColourRef colour, unsigned shift) {
    const double value = (colour >> shift & 255U) / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// The cube root of CIELAB, linear near black.
double response(double ratio) {
    constexpr double kDelta = 6.0 / 29.0;
    return ratio > kDelta * kDelta * kDelta ? std::cbrt(ratio) : ratio / (3 * kDelta * kDelta) + 4.0 / 29.0;
}

} // namespace

EntryShade shadeOf(ColourType type, std::uint16_t entry) {
    const ColourRef colour = entryColour(type, entry, ViewMode::Rgb);
    const double red = light(colour, 0);
    const double green = light(colour, 8);
    const double blue = light(colour, 16);
    // Each row is divided by its own sum, the white of the display.
    const double x = response((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
    const double y = response(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = response((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.0890);
    const double a = 500 * (x - y);
    const double b = 200 * (y - z);
    const double degrees = std::atan2(b, a) * 180 / std::numbers::pi;
    return {116 * y - 16, std::hypot(a, b), degrees < 0 ? degrees + 360 : degrees};
}

} // namespace dyeworks
