#pragma once

#include <cstdint>

namespace dyeworks {

/// Steps of a gradient between two colours, both ends included.
inline constexpr std::int32_t kGradientSteps = 32;

/// A colour of three 5-bit channels.
struct Rgb5 {
    std::int32_t red = 0; ///< Each 0 to 31.
    std::int32_t green = 0;
    std::int32_t blue = 0;

    friend bool operator==(const Rgb5&, const Rgb5&) = default;
};

/// One 5-bit channel at `step` of the way from `left` to `right`: linear interpolation, cut down to a whole
/// number. Steps below 1 are `left`, steps from 31 on `right`.
std::int32_t interpolate(std::int32_t step, std::int32_t left, std::int32_t right);
Rgb5 interpolate(std::int32_t step, const Rgb5& left, const Rgb5& right);

/// The ends of the gradient that the RGBA dialog offers.
struct GradientEnds {
    Rgb5 left{0, 0, 0};
    Rgb5 right{31, 31, 31};
};

/// The process-wide ends: what is chosen in one dialog is still there in the next.
GradientEnds& gradientEnds();

} // namespace dyeworks
