#pragma once

#include <cstdio>
#include <cstdlib>

namespace dyeworks {

/// Ends the program, which is how a fuzz target says that an input has found a fault.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace dyeworks
