#include "paint/ReplacerTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"

namespace dyeworks {

bool ReplacerTool::press(Point texel, const PointerEvent& /*event*/) {
    document().Edit(&viewer(), [&](TextureCanvas& canvas) {
        const Rect whole{0, 0, canvas.width() - 1, canvas.height() - 1};
        canvas.ReplaceColor(selection().texels().value_or(whole), texel.x, texel.y, host().drawingValue());
    });
    return false;
}

} // namespace dyeworks
