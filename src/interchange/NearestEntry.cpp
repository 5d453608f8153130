#include "interchange/NearestEntry.h"

#include <algorithm>
#include <bit>

namespace dyeworks {

NearestEntry::NearestEntry(std::span<const ColourPoint> points)
    : points_(points.begin(), points.end())
    , neighbours_(points.size() * points.size()) {
    auto list = neighbours_.begin();
    for (const ColourPoint& from : points_) {
        for (std::size_t to = 0; to < points_.size(); ++to) {
            const auto bits = std::bit_cast<std::uint32_t>(squared(points_[to] - from));
            list[static_cast<std::ptrdiff_t>(to)] = (bits & ~255U) | static_cast<std::uint32_t>(to);
        }
        const auto end = list + static_cast<std::ptrdiff_t>(points_.size());
        std::sort(list, end);
        list = end;
    }
}

NearestEntry::Found NearestEntry::find(ColourPoint point, std::size_t guess) const noexcept {
    Found best{guess, squared(points_[guess] - point)};
    const float reach = std::sqrt(best.distance);
    // A little more than the sum of both distances, for what is lost in rounding.
    const auto limitOf = [reach](float distance) {
        const float sum = (reach + std::sqrt(distance)) * 1.0002F + 1e-4F;
        return std::bit_cast<std::uint32_t>(sum * sum);
    };
    std::uint32_t limit = limitOf(best.distance);
    const std::uint32_t* const list = neighbours_.data() + guess * points_.size();
    for (std::size_t i = 0; i < points_.size() && list[i] <= limit; ++i) {
        const std::size_t index = list[i] & 255U;
        const float distance = squared(points_[index] - point);
        if (distance < best.distance) {
            best = {index, distance};
            limit = limitOf(distance);
        } else if (distance == best.distance && index < best.index) {
            best.index = index;
        }
    }
    return best;
}

} // namespace dyeworks
