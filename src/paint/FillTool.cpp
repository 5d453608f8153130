#include "paint/FillTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"
#include "platform/StringId.h"

namespace dyeworks {

bool FillTool::press(Point texel, const PointerEvent& /*event*/) {
    if (!selection().commitFloatingPiece(true))
        return false;
    document().Edit(
        &viewer(), [&](TextureCanvas& canvas) { drawingOn(canvas).floodFill(texel); }, StringId::StepPaint);
    return false;
}

} // namespace dyeworks
