#pragma once

#include "core/UndoHistory.h"
#include "paint/Rect.h"
#include "paint/TextureCanvas.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace dyeworks {

/// An edit that gave an image another canvas: of another size, depth, or both. It holds the one of the two
/// states that the image is not in, and exchanges them, which needs no memory. The target is a
/// `TextureCanvas`.
class WholeImageRecord : public UndoRecord {
public:
    /// The first palette entry of an image, exchanged together with its canvas.
    struct FirstEntry {
        std::int32_t* ofImage = nullptr; ///< Must outlive the record.
        std::int32_t other = 0;
    };

    /// `other` is what the image becomes at the first `redo`, `moved` by how much the picture then lies
    /// further right and down. Without `firstEntry` that stays what it is.
    WholeImageRecord(std::unique_ptr<TextureCanvas> other, std::optional<FirstEntry> firstEntry, Point moved);

    bool undo(void* target) override { return exchange(target); }
    bool redo(void* target) override { return exchange(target); }
    /// Null when the canvas cannot be copied.
    [[nodiscard]] std::unique_ptr<UndoRecord> inverse() const override;
    [[nodiscard]] std::uint64_t bytes() const override { return other_->block().size(); }

    /// By how much the last exchange moved the picture.
    [[nodiscard]] Point moved() const noexcept { return {-next_.x, -next_.y}; }

private:
    bool exchange(void* target);

    std::unique_ptr<TextureCanvas> other_;
    std::optional<FirstEntry> firstEntry_;
    Point next_; ///< By how much the next exchange moves the picture.
};

} // namespace dyeworks
