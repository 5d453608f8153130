#pragma once

#include "interchange/ColourHistogram.h"

#include <cstddef>
#include <span>
#include <vector>

namespace dyeworks {

/// The means of at most `count` groups of cells, each as much alike as can be: of all groups the one with the
/// most error is cut again and again, across its longest axis where that takes away the most (after Wu 1991).
/// Puts the cells into another order. Throws bad_alloc.
[[nodiscard]] std::vector<ColourPoint> cutColours(std::span<ColourCell> cells, std::size_t count);

} // namespace dyeworks
