#pragma once

#include "core/UndoHistory.h"
#include "paint/TexelCounts.h"
#include "paint/TextureCanvas.h"
#include "platform/ByteLookUp.h"

#include <cstdint>
#include <memory>

namespace dyeworks {

/// An edit that gave all texels of an image other values by a map. It holds the map and the way back; where
/// values that the image has come together, it holds the image as it was instead of a way back. The target is
/// a `TextureCanvas`.
class RenumberRecord : public UndoRecord {
public:
    /// The edit of `canvas`, whose texels `counts` tells, by `renumber`; `redo` carries it out at first. Null
    /// without memory.
    [[nodiscard]] static std::unique_ptr<RenumberRecord>
    make(const TextureCanvas& canvas, const TexelCounts::Values& counts, const ByteTable& map);

    bool undo(void* target) override;
    bool redo(void* target) override;
    /// Null when there is no memory, or no way back.
    [[nodiscard]] std::unique_ptr<UndoRecord> inverse() const override;
    [[nodiscard]] std::uint64_t bytes() const override;
    /// What undo and redo make of each value; null where undo brings the image back that it holds.
    [[nodiscard]] const ByteTable* undoMap() const noexcept { return before_ == nullptr ? &back_ : nullptr; }
    [[nodiscard]] const ByteTable& redoMap() const noexcept { return forward_; }

private:
    RenumberRecord() = default;

    ByteTable forward_{};
    ByteTable back_{};
    std::unique_ptr<TextureCanvas> before_; ///< Null where there is a way back.
};

} // namespace dyeworks
