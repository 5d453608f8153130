#include "paint/Stroke.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"

namespace dyeworks {

bool Stroke::begin() {
    touched_ = kNothing;
    return view_.document().BeginStroke();
}

void Stroke::takeBack() {
    view_.document().canvas().SetChangedRect(touched_);
    setStrokeFlag(true);
    view_.document().RestoreSnapshot(&view_);
    setStrokeFlag(false);
    touched_ = kNothing;
}

void Stroke::cancel() {
    takeBack();
    view_.document().RefreshPreviews();
}

void Stroke::setStrokeFlag(bool stroke) {
    view_.document().SetStrokeFlag(stroke);
}

void Stroke::noteChanges() {
    Rect changed;
    if (!view_.document().canvas().GetChangedRect(changed))
        return;
    touched_ = touched_ == kNothing
                   ? changed
                   : Rect{std::min(touched_.left, changed.left), std::min(touched_.top, changed.top),
                          std::max(touched_.right, changed.right), std::max(touched_.bottom, changed.bottom)};
    // A preview may end the drag, so it comes last, and not before the drag has begun.
    if (view_.dragging())
        view_.document().RefreshPreviews();
}

} // namespace dyeworks
