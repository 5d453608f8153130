#pragma once

#include <cstdint>

namespace dyeworks {

/// Entries of a palette that follow each other, from first to last, both included: first <= last.
struct EntryRange {
    std::int32_t first = 0;
    std::int32_t last = 0;
};

} // namespace dyeworks
