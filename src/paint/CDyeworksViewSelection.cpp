#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/ViewWindow.h"
#include "platform/Platform.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace dyeworks {

namespace {

/// Where a side of `length` texels begins so that it lies inside `size` of them, or from 0 on if it is
/// longer.
std::int32_t heldInside(std::int32_t position, std::int32_t length, std::int32_t size) {
    return std::max(std::min(position, size - length), 0);
}

} // namespace

TrackerHit CDyeworksView::HitSelection(Point client) const {
    if (selection_ == Rect{})
        return TrackerHit::None;
    return SelectionTracker(geometry().clientFrame(selection_), kSelectionStyle).hitTest(client);
}

void CDyeworksView::SetFloatingPiece(std::unique_ptr<TextureCanvas> piece) {
    if (piece == nullptr || piece->width() <= 0 || piece->height() <= 0)
        return;
    if (floatingPiece_ != nullptr)
        CommitFloatingPiece(true);
    anchor_ = {heldInside(anchor_.x, piece->width(), document_.canvas().width()),
               heldInside(anchor_.y, piece->height(), document_.canvas().height())};
    const Rect place{anchor_.x, anchor_.y, anchor_.x + piece->width() - 1, anchor_.y + piece->height() - 1};
    floatingPiece_ = std::move(piece);
    setCurrentTool(Tool::Select);
    setToolAtPress(Tool::Select);
    SetSelection(place, true);
}

void CDyeworksView::CommitFloatingPiece(bool redraw) {
    // Released before the repaints that follow.
    if (const std::unique_ptr<TextureCanvas> piece = std::move(floatingPiece_))
        document_.PlaceFloatingPiece(
            this, *piece, {selection_.left, selection_.top, selection_.right + 1, selection_.bottom + 1});
    if (selection_ != Rect{})
        SetSelection(std::nullopt, redraw);
}

void CDyeworksView::DropFloatingPiece() noexcept {
    floatingPiece_.reset();
}

/// A selection must not change hands while it is dragged.
void CDyeworksView::takeBackSelecting() {
    if (selecting())
        CancelDrag();
}

bool CDyeworksView::selecting() const noexcept {
    return tool_ != nullptr && toolAtPress_ == Tool::Select;
}

void CDyeworksView::OnSpuit() {
    spuit_ = !spuit_;
}

void CDyeworksView::OnUpdateSpuit(CommandUi& ui) {
    ui.checked = spuit_;
}

void CDyeworksView::OnSelectAll() {
    CancelDrag();
    setCurrentTool(Tool::Select);
    setToolAtPress(Tool::Select);
    CommitFloatingPiece(false);
    const TextureCanvas& canvas = document_.canvas();
    SetSelection(Rect{0, 0, canvas.width() - 1, canvas.height() - 1}, false);
    // The frame of a shape that has just been taken back must not keep the selection's out.
    redrawRequest_ = {};
    window_.invalidateAll();
}

void CDyeworksView::OnUpdateSelectAll(CommandUi& ui) {
    ui.enabled = keepsSelection(toolAtPress_);
}

void CDyeworksView::OnCancelSelection() {
    takeBackSelecting();
    CommitFloatingPiece(true);
}

void CDyeworksView::OnFlip(CommandId id) {
    takeBackSelecting();
    if (SelectionExists())
        document_.Flip(this, selection_,
                       id == ID_FLIP_X ? TextureCanvas::kFlipHorizontal : TextureCanvas::kFlipVertical);
}

void CDyeworksView::OnCopy() {
    static_cast<void>(copySelection());
}

bool CDyeworksView::copySelection() const {
    if (!SelectionExists())
        return false;
    const bool copied = document_.canvas().CopyToClipboard(selection_);
    if (!copied)
        applicationMessage(text(StringId::CannotCopy));
    return copied;
}

void CDyeworksView::OnCut() {
    takeBackSelecting();
    // What came to no clipboard would be lost.
    if (copySelection())
        document_.FilledBox(this, selection_, 0);
}

void CDyeworksView::OnUpdateSelected(CommandUi& ui) {
    ui.enabled = SelectionExists();
}

void CDyeworksView::OnPaste() {
    CancelDrag();
    std::unique_ptr<TextureCanvas> piece = TextureCanvas::PasteFromClipboard();
    if (piece == nullptr && platform().clipboard().offers(ClipboardFormat::Bitmap))
        applicationMessage(text(StringId::CannotPaste));
    SetFloatingPiece(std::move(piece));
}

void CDyeworksView::OnUpdatePaste(CommandUi& ui) {
    ui.enabled = platform().clipboard().offers(ClipboardFormat::Bitmap);
}

} // namespace dyeworks
