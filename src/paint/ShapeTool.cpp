#include "paint/ShapeTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

namespace dyeworks {

bool ShapeTool::press(Point texel, const PointerEvent& event) {
    centred_ = event.alt;
    view().CommitFloatingPiece(true);
    centre_ = anchor_ = current_ = previous_ = texel;
    view().setAnchor(anchor_);
    if (!stroke_.begin())
        return false;
    showFrame(CDyeworksView::kRedrawDrag);
    stroke_.draw([this] { drawShape(); });
    return true;
}

void ShapeTool::move(Point texel, const PointerEvent& /*event*/) {
    if (texel == previous_)
        return;
    follow(texel);
    showFrame(CDyeworksView::kRedrawImage | CDyeworksView::kRedrawDrag);
    stroke_.takeBack();
    stroke_.draw([this] { drawShape(); });
    previous_ = texel;
}

void ShapeTool::release(Point texel, const PointerEvent& /*event*/) {
    hideFrame();
    stroke_.takeBack();
    if (shape_ == Tool::Line)
        follow(texel);
    drawShape();
}

void ShapeTool::cancel() {
    hideFrame();
    stroke_.cancel();
}

/// A line is its own outline.
void ShapeTool::showFrame(std::uint32_t redrawRequest) {
    if (shape_ != Tool::Line)
        view().ShowDragFrame({anchor_.x, anchor_.y, current_.x, current_.y}, redrawRequest);
}

void ShapeTool::hideFrame() {
    if (shape_ != Tool::Line)
        view().HideDragFrame();
}

void ShapeTool::follow(Point texel) {
    current_ = texel;
    if (centred_)
        anchor_ = {2 * centre_.x - texel.x, 2 * centre_.y - texel.y};
    view().setAnchor(anchor_);
}

void ShapeTool::drawShape() {
    const Rect rectangle{anchor_.x, anchor_.y, current_.x, current_.y};
    const std::uint32_t value = view().drawingValue();
    switch (shape_) {
    case Tool::Box:
        document().Box(&view(), rectangle, value);
        break;
    case Tool::BoxFill:
        document().FilledBox(&view(), rectangle, value);
        break;
    case Tool::Circle:
        document().Ellipse(&view(), rectangle, value);
        break;
    case Tool::CircleFill:
        document().FilledEllipse(&view(), rectangle, value);
        break;
    default:
        document().Line(&view(), anchor_.x, anchor_.y, current_.x, current_.y, value);
        break;
    }
}

} // namespace dyeworks
