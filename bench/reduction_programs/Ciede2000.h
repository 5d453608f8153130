#pragma once

#include "platform/Picture.h"

namespace dyeworks {

/// The colour difference CIEDE2000 of two sRGB colours under D65, without their alpha, with the weights kL,
/// kC and kH at 1 (Sharma, Wu and Dalal 2005).
[[nodiscard]] double ciede2000(Colour first, Colour second);

struct Lab {
    double lightness = 0;
    double a = 0;
    double b = 0;
};
[[nodiscard]] double ciede2000(Lab first, Lab second);

} // namespace dyeworks
