#include "paint/PixelTool.h"

#include "paint/CDyeworksDoc.h"
#include "paint/ImageSelection.h"
#include "platform/StringId.h"

namespace dyeworks {

bool PixelTool::press(Point texel, const PointerEvent& /*event*/) {
    if (!selection().commitFloatingPiece(true))
        return false;
    selection().setAnchor(texel);
    const std::int32_t before = document().edits().position();
    document().Edit(
        &viewer(), [&](TextureCanvas& canvas) { drawingOn(canvas).point(texel); }, StringId::StepPixel);
    if (document().edits().position() != before)
        step_ = document().edits().position();
    return true;
}

void PixelTool::cancel() {
    if (step_ && document().edits().position() == *step_)
        document().Undo();
}

} // namespace dyeworks
