#pragma once

#include "paint/Rect.h"

#include <array>
#include <cstdint>
#include <span>

namespace dyeworks {

/// What points and lines are drawn with: a square or a round spot of texels.
struct Brush {
    static constexpr std::int32_t kMaxSize = 16;

    std::int32_t size = 1; ///< Texels from side to side, 1 to kMaxSize.
    bool round = false;

    bool operator==(const Brush&) const = default;

    /// The texels to the left of (above) the one that is pointed at, and those to the right of (below) it. An
    /// even size has one more of the latter.
    [[nodiscard]] std::int32_t before() const noexcept { return (size - 1) / 2; }
    [[nodiscard]] std::int32_t after() const noexcept { return size / 2; }
};

/// The texels that a brush covers, as boxes relative to the texel that is pointed at (right and bottom
/// inside), from top to bottom and each as wide as its rows are.
class BrushSpot {
public:
    explicit BrushSpot(const Brush& brush);

    [[nodiscard]] std::span<const Rect> boxes() const noexcept { return {boxes_.data(), count_}; }

private:
    std::array<Rect, Brush::kMaxSize> boxes_{};
    std::size_t count_ = 0;
};

} // namespace dyeworks
