#pragma once

#include "core/UndoHistory.h"
#include "paint/Rect.h"
#include "paint/TextureCanvas.h"

#include <cstdint>
#include <memory>

namespace dyeworks {

/// An edit of an image as the rectangle that it changed, before and after. The target is a `TextureCanvas`.
class ImageUndoRecord : public UndoRecord {
public:
    ImageUndoRecord() = default;

    /// Cuts `rectangle` (inclusive) out of the image before the edit and after it. Null when a piece cannot
    /// be made.
    [[nodiscard]] static std::unique_ptr<ImageUndoRecord>
    make(const TextureCanvas& beforeEdit, const TextureCanvas& afterEdit, const Rect& rectangle);

    bool undo(void* target) override;
    bool redo(void* target) override;
    /// Null when the pieces cannot be copied.
    [[nodiscard]] std::unique_ptr<UndoRecord> inverse() const override;
    [[nodiscard]] std::uint64_t bytes() const override;
    /// A copy with the identifier and the name of this one; null when the pieces cannot be copied.
    [[nodiscard]] std::unique_ptr<ImageUndoRecord> clone() const;

    std::unique_ptr<TextureCanvas> before;
    std::unique_ptr<TextureCanvas> after;
    std::int32_t left = 0; ///< Where both pieces sit in the image.
    std::int32_t top = 0;

private:
    [[nodiscard]] bool paste(const TextureCanvas* piece, void* target) const;
};

} // namespace dyeworks
