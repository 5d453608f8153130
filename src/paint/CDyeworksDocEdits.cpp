#include "paint/CDyeworksDoc.h"
#include "paint/CanvasDifference.h"
#include "paint/WholeImageRecord.h"
#include "platform/Platform.h"

#include <new>
#include <utility>

namespace dyeworks {

void CDyeworksDoc::texelsChanged() {
    static std::uint64_t latest = 0;
    texelState_ = ++latest;
}

bool CDyeworksDoc::openEdit(ImageViewer* viewer) {
    endOpenEdit();
    if (!snapshot_.take(canvas_))
        return false;
    ImageEditHost& host = *this;
    openEdit_ = std::make_unique<ImageEdit>(host, canvas_, snapshot_, viewer);
    return true;
}

ImageEdit* CDyeworksDoc::BeginEdit(ImageViewer* viewer) {
    if (!openEdit(viewer))
        applicationMessage(text(StringId::NotEnoughMemory));
    return openEdit_.get();
}

void CDyeworksDoc::ShowEdit() {
    if (openEdit_ != nullptr)
        openEdit_->show();
}

void CDyeworksDoc::CommitEdit() {
    const std::unique_ptr<ImageEdit> edit = std::move(openEdit_);
    if (edit == nullptr)
        return;
    edit->commit();
    showEverywhere(edit->viewer());
}

void CDyeworksDoc::DropEdit() {
    if (openEdit_ == nullptr)
        return;
    std::unique_ptr<ImageEdit>(std::move(openEdit_)).reset();
    RefreshPreviews();
}

/// Whether the user lets an edit go on that cannot be undone.
bool CDyeworksDoc::goesWithoutUndo() {
    return applicationMessage(text(StringId::WithoutUndoQuestion), MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

void CDyeworksDoc::editedWithoutUndo(ImageViewer* viewer) {
    if (canvas_.changedRect()) {
        historyMoved_ = unrecorded_ = true;
        texelsChanged();
        edits_.loseSavedPosition();
    }
    showEverywhere(viewer);
}

bool CDyeworksDoc::SetImage(const TmfImage& image) {
    takeBackDrags();
    const TextureCanvas source(image);
    if (!openEdit(nullptr))
        return false;
    if (!canvas_.CopyFrom(source)) {
        openEdit_.reset();
        return false;
    }
    CommitEdit();
    return true;
}

void CDyeworksDoc::showDrawn(ImageViewer* viewer) {
    if (viewer != nullptr)
        viewer->InvalidateChanged();
    canvas_.ResetChangedRect();
    RefreshPreviews();
}

void CDyeworksDoc::showTakenBack(ImageViewer* viewer) {
    if (viewer != nullptr)
        viewer->InvalidateChanged();
    updateAllViews(viewer, kHintPixels);
    canvas_.ResetChangedRect();
}

bool CDyeworksDoc::recordStep(const TextureCanvas& before, const Rect& changed) {
    historyMoved_ = true;
    texelsChanged();
    const bool recorded = edits_.add(makeRecord_(before, canvas_, changed));
    unrecorded_ = unrecorded_ || !recorded;
    return recorded;
}

/// Shows the changed rectangle in all views and brings modified flag and title in step with the history.
void CDyeworksDoc::showEverywhere(ImageViewer* viewer) {
    if (viewer != nullptr)
        viewer->InvalidateChanged();
    followHistory();
    updateAllViews(viewer, kHintPixels);
    RefreshPreviews();
    canvas_.ResetChangedRect();
}

/// Without a current record nothing has been done, or everything has been undone.
void CDyeworksDoc::followHistory() {
    // An edit that recorded nothing must not mark a document that was just saved.
    if (!historyMoved_)
        return;
    historyMoved_ = false;
    setModified(edits_.canUndo() || unrecorded_);
}

bool CDyeworksDoc::Undo() {
    takeBackDrags();
    return edits_.canUndo() && step(&EditHistory::undo, edits_.steps->currentRecord());
}

bool CDyeworksDoc::Redo() {
    takeBackDrags();
    return edits_.canRedo() && step(&EditHistory::redo, edits_.steps->redoRecord());
}

bool CDyeworksDoc::step(bool (EditHistory::*move)(void*), const UndoRecord* record) {
    const auto* const whole = dynamic_cast<const WholeImageRecord*>(record);
    if (!(edits_.*move)(&canvas_))
        return false;
    historyMoved_ = true;
    texelsChanged();
    if (whole != nullptr)
        showReplaced(whole->moved());
    else
        showEverywhere(nullptr);
    return true;
}

bool CDyeworksDoc::ReplaceImage(const CanvasMaker& make, const Replacing& how) {
    if (!settlePieces())
        return false;
    std::unique_ptr<TextureCanvas> made = make(canvas_);
    const bool same = made != nullptr && made->width() == canvas_.width() &&
                      made->height() == canvas_.height() && made->bitsPerPixel() == canvas_.bitsPerPixel();
    const Rect whole{0, 0, canvas_.width() - 1, canvas_.height() - 1};
    if (same && !differingRect(*made, canvas_, whole))
        return true;
    const auto entry = how.firstEntry
                           ? std::optional(WholeImageRecord::FirstEntry{&paletteValue_, *how.firstEntry})
                           : std::nullopt;
    std::unique_ptr<WholeImageRecord> record;
    if (made != nullptr)
        record.reset(new (std::nothrow) WholeImageRecord(std::move(made), entry, how.moved));
    if (record == nullptr) {
        applicationMessage(text(StringId::NotEnoughMemory));
        return false;
    }
    record->redo(&canvas_);
    historyMoved_ = true;
    texelsChanged();
    static_cast<void>(edits_.add(std::move(record)));
    showReplaced(how.moved);
    return true;
}

/// The canvas is another one: everything that depends on its size, its depth or its colours follows. A piece
/// that floats stays where it is.
void CDyeworksDoc::showReplaced(Point moved) {
    snapshot_.forget();
    forEachViewer([](ImageViewer& viewer) {
        if (!viewer.hasFloatingPiece())
            viewer.DropSelection();
    });
    followHistory();
    // The bar shows the bank of the image, which the colours are taken from.
    host_.refreshPaletteBar();
    if (const TextureLookupTable* const palette = GetAttachedPalette())
        takeColours(*palette);
    forEachViewer([moved](ImageViewer& viewer) { viewer.SizeChanged(moved); });
    RefreshOwnPalette();
}

void CDyeworksDoc::endOpenEdit() {
    if (openEdit_ == nullptr)
        return;
    // First the drag, so that no event of it reaches an edit that has gone while previews are shown.
    if (ImageViewer* const viewer = openEdit_->viewer())
        viewer->CancelDrag();
    DropEdit();
}

/// What a drag has done so far belongs to no step yet: it must neither be saved nor mixed with other edits.
void CDyeworksDoc::takeBackDrags() {
    endOpenEdit();
    forEachViewer([](ImageViewer& viewer) { viewer.CancelDrag(); });
}

/// The image is another one, which is what its file holds.
void CDyeworksDoc::contentsAreSaved() {
    edits_.restartSaved();
    unrecorded_ = false;
    texelsChanged();
}

} // namespace dyeworks
