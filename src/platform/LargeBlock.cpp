#include "platform/LargeBlock.h"

#include <atomic>

namespace dyeworks {

namespace {

/// Smaller ones may be memory that was used before.
constexpr std::size_t kLarge = std::size_t{32} << 20U;

std::atomic<PrepareBlock> prepareOnHost = nullptr;

} // namespace

void prepareBlock(void* block, std::size_t bytes) noexcept {
    const PrepareBlock prepare = prepareOnHost;
    if (prepare != nullptr && block != nullptr && bytes >= kLarge)
        prepare(block, bytes);
}

void setPrepareBlock(PrepareBlock prepare) noexcept {
    prepareOnHost = prepare;
}

} // namespace dyeworks
