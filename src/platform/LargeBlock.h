#pragma once

#include <cstddef>

namespace dyeworks {

/// All of the block, which nothing was written to yet, is about to be written: where the host can make that
/// quicker, it does. May be called on any thread; small blocks, null too, are let be.
void prepareBlock(void* block, std::size_t bytes) noexcept;

/// How the host does it. Null: not at all. The platform says so when it is made.
using PrepareBlock = void (*)(void* block, std::size_t bytes) noexcept;
void setPrepareBlock(PrepareBlock prepare) noexcept;

} // namespace dyeworks
