#pragma once

#include <cstddef>

namespace dyeworks {

/// Has the block come in the largest pages that the host gives, where it does so on request: the first write
/// to each page costs more than the writing itself. A wish: nothing changes where it is not granted.
void askForHugePages(void* block, std::size_t bytes) noexcept;

} // namespace dyeworks
