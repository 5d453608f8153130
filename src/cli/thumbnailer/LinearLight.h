#pragma once

#include "platform/Picture.h"

namespace dyeworks {

/// Light of a colour as far as it is seen: channels from 0 to 1 that add up, multiplied by alpha.
struct LinearLight {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 0;

    void add(const LinearLight& other, float weight) noexcept {
        red += other.red * weight;
        green += other.green * weight;
        blue += other.blue * weight;
        alpha += other.alpha * weight;
    }
};

/// By the transfer function of sRGB (IEC 61966-2-1).
[[nodiscard]] LinearLight lightOf(Colour colour) noexcept;
/// Back again; of sums whose weights make 1. What is not seen at all is black.
[[nodiscard]] Colour colourOf(const LinearLight& light) noexcept;

} // namespace dyeworks
