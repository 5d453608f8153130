#include "paint/CDyeworksDoc.h"
#include "paint/WholeImageRecord.h"

#include <utility>

namespace dyeworks {

bool CDyeworksDoc::moveAlone(StepWay way) {
    const bool back = way == StepWay::Back;
    if (!(back ? edits_.canUndo() : edits_.canRedo()))
        return false;
    const UndoRecord* const record = back ? edits_.steps->currentRecord() : edits_.steps->redoRecord();
    const auto* const whole = dynamic_cast<const WholeImageRecord*>(record);
    if (back)
        edits_.undo(&canvas_);
    else
        edits_.redo(&canvas_);
    historyMoved_ = true;
    if (whole != nullptr) {
        const Point before = replaced_.value_or(Point{});
        replaced_ = Point{before.x + whole->moved().x, before.y + whole->moved().y};
    }
    return true;
}

void CDyeworksDoc::take(std::unique_ptr<UndoRecord> record) {
    record->redo(&canvas_);
    historyMoved_ = true;
    static_cast<void>(edits_.add(std::move(record)));
}

void CDyeworksDoc::showAlone() {
    if (const std::optional<Point> moved = std::exchange(replaced_, std::nullopt))
        showReplaced(*moved);
    else
        showEverywhere(nullptr);
}

/// The palette may have been changed by the same step.
void CDyeworksDoc::showMoved() {
    if (const std::optional<Point> moved = std::exchange(replaced_, std::nullopt)) {
        showReplaced(*moved);
        return;
    }
    followHistory();
    RefreshOwnPalette();
}

} // namespace dyeworks
