#pragma once

#include "paint/DrawTool.h"
#include "paint/SelectionTracker.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

/// Select: drags a new selection out, or the one that is there by its handles. By its inside the selected
/// texels are moved: they are cut out first, or copied when Ctrl is held as the drag begins, and float until
/// they are committed.
class SelectTool final : public DrawTool {
public:
    using DrawTool::DrawTool;
    bool press(Point texel, const PointerEvent& event) override;
    void move(Point texel, const PointerEvent& event) override;
    void cancel() override;

private:
    void grab(const Rect& texels);
    bool cutPiece(bool leaveImage);

    TrackerHit hit_ = TrackerHit::None;
    Point start_;                      ///< Up to where an inside drag has been followed.
    Point anchor_;                     ///< The corner that stays.
    Point current_;                    ///< The corner that is dragged.
    std::optional<Rect> before_;       ///< The selection to go back to.
    bool cut_ = false;                 ///< This drag has made the floating piece.
    std::optional<std::int32_t> step_; ///< History position of the undo step that the cut recorded.
};

} // namespace dyeworks
