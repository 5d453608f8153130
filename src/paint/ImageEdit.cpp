#include "paint/ImageEdit.h"

#include "paint/CanvasDifference.h"

namespace dyeworks {

ImageEdit::ImageEdit(ImageEditHost& host, TextureCanvas& canvas, const CanvasSnapshot& snapshot,
                     ImageViewer* viewer)
    : host_(host)
    , canvas_(canvas)
    , snapshot_(snapshot)
    , viewer_(viewer)
    , touchedTiles_({canvas.width(), canvas.height()}) {}

ImageEdit::~ImageEdit() {
    if (!committed_)
        takeBack();
}

void ImageEdit::show() {
    if (!canvas_.changedRect() && !takenBack_)
        return;
    takenBack_ = false;
    noteChanges();
    host_.showDrawn(viewer_);
}

void ImageEdit::takeBack() {
    noteChanges();
    if (!touched_)
        return;
    snapshot_.restore(canvas_);
    canvas_.SetChangedRect(*touched_);
    touched_.reset();
    touchedTiles_.clear();
    takenBack_ = true;
    host_.showTakenBack(viewer_);
}

bool ImageEdit::commit(std::optional<StringId> name) {
    noteChanges();
    committed_ = true;
    if (!touched_)
        return false;
    canvas_.SetChangedRect(*touched_);
    const auto written = canvas_.writtenRect();
    if (!written)
        return false;
    const TextureCanvas& before = *snapshot_.canvas();
    const auto differing = differingRect(before, canvas_, intersection(*touched_, *written));
    return differing && host_.recordStep(before, *differing, touchedTiles_, name);
}

void ImageEdit::noteChanges() {
    if (!canvas_.changedRect())
        return;
    touched_ = unionOf(touched_, canvas_.changedRect());
    touchedTiles_.add(*canvas_.changedRect());
}

} // namespace dyeworks
