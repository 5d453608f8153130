#include "cli/thumbnailer/LinearLight.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace dyeworks {

namespace {

float linearOf(std::uint8_t channel) noexcept {
    const float value = static_cast<float>(channel) / 255.0F;
    return value <= 0.04045F ? value / 12.92F : std::pow((value + 0.055F) / 1.055F, 2.4F);
}

std::uint8_t channelOf(float light) noexcept {
    const float held = std::clamp(light, 0.0F, 1.0F);
    const float value = held <= 0.0031308F ? held * 12.92F : 1.055F * std::pow(held, 1.0F / 2.4F) - 0.055F;
    return static_cast<std::uint8_t>(std::lround(value * 255.0F));
}

} // namespace

LinearLight lightOf(Colour colour) noexcept {
    const float alpha = static_cast<float>(colour.alpha) / 255.0F;
    return {linearOf(colour.red) * alpha, linearOf(colour.green) * alpha, linearOf(colour.blue) * alpha,
            alpha};
}

Colour colourOf(const LinearLight& light) noexcept {
    const auto alpha = static_cast<std::uint8_t>(std::lround(std::clamp(light.alpha, 0.0F, 1.0F) * 255.0F));
    if (alpha == 0)
        return {0, 0, 0, 0};
    return {channelOf(light.red / light.alpha), channelOf(light.green / light.alpha),
            channelOf(light.blue / light.alpha), alpha};
}

} // namespace dyeworks
