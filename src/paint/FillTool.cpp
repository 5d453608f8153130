#include "paint/FillTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"

namespace dyeworks {

bool FillTool::press(Point texel, const PointerEvent& /*event*/) {
    if (!selection().commitFloatingPiece(true))
        return false;
    document().Edit(
        &viewer(), [&](TextureCanvas& canvas) { canvas.FloodFill(texel.x, texel.y, host().drawingValue()); });
    return false;
}

} // namespace dyeworks
