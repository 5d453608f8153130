#include "paint/PixelTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

namespace dyeworks {

bool PixelTool::press(Point texel, const PointerEvent& /*event*/) {
    view().CommitFloatingPiece(true);
    view().setAnchor(texel);
    const std::int32_t before = document().history().position();
    document().Pixel(&view(), texel.x, texel.y, view().drawingValue());
    if (document().history().position() != before)
        step_ = document().history().position();
    return true;
}

void PixelTool::cancel() {
    if (step_ && document().history().position() == *step_)
        document().Undo();
}

} // namespace dyeworks
