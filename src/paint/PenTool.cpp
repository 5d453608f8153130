#include "paint/PenTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

namespace dyeworks {

bool PenTool::press(Point texel, const PointerEvent& /*event*/) {
    view().CommitFloatingPiece(true);
    follow(texel);
    if (!stroke_.begin())
        return false;
    stroke_.draw([&] { document().Pixel(&view(), texel.x, texel.y, view().drawingValue()); });
    return true;
}

void PenTool::follow(Point texel) {
    anchor_ = texel;
    view().setAnchor(texel);
}

void PenTool::move(Point texel, const PointerEvent& /*event*/) {
    if (texel == anchor_)
        return;
    TextureCanvas& canvas = document().canvas();
    stroke_.draw([&] { canvas.DrawLine(anchor_.x, anchor_.y, texel.x, texel.y, view().drawingValue()); });
    follow(texel);
    if (view().InvalidateChanged())
        canvas.ResetChangedRect();
}

void PenTool::release(Point /*texel*/, const PointerEvent& /*event*/) {
    TextureCanvas& canvas = document().canvas();
    canvas.ResetChangedRect();
    document().RecordUndoStep(Rect{0, 0, canvas.width() - 1, canvas.height() - 1});
    // Other views have seen nothing of the stroke yet.
    canvas.SetChangedRect(stroke_.touched());
    document().AfterEdit(&view());
}

} // namespace dyeworks
