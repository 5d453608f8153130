#include "paint/ZoomLensTool.h"

namespace dyeworks {

void ZoomLensTool::release(Point /*texel*/, const PointerEvent& event) {
    host().ZoomAt(event.position, event.control);
}

} // namespace dyeworks
