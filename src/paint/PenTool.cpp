#include "paint/PenTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"
#include "platform/StringId.h"

namespace dyeworks {

bool PenTool::press(Point texel, const PointerEvent& /*event*/) {
    if (!selection().commitFloatingPiece(true))
        return false;
    follow(texel);
    edit_ = document().BeginEdit(&viewer());
    if (edit_ == nullptr)
        return false;
    drawingOn(edit_->canvas()).point(texel);
    return true;
}

void PenTool::follow(Point texel) {
    anchor_ = texel;
    selection().setAnchor(texel);
}

void PenTool::move(Point texel, const PointerEvent& /*event*/) {
    if (texel == anchor_)
        return;
    drawingOn(edit_->canvas()).line(anchor_, texel);
    follow(texel);
}

void PenTool::release(Point /*texel*/, const PointerEvent& /*event*/) {
    document().CommitEdit(StringId::StepPen);
}

void PenTool::cancel() {
    document().DropEdit();
}

} // namespace dyeworks
