#include "paint/FillTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

namespace dyeworks {

bool FillTool::press(Point texel, const PointerEvent& /*event*/) {
    view().CommitFloatingPiece(true);
    document().Fill(&view(), texel.x, texel.y, view().drawingValue());
    return false;
}

} // namespace dyeworks
