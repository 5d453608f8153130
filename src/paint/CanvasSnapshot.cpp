#include "paint/CanvasSnapshot.h"

namespace dyeworks {

bool CanvasSnapshot::take(TextureCanvas& canvas) {
    // Outside what was written, the snapshot is what the canvas is.
    if (const auto written = canvas.writtenRect();
        written && copy_ != nullptr && !copy_->CopyRectFrom(canvas, *written))
        copy_.reset();
    if (copy_ == nullptr)
        copy_ = copyOf_(canvas);
    if (copy_ != nullptr)
        canvas.resetWrittenRect();
    return copy_ != nullptr;
}

void CanvasSnapshot::restore(TextureCanvas& canvas) const {
    if (const auto written = canvas.writtenRect();
        copy_ != nullptr && written && canvas.CopyRectFrom(*copy_, *written))
        canvas.resetWrittenRect();
}

} // namespace dyeworks
