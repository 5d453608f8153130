#include "paint/FillTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"

namespace dyeworks {

bool FillTool::press(Point texel, const PointerEvent& /*event*/) {
    selection().commitFloatingPiece(true);
    document().Edit(
        &viewer(), [&](TextureCanvas& canvas) { canvas.FloodFill(texel.x, texel.y, host().drawingValue()); });
    return false;
}

} // namespace dyeworks
