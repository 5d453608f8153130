#include "paint/ReplacerTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"
#include "platform/StringId.h"

namespace dyeworks {

bool ReplacerTool::press(Point texel, const PointerEvent& /*event*/) {
    const auto replace = [&](TextureCanvas& canvas) {
        const Rect whole{0, 0, canvas.width() - 1, canvas.height() - 1};
        canvas.ReplaceColor(selection().texels().value_or(whole), texel.x, texel.y, host().drawingValue());
    };
    document().Edit(&viewer(), replace, StringId::StepReplacer);
    return false;
}

} // namespace dyeworks
