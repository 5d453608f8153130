#pragma once

#include "platform/LargeBlock.h"

#include <cstddef>
#include <cstdlib>

namespace dyeworks {

/// The arrays inside records that cross the plug-in boundary. They live on the C runtime heap, which host and
/// plug-ins share, and are allocated and freed here and nowhere else.

/// `count` zeroed elements, or null when there is no memory for them. A count of 0 gives an array as well.
template <typename T>
[[nodiscard]] T* allocatePlainArray(std::size_t count) noexcept {
    return static_cast<T*>(
        std::calloc(count == 0 ? 1 : count, sizeof(T))); // NOLINT(cppcoreguidelines-no-malloc)
}

/// `count` elements of undefined value, for a reader that is about to fill them; otherwise the same.
template <typename T>
[[nodiscard]] T* allocateUnfilledPlainArray(std::size_t count) noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
    void* const array = std::malloc(count == 0 ? 1 : count * sizeof(T));
    prepareBlock(array, count * sizeof(T));
    return static_cast<T*>(array);
}

template <typename T>
void freePlainArray(T*& array) noexcept {
    std::free(array); // NOLINT(cppcoreguidelines-no-malloc)
    array = nullptr;
}

} // namespace dyeworks
