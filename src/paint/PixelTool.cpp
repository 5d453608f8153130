#include "paint/PixelTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"

namespace dyeworks {

bool PixelTool::press(Point texel, const PointerEvent& /*event*/) {
    selection().commitFloatingPiece(true);
    selection().setAnchor(texel);
    const std::int32_t before = document().history().position();
    document().Edit(&viewer(),
                    [&](TextureCanvas& canvas) { canvas.PutPixel(texel.x, texel.y, host().drawingValue()); });
    if (document().history().position() != before)
        step_ = document().history().position();
    return true;
}

void PixelTool::cancel() {
    if (step_ && document().history().position() == *step_)
        document().Undo();
}

} // namespace dyeworks
