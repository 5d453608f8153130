#include "paint/ZoomLensTool.h"

#include "paint/CDyeworksView.h"

namespace dyeworks {

void ZoomLensTool::release(Point /*texel*/, const PointerEvent& event) {
    view().ZoomAt(event.position, event.control);
}

} // namespace dyeworks
