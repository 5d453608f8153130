#pragma once

#include "core/ColourType.h"
#include "interchange/ColourHistogram.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks {

class WorkProgress;

/// At most `count` different entries that show the cells best beside those of `fixed`, together at most 256.
/// None if the progress was stopped. Throws bad_alloc.
[[nodiscard]] std::vector<std::uint16_t> searchPalette(ColourType type, std::span<const ColourCell> cells,
                                                       std::size_t count,
                                                       std::span<const std::uint16_t> fixed,
                                                       WorkProgress& progress);

} // namespace dyeworks
