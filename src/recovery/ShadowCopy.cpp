#include "recovery/ShadowCopy.h"

#include "paint/TextureCanvas.h"
#include "platform/LargeBlock.h"

#include <algorithm>
#include <cstring>

namespace dyeworks {

namespace {

constexpr std::size_t kPiece = std::size_t{64} << 10U;

} // namespace

void ShadowCopy::mark(const TextureCanvas& canvas, const Rect& texels) {
    if (whole_ || bytes_.size() != canvas.block().size()) {
        whole_ = true;
        return;
    }
    // Rows lie from the bottom up at the end of the block.
    const std::size_t stride = canvas.stride();
    const auto last = static_cast<std::size_t>(canvas.height() - 1);
    const std::size_t rows = bytes_.size() - canvas.pixelRows().size();
    markBytes(rows + (last - static_cast<std::size_t>(texels.bottom)) * stride,
              rows + (last - static_cast<std::size_t>(texels.top) + 1) * stride - 1);
}

void ShadowCopy::cover(const TextureCanvas& canvas, const TextureCanvas& rows, std::int32_t top) {
    const Rect covered{0, top, canvas.width() - 1, top + rows.height() - 1};
    mark(canvas, covered);
    const auto source = rows.pixelRows();
    const auto below = static_cast<std::size_t>(canvas.height() - 1 - covered.bottom);
    const std::size_t start = bytes_.size() - canvas.pixelRows().size() + below * canvas.stride();
    std::memcpy(bytes_.data() + start, source.data(), source.size());
}

void ShadowCopy::markBytes(std::size_t first, std::size_t last) {
    for (std::size_t piece = first / kPiece; piece <= last / kPiece; ++piece)
        marked_[piece] = true;
    next_ = std::min(next_, first / kPiece);
}

void ShadowCopy::restart(const TextureCanvas& canvas) {
    const std::size_t size = canvas.block().size();
    // Not filled with anything: of a large image that alone would take longer than anybody should wait.
    if (bytes_.size() != size) {
        bytes_ = ByteBuffer(size);
        prepareBlock(bytes_.data(), size);
    }
    marked_.assign((size + kPiece - 1) / kPiece, true);
    next_ = 0;
    whole_ = false;
}

bool ShadowCopy::bringUp(const TextureCanvas& canvas, std::size_t bytes) {
    if (whole_ || bytes_.size() != canvas.block().size())
        restart(canvas);
    for (std::size_t copied = 0; next_ < marked_.size(); ++next_) {
        if (!marked_[next_])
            continue;
        if (copied >= bytes)
            return false;
        const std::size_t start = next_ * kPiece;
        const std::size_t size = std::min(kPiece, bytes_.size() - start);
        std::memcpy(bytes_.data() + start, canvas.block().data() + start, size);
        marked_[next_] = false;
        copied += size;
    }
    return true;
}

} // namespace dyeworks
