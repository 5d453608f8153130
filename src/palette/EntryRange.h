#pragma once

#include <cstdint>

namespace dyeworks {

/// Entries of a palette from the first to the last, both included.
struct EntryRange {
    std::int32_t first;
    std::int32_t last;
};

} // namespace dyeworks
