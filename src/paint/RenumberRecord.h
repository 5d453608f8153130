#pragma once

#include "core/UndoHistory.h"
#include "paint/CanvasRenumber.h"
#include "paint/TextureCanvas.h"

#include <cstdint>
#include <memory>

namespace dyeworks {

/// An edit that gave all texels of an image other values by a map. It holds the map and the way back; where
/// values that the image has come together, it holds the image as it was instead of a way back. The target is
/// a `TextureCanvas`.
class RenumberRecord : public UndoRecord {
public:
    /// The edit of `canvas`, which `redo` carries out at first. Null without memory.
    [[nodiscard]] static std::unique_ptr<RenumberRecord> make(const TextureCanvas& canvas,
                                                              const ValueMap& map);

    bool undo(void* target) override;
    bool redo(void* target) override;
    /// Null when there is no memory, or no way back.
    [[nodiscard]] std::unique_ptr<UndoRecord> inverse() const override;
    [[nodiscard]] std::uint64_t bytes() const override;

private:
    RenumberRecord() = default;

    ValueMap forward_{};
    ValueMap back_{};
    std::unique_ptr<TextureCanvas> before_; ///< Null where there is a way back.
};

} // namespace dyeworks
