#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/CanvasDifference.h"
#include "platform/Platform.h"

namespace dyeworks {

template <typename Draw>
void CDyeworksDoc::edit(CDyeworksView* view, Draw draw) {
    if (!beginEdit())
        return;
    draw();
    RecordUndoStep();
    AfterEdit(view);
}

/// Takes the snapshot that an edit is undone from. False: there is no memory for it, and the user would
/// rather leave the edit.
bool CDyeworksDoc::beginEdit() {
    return TakeSnapshot() || applicationMessage(text(StringId::WithoutUndoQuestion), MessageButtons::YesNo) ==
                                 MessageAnswer::Yes;
}

bool CDyeworksDoc::BeginStroke() {
    if (TakeSnapshot())
        return true;
    applicationMessage(text(StringId::NotEnoughMemory));
    return false;
}

void CDyeworksDoc::Line(CDyeworksView* view, std::int32_t x1, std::int32_t y1, std::int32_t x2,
                        std::int32_t y2, std::uint32_t value) {
    edit(view, [&] { canvas_.DrawLine(x1, y1, x2, y2, value); });
}

void CDyeworksDoc::Box(CDyeworksView* view, const Rect& rectangle, std::uint32_t value) {
    edit(view,
         [&] { canvas_.DrawBox(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, value); });
}

void CDyeworksDoc::FilledBox(CDyeworksView* view, const Rect& rectangle, std::uint32_t value) {
    edit(view,
         [&] { canvas_.FillBox(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, value); });
}

void CDyeworksDoc::Ellipse(CDyeworksView* view, const Rect& rectangle, std::uint32_t value) {
    edit(view, [&] {
        canvas_.DrawEllipse(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, value);
    });
}

void CDyeworksDoc::FilledEllipse(CDyeworksView* view, const Rect& rectangle, std::uint32_t value) {
    edit(view, [&] {
        canvas_.FillEllipse(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, value);
    });
}

void CDyeworksDoc::Fill(CDyeworksView* view, std::int32_t x, std::int32_t y, std::uint32_t value) {
    edit(view, [&] { canvas_.FloodFill(x, y, value); });
}

void CDyeworksDoc::Replace(CDyeworksView* view, const Rect& rectangle, std::int32_t x, std::int32_t y,
                           std::uint32_t value) {
    const Rect whole{0, 0, canvas_.width() - 1, canvas_.height() - 1};
    edit(view, [&] { canvas_.ReplaceColor(rectangle == Rect{} ? whole : rectangle, x, y, value); });
}

void CDyeworksDoc::Pixel(CDyeworksView* view, std::int32_t x, std::int32_t y, std::uint32_t value) {
    edit(view, [&] { canvas_.PutPixel(x, y, value); });
}

void CDyeworksDoc::Flip(CDyeworksView* view, const Rect& rectangle, std::uint32_t flags) {
    edit(view,
         [&] { canvas_.Flip(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, flags); });
}

void CDyeworksDoc::PlaceFloatingPiece(CDyeworksView* view, const TextureCanvas& piece,
                                      const Rect& rectangle) {
    edit(view, [&] {
        canvas_.StretchPaste(piece, rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
    });
}

bool CDyeworksDoc::SetImage(CDyeworksView* view, const TmfImage& image) {
    takeBackDrags();
    if (!TakeSnapshot())
        return false;
    const TextureCanvas source(image);
    if (!canvas_.CopyFrom(source))
        return false;
    RecordUndoStep();
    AfterEdit(view);
    return true;
}

bool CDyeworksDoc::TakeSnapshot() {
    if (stroke_)
        return true;
    // Outside what was written, the snapshot is what the canvas is.
    Rect written;
    if (canvas_.GetWrittenRect(written) && snapshot_ != nullptr && !snapshot_->CopyRectFrom(canvas_, written))
        snapshot_.reset();
    if (snapshot_ == nullptr)
        snapshot_ = makeSnapshot_(canvas_);
    if (snapshot_ != nullptr)
        canvas_.ResetWrittenRect();
    return snapshot_ != nullptr;
}

bool CDyeworksDoc::RecordUndoStep(const std::optional<Rect>& rectangle) {
    if (stroke_)
        return true;
    Rect changed;
    if (rectangle)
        changed = *rectangle;
    else if (!canvas_.GetChangedRect(changed))
        return false;
    if (snapshot_ == nullptr) {
        historyMoved_ = unrecorded_ = true;
        savedPosition_ = kUnreachable;
        return false;
    }
    Rect written;
    if (!canvas_.GetWrittenRect(written))
        return false;
    const std::optional<Rect> differing = differingRect(*snapshot_, canvas_, intersection(changed, written));
    if (!differing)
        return false;
    historyMoved_ = true;
    if (history_->add(makeRecord_(*snapshot_, canvas_, *differing), -1))
        return true;

    // The canvas is now in a state that the history cannot name.
    savedPosition_ = kUnreachable;
    unrecorded_ = true;
    const MessageAnswer answer = platform().messages().show(
        {"Could not allocate buffer for UNDO information.\nDo you clear all UNDO buffer?", "",
         MessageButtons::YesNo, MessageIcon::Warning, MessageOwner::MainWindow});
    if (answer == MessageAnswer::Yes)
        replaceHistory(kUnreachable);
    return false;
}

void CDyeworksDoc::RestoreSnapshot(CDyeworksView* view) {
    Rect drawn;
    if (snapshot_ == nullptr || !canvas_.GetChangedRect(drawn))
        return;
    Rect written;
    if (canvas_.GetWrittenRect(written) && !canvas_.CopyRectFrom(*snapshot_, written))
        return;
    canvas_.ResetWrittenRect();
    canvas_.SetChangedRect(drawn);
    AfterEdit(view);
    // Other views may have been painted while the stroke stood on the canvas.
    if (stroke_)
        updateAllViews(view, kHintPixels);
    canvas_.ResetChangedRect();
}

void CDyeworksDoc::AfterEdit(CDyeworksView* view) {
    if (view != nullptr)
        view->InvalidateChanged();
    if (stroke_)
        return;
    followHistory();
    updateAllViews(view, kHintPixels);
    RefreshPreviews();
    canvas_.ResetChangedRect();
}

/// Without a current record nothing has been done, or everything has been undone, unless there was no memory
/// to record it.
void CDyeworksDoc::followHistory() {
    // An edit that recorded nothing must not mark a document that was just saved.
    if (!historyMoved_)
        return;
    historyMoved_ = false;
    setModified(history_->currentRecord() != nullptr || unrecorded_);
}

bool CDyeworksDoc::Undo() {
    takeBackDrags();
    if (!history_->undo(&canvas_))
        return false;
    historyMoved_ = true;
    AfterEdit(nullptr);
    return true;
}

bool CDyeworksDoc::Redo() {
    takeBackDrags();
    if (!history_->redo(&canvas_))
        return false;
    historyMoved_ = true;
    AfterEdit(nullptr);
    return true;
}

bool CDyeworksDoc::CanUndo() const {
    return history_->currentRecord() != nullptr;
}

bool CDyeworksDoc::CanRedo() const {
    return history_->redoRecord() != nullptr;
}

void CDyeworksDoc::ClearUndo() {
    // The new history begins at 0, which names the state that the old one stood at.
    replaceHistory(history_->position() == savedPosition_ ? 0 : kUnreachable);
}

void CDyeworksDoc::replaceHistory(std::int32_t savedPosition) {
    history_ = std::make_unique<UndoHistory>();
    savedPosition_ = savedPosition;
    if (savedPosition != kUnreachable)
        unrecorded_ = false;
}

/// What a drag has drawn so far belongs to no step yet: it must neither be saved nor mixed with other edits.
void CDyeworksDoc::takeBackDrags() {
    forEachView([](CDyeworksView& view) { view.CancelDrag(); });
}

} // namespace dyeworks
