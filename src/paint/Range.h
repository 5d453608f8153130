#pragma once

#include <algorithm>
#include <cstdint>

namespace dyeworks {

/// Columns or rows from `first` to `last`, both inside; none when last < first. Wide enough for whatever sums
/// and differences of 32-bit coordinates give.
struct Range {
    std::int64_t first = 0;
    std::int64_t last = -1;
    bool operator==(const Range&) const = default;

    [[nodiscard]] bool empty() const noexcept { return last < first; }
    [[nodiscard]] std::int64_t count() const noexcept { return empty() ? 0 : last - first + 1; }
    [[nodiscard]] bool contains(std::int64_t at) const noexcept { return first <= at && at <= last; }
};

[[nodiscard]] inline Range overlap(Range a, Range b) noexcept {
    return {std::max(a.first, b.first), std::min(a.last, b.last)};
}

/// The range as seen from a point `by` further on.
[[nodiscard]] inline Range shifted(Range range, std::int64_t by) noexcept {
    return {range.first - by, range.last - by};
}

} // namespace dyeworks
