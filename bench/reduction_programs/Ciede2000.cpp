#include "bench/reduction_programs/Ciede2000.h"

#include <cmath>
#include <numbers>

namespace dyeworks {

namespace {

constexpr double kDegree = std::numbers::pi / 180;

double decoded(std::uint8_t channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double labRoot(double amount) {
    return amount > 216.0 / 24389 ? std::cbrt(amount) : (24389.0 / 27 * amount + 16) / 116;
}

Lab labOf(Colour colour) {
    const double red = decoded(colour.red);
    const double green = decoded(colour.green);
    const double blue = decoded(colour.blue);
    const double x = labRoot((0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047);
    const double y = labRoot(0.2126729 * red + 0.7151522 * green + 0.0721750 * blue);
    const double z = labRoot((0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// In degrees, 0 to 360; 0 without chroma.
double hueOf(double a, double b) {
    if (a == 0 && b == 0)
        return 0;
    const double hue = std::atan2(b, a) / kDegree;
    return hue < 0 ? hue + 360 : hue;
}

} // namespace

double ciede2000(Lab first, Lab second) {
    const double power = std::pow((std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2, 7);
    const double stretch = 1 + 0.5 * (1 - std::sqrt(power / (power + std::pow(25.0, 7))));
    const double chroma1 = std::hypot(first.a * stretch, first.b);
    const double chroma2 = std::hypot(second.a * stretch, second.b);
    const double hue1 = hueOf(first.a * stretch, first.b);
    const double hue2 = hueOf(second.a * stretch, second.b);
    const bool grey = chroma1 * chroma2 == 0;

    double turn = grey ? 0 : hue2 - hue1;
    if (std::abs(turn) > 180)
        turn -= std::copysign(360, turn);
    const double deltaHue = 2 * std::sqrt(chroma1 * chroma2) * std::sin(turn / 2 * kDegree);
    double hue = hue1 + hue2;
    if (!grey) {
        if (std::abs(hue1 - hue2) > 180)
            hue += hue < 360 ? 360 : -360;
        hue /= 2;
    }

    const double lightness = (first.lightness + second.lightness) / 2 - 50;
    const double chroma = (chroma1 + chroma2) / 2;
    const double t = 1 - 0.17 * std::cos((hue - 30) * kDegree) + 0.24 * std::cos(2 * hue * kDegree) +
                     0.32 * std::cos((3 * hue + 6) * kDegree) - 0.20 * std::cos((4 * hue - 63) * kDegree);
    const double power7 = std::pow(chroma, 7);
    const double rotation = -2 * std::sqrt(power7 / (power7 + std::pow(25.0, 7))) *
                            std::sin(60 * std::exp(-std::pow((hue - 275) / 25, 2)) * kDegree);
    const double l = (second.lightness - first.lightness) /
                     (1 + 0.015 * lightness * lightness / std::sqrt(20 + lightness * lightness));
    const double c = (chroma2 - chroma1) / (1 + 0.045 * chroma);
    const double h = deltaHue / (1 + 0.015 * chroma * t);
    return std::sqrt(l * l + c * c + h * h + rotation * c * h);
}

double ciede2000(Colour first, Colour second) {
    return ciede2000(labOf(first), labOf(second));
}

} // namespace dyeworks
