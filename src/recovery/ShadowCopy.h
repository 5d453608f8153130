#pragma once

#include "paint/Rect.h"
#include "platform/ByteBuffer.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks {

class TextureCanvas;

/// A copy of a canvas's block that is brought up piece by piece, so that nobody waits for the copying of a
/// large image. Whoever changes the canvas marks what it changes.
class ShadowCopy {
public:
    /// The texels (inclusive, inside the canvas) have changed.
    void mark(const TextureCanvas& canvas, const Rect& texels);
    void markAll() { whole_ = true; }

    /// Copies about that many bytes of what was marked. True: the copy is now what the canvas is. Throws
    /// std::bad_alloc without memory for the copy.
    [[nodiscard]] bool bringUp(const TextureCanvas& canvas, std::size_t bytes);

    /// Shows, in a copy that is what the canvas is, `rows` instead of those from `top` on, until it is
    /// brought up the next time.
    void cover(const TextureCanvas& canvas, const TextureCanvas& rows, std::int32_t top);

    /// A bitmap file once `bringUp` was true, until something is marked.
    [[nodiscard]] std::span<const std::byte> bytes() const noexcept { return bytes_.bytes(); }

private:
    void restart(const TextureCanvas& canvas);
    void markBytes(std::size_t first, std::size_t last);

    ByteBuffer bytes_;
    std::vector<bool> marked_; ///< By pieces of the block.
    std::size_t next_ = 0;     ///< No piece before this one is marked.
    bool whole_ = true;
};

} // namespace dyeworks
