#pragma once

#include "interchange/PerceptualSpace.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks {

/// Finds which of 1 to 256 points is nearest, the first among equals. A guess is improved by its neighbours
/// in order of their distance, as far as one that is nearer can lie: twice the guess's own distance
/// (sort-means, Phillips 2002).
class NearestEntry {
public:
    /// Throws bad_alloc.
    explicit NearestEntry(std::span<const ColourPoint> points);

    struct Found {
        std::size_t index = 0;
        float distance = 0; ///< Squared.
    };
    [[nodiscard]] Found find(ColourPoint point, std::size_t guess) const noexcept;

private:
    std::vector<ColourPoint> points_;
    /// For each point all points, nearest first: the squared distance as the bits of a float, of which the
    /// lowest eight are the number of the point.
    std::vector<std::uint32_t> neighbours_;
};

} // namespace dyeworks
