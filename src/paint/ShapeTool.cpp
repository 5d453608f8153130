#include "paint/ShapeTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"
#include "platform/StringId.h"

namespace dyeworks {

namespace {

StringId nameOf(Tool shape) {
    switch (shape) {
    case Tool::Box:
        return StringId::StepBox;
    case Tool::BoxFill:
        return StringId::StepBoxFill;
    case Tool::Circle:
        return StringId::StepCircle;
    case Tool::CircleFill:
        return StringId::StepCircleFill;
    default:
        return StringId::StepLine;
    }
}

} // namespace

bool ShapeTool::press(Point texel, const PointerEvent& event) {
    centred_ = event.alt;
    if (!selection().commitFloatingPiece(true))
        return false;
    centre_ = anchor_ = current_ = previous_ = texel;
    selection().setAnchor(anchor_);
    edit_ = document().BeginEdit(&viewer());
    if (edit_ == nullptr)
        return false;
    showFrame(ImageSelection::kRedrawDrag);
    drawShape();
    return true;
}

void ShapeTool::move(Point texel, const PointerEvent& /*event*/) {
    if (texel == previous_)
        return;
    follow(texel);
    showFrame(ImageSelection::kRedrawImage | ImageSelection::kRedrawDrag);
    edit_->takeBack();
    drawShape();
    previous_ = texel;
}

void ShapeTool::release(Point texel, const PointerEvent& /*event*/) {
    hideFrame();
    edit_->takeBack();
    if (shape_ == Tool::Line)
        follow(texel);
    drawShape();
    document().CommitEdit(nameOf(shape_));
}

void ShapeTool::cancel() {
    hideFrame();
    document().DropEdit();
}

/// A line is its own outline.
void ShapeTool::showFrame(std::uint32_t redrawRequest) {
    if (shape_ != Tool::Line)
        selection().showDragFrame({anchor_.x, anchor_.y, current_.x, current_.y}, redrawRequest);
}

void ShapeTool::hideFrame() {
    if (shape_ != Tool::Line)
        selection().hideDragFrame();
}

void ShapeTool::follow(Point texel) {
    current_ = texel;
    if (centred_)
        anchor_ = {2 * centre_.x - texel.x, 2 * centre_.y - texel.y};
    selection().setAnchor(anchor_);
}

void ShapeTool::drawShape() {
    CanvasDrawing drawing = drawingOn(edit_->canvas());
    switch (shape_) {
    case Tool::Box:
        drawing.box(anchor_, current_);
        break;
    case Tool::BoxFill:
        drawing.filledBox(anchor_, current_);
        break;
    case Tool::Circle:
        drawing.ellipse(anchor_, current_);
        break;
    case Tool::CircleFill:
        drawing.filledEllipse(anchor_, current_);
        break;
    default:
        drawing.line(anchor_, current_);
        break;
    }
}

} // namespace dyeworks
