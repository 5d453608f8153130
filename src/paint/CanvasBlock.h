#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace dyeworks {

/// Returns a block to the C heap.
struct CanvasBlockRelease {
    void operator()(std::byte* bytes) const noexcept {
        std::free(bytes);
    } // NOLINT(cppcoreguidelines-no-malloc)
};

/// The memory of a canvas. It comes from the C heap because that hands out large blocks as untouched pages of
/// zeroes: a canvas that is filled right after it was made is not written twice.
using CanvasBlock = std::unique_ptr<std::byte[], CanvasBlockRelease>;

enum class BlockContents { Zeroed, Undefined };

/// `size` bytes (at least one), or null when there is no memory for them.
[[nodiscard]] inline CanvasBlock allocateCanvasBlock(std::size_t size, BlockContents contents) noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
    void* bytes = contents == BlockContents::Zeroed ? std::calloc(size, 1) : std::malloc(size);
    return CanvasBlock(static_cast<std::byte*>(bytes));
}

} // namespace dyeworks
