#include "paint/ReplacerTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

namespace dyeworks {

bool ReplacerTool::press(Point texel, const PointerEvent& /*event*/) {
    document().Replace(&view(), view().selection(), texel.x, texel.y, view().drawingValue());
    return false;
}

} // namespace dyeworks
