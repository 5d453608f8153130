#include "paint/SelectTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"
#include "platform/StringId.h"

#include <utility>

namespace dyeworks {

bool SelectTool::press(Point texel, const PointerEvent& event) {
    start_ = texel;
    hit_ = selection().hit(event.position);
    if (hit_ != TrackerHit::None) {
        before_ = selection().texels();
        grab(*before_);
        selection().setAnchor(anchor_);
        return true;
    }
    // A piece that has been placed is no selection any more.
    if (!selection().hasFloatingPiece())
        before_ = selection().texels();
    if (!selection().commitFloatingPiece(true))
        return false;
    anchor_ = current_ = texel;
    selection().setAnchor(anchor_);
    selection().select(Rect{texel.x, texel.y, texel.x, texel.y}, true);
    return true;
}

/// The corner opposite to the one that was hit stays.
void SelectTool::grab(const Rect& texels) {
    const Point topLeft{texels.left, texels.top};
    const Point topRight{texels.right, texels.top};
    const Point bottomRight{texels.right, texels.bottom};
    const Point bottomLeft{texels.left, texels.bottom};
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
        if (!selection().hasFloatingPiece() && !cutPiece(event.control))
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
    selection().setAnchor(anchor_);
    selection().select(Rect{anchor_.x, anchor_.y, current_.x, current_.y}, true);
}

/// False when there is no memory for the piece; the image then is as it was.
bool SelectTool::cutPiece(bool leaveImage) {
    const Rect cut = selection().texels().value_or(Rect{});
    std::unique_ptr<TextureCanvas> piece =
        document().canvas().CopyRect(cut.left, cut.top, cut.right, cut.bottom);
    if (piece == nullptr)
        return false;
    DrawingOptions options;
    options.wrap = drawingOptions().wrap;
    CanvasDrawing(document().canvas(), options, 0).completePiece(*piece, cut);
    const std::int32_t before = document().edits().position();
    const auto erase = [&](TextureCanvas& canvas) {
        CanvasDrawing(canvas, options, 0).filledBox({cut.left, cut.top}, {cut.right, cut.bottom});
    };
    if (!leaveImage && !document().Edit(&viewer(), erase, StringId::StepLift))
        return false;
    if (document().edits().position() != before)
        step_ = document().edits().position();
    cut_ = true;
    selection().setFloatingPiece(std::move(piece), StringId::StepPlace);
    const Rect placed = selection().texels().value_or(Rect{});
    anchor_ = {placed.left, placed.top};
    current_ = {placed.right, placed.bottom};
    return true;
}

void SelectTool::cancel() {
    if (cut_) {
        selection().dropFloatingPiece();
        if (step_ && document().edits().position() == *step_)
            document().Undo();
    }
    selection().select(before_, true);
    selection().setDragged(false);
}

} // namespace dyeworks
