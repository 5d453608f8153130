#include "paint/PenTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"

namespace dyeworks {

bool PenTool::press(Point texel, const PointerEvent& /*event*/) {
    if (!selection().commitFloatingPiece(true))
        return false;
    follow(texel);
    edit_ = document().BeginEdit(&viewer());
    if (edit_ == nullptr)
        return false;
    edit_->canvas().PutPixel(texel.x, texel.y, host().drawingValue());
    return true;
}

void PenTool::follow(Point texel) {
    anchor_ = texel;
    selection().setAnchor(texel);
}

void PenTool::move(Point texel, const PointerEvent& /*event*/) {
    if (texel == anchor_)
        return;
    edit_->canvas().DrawLine(anchor_.x, anchor_.y, texel.x, texel.y, host().drawingValue());
    follow(texel);
}

void PenTool::release(Point /*texel*/, const PointerEvent& /*event*/) {
    document().CommitEdit();
}

void PenTool::cancel() {
    document().DropEdit();
}

} // namespace dyeworks
