#include "paint/CDyeworksDoc.h"
#include "paint/ImageUndoRecord.h"
#include "paint/RenumberRecord.h"
#include "paint/WholeImageRecord.h"

#include <utility>

namespace dyeworks {

namespace {

/// The texels (inclusive) that undoing or redoing a step changes; nothing when that cannot be told.
std::optional<Rect> texelsOf(const UndoRecord* record, const TextureCanvas& canvas) {
    const auto* const edit = dynamic_cast<const ImageUndoRecord*>(record);
    if (edit == nullptr || edit->before == nullptr)
        return std::nullopt;
    // A piece that a plug-in's change of size has left outside changes nothing.
    const Rect texels = intersection({edit->left, edit->top, edit->left + edit->before->width() - 1,
                                      edit->top + edit->before->height() - 1},
                                     {0, 0, canvas.width() - 1, canvas.height() - 1});
    return texels.left > texels.right || texels.top > texels.bottom ? std::nullopt : std::optional(texels);
}

} // namespace

bool CDyeworksDoc::Undo() {
    // What is being drawn is the newest edit: a step below it has to wait for the next time.
    const bool drawn = openEdit_ != nullptr;
    const std::int32_t before = edits_.position();
    takeBackDrags();
    if (drawn || edits_.position() != before)
        return true;
    const std::uint16_t depth = canvas_.bitsPerPixel();
    if (!JointStep::move(*this, StepWay::Back))
        return false;
    if (canvas_.bitsPerPixel() != depth)
        host_.setStatusText("", kMessagePane);
    return true;
}

bool CDyeworksDoc::Redo() {
    const std::uint16_t depth = canvas_.bitsPerPixel();
    if (!JointStep::move(*this, StepWay::Forward))
        return false;
    tellProject(depth);
    return true;
}

bool CDyeworksDoc::GoTo(std::int32_t position) {
    if (openEdit_ != nullptr || !floatingPieces().empty())
        return false;
    const bool back = position < edits_.position();
    const std::uint16_t depth = canvas_.bitsPerPixel();
    const std::weak_ptr<JointDocument*> self = handle();
    const bool arrived = JointStep::moveTo(*this, position);
    if (self.expired())
        return false;
    // As each step would have said it.
    if (!back)
        tellProject(depth);
    else if (canvas_.bitsPerPixel() != depth)
        host_.setStatusText("", kMessagePane);
    return arrived;
}

bool CDyeworksDoc::moveAlone(StepWay way) {
    const bool back = way == StepWay::Back;
    if (!(back ? edits_.canUndo() : edits_.canRedo()))
        return false;
    const UndoRecord* const record = back ? edits_.steps->currentRecord() : edits_.steps->redoRecord();
    const auto* const whole = dynamic_cast<const WholeImageRecord*>(record);
    const std::optional<Rect> texels = texelsOf(record, canvas_);
    if (texels)
        counts_.leave(canvas_, *texels);
    else
        followMap(*record, way);
    if (back)
        edits_.undo(&canvas_);
    else
        edits_.redo(&canvas_);
    if (texels)
        counts_.enter(canvas_, *texels);
    historyMoved_ = true;
    texelsChanged();
    if (whole != nullptr) {
        const Point before = replaced_.value_or(Point{});
        replaced_ = Point{before.x + whole->moved().x, before.y + whole->moved().y};
    }
    return true;
}

/// The counts follow a step that gives all texels other values.
void CDyeworksDoc::followMap(const UndoRecord& record, StepWay way) {
    const auto* const renumbering = dynamic_cast<const RenumberRecord*>(&record);
    const ByteTable* const map = renumbering == nullptr ? nullptr
                                 : way == StepWay::Back ? renumbering->undoMap()
                                                        : &renumbering->redoMap();
    if (map == nullptr)
        counts_.forget();
    else
        counts_.renumber(*map);
}

void CDyeworksDoc::take(std::unique_ptr<UndoRecord> record) {
    record->redo(&canvas_);
    followMap(*record, StepWay::Forward);
    historyMoved_ = true;
    texelsChanged();
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
    host_.imageChanged(*this, Rect{0, 0, canvas_.width() - 1, canvas_.height() - 1});
    RefreshOwnPalette();
}

} // namespace dyeworks
