#include "paint/SelectTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

#include <utility>

namespace dyeworks {

bool SelectTool::press(Point texel, const PointerEvent& event) {
    start_ = texel;
    hit_ = view().HitSelection(event.position);
    if (hit_ != TrackerHit::None) {
        before_ = view().selection();
        grab(*before_);
        view().setAnchor(anchor_);
        return true;
    }
    // A piece that has been placed is no selection any more.
    if (view().selection() != Rect{} && !view().hasFloatingPiece())
        before_ = view().selection();
    view().CommitFloatingPiece(true);
    anchor_ = current_ = texel;
    view().setAnchor(anchor_);
    view().SetSelection(Rect{texel.x, texel.y, texel.x, texel.y}, true);
    return true;
}

/// The corner opposite to the one that was hit stays.
void SelectTool::grab(const Rect& selection) {
    const Point topLeft{selection.left, selection.top};
    const Point topRight{selection.right, selection.top};
    const Point bottomRight{selection.right, selection.bottom};
    const Point bottomLeft{selection.left, selection.bottom};
    switch (hit_) {
    case TrackerHit::TopLeft:
        anchor_ = bottomRight;
        current_ = topLeft;
        break;
    case TrackerHit::TopRight:
    case TrackerHit::Top:
        anchor_ = bottomLeft;
        current_ = topRight;
        break;
    case TrackerHit::BottomLeft:
    case TrackerHit::Left:
        anchor_ = topRight;
        current_ = bottomLeft;
        break;
    default:
        anchor_ = topLeft;
        current_ = bottomRight;
        break;
    }
}

void SelectTool::move(Point texel, const PointerEvent& event) {
    if (texel == current_)
        return;
    switch (hit_) {
    case TrackerHit::Inside: {
        if (!view().hasFloatingPiece() && !cutPiece(event.control))
            return;
        const Point step{texel.x - start_.x, texel.y - start_.y};
        start_ = texel;
        anchor_ = {anchor_.x + step.x, anchor_.y + step.y};
        current_ = {current_.x + step.x, current_.y + step.y};
        break;
    }
    case TrackerHit::Left:
    case TrackerHit::Right:
        current_.x = texel.x;
        break;
    case TrackerHit::Top:
    case TrackerHit::Bottom:
        current_.y = texel.y;
        break;
    default:
        current_ = texel;
        break;
    }
    view().setAnchor(anchor_);
    view().SetSelection(Rect{anchor_.x, anchor_.y, current_.x, current_.y}, true);
}

/// False when there is no memory for the piece; the image then is as it was.
bool SelectTool::cutPiece(bool leaveImage) {
    const Rect selection = view().selection();
    std::unique_ptr<TextureCanvas> piece =
        document().canvas().CopyRect(selection.left, selection.top, selection.right, selection.bottom);
    if (piece == nullptr)
        return false;
    const std::int32_t before = document().history().position();
    if (!leaveImage)
        document().FilledBox(&view(), selection, 0);
    if (document().history().position() != before)
        step_ = document().history().position();
    cut_ = true;
    view().SetFloatingPiece(std::move(piece));
    const Rect placed = view().selection();
    anchor_ = {placed.left, placed.top};
    current_ = {placed.right, placed.bottom};
    return true;
}

void SelectTool::release(Point /*texel*/, const PointerEvent& /*event*/) {
    view().SelectingEnded();
}

void SelectTool::cancel() {
    if (cut_) {
        view().DropFloatingPiece();
        if (step_ && document().history().position() == *step_)
            document().Undo();
    }
    view().SetSelection(before_, true);
    view().SelectingEnded();
}

} // namespace dyeworks
