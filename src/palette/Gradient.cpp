#include "palette/Gradient.h"

#include <bit>

namespace dyeworks {

namespace {

/// The width of a step: the single-precision number nearest to 1/31. It lies a little below 1/31, so that a
/// rising ramp is one short of the even spread: 0, 0, 1, 2 ... 29, 31 from 0 to 31. Palettes that were made
/// with these gradients rely on it.
constexpr double kStepWidth = std::bit_cast<float>(std::uint32_t{0x3D042108});
constexpr std::int32_t kChannelMask = 31;

} // namespace

std::int32_t interpolate(std::int32_t step, std::int32_t left, std::int32_t right) {
    if (step < 1)
        return left;
    if (step >= kGradientSteps - 1)
        return right;
    const double value = (right - left) * (step * kStepWidth) + left;
    return static_cast<std::int32_t>(value) & kChannelMask;
}

Rgb5 interpolate(std::int32_t step, const Rgb5& left, const Rgb5& right) {
    return {interpolate(step, left.red, right.red), interpolate(step, left.green, right.green),
            interpolate(step, left.blue, right.blue)};
}

GradientEnds& gradientEnds() {
    static GradientEnds ends;
    return ends;
}

} // namespace dyeworks
