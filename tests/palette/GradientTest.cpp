#include "palette/Gradient.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace dyeworks {
namespace {

TEST(Gradient, AgreesWithWholeNumberArithmetic) {
    // The width of a step as a fraction: mantissa 0x842108, 28 binary places.
    constexpr std::int64_t kWidth = 0x842108;
    constexpr int kPlaces = 28;
    for (std::int32_t left = 0; left < 32; ++left) {
        for (std::int32_t right = 0; right < 32; ++right) {
            for (std::int32_t step = 1; step < 31; ++step) {
                const std::int64_t scaled = (right - left) * step * kWidth + (std::int64_t{left} << kPlaces);
                ASSERT_EQ(interpolate(step, left, right), scaled >> kPlaces)
                    << left << " to " << right << ", step " << step;
            }
            for (const std::int32_t beyond : {0, 1}) {
                ASSERT_EQ(interpolate(-beyond, left, right), left);
                ASSERT_EQ(interpolate(31 + beyond, left, right), right);
            }
        }
    }
}

} // namespace
} // namespace dyeworks
