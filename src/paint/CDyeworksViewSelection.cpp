#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/ViewWindow.h"
#include "platform/Platform.h"

#include <memory>
#include <utility>

namespace dyeworks {

void CDyeworksView::SetFloatingPiece(std::unique_ptr<TextureCanvas> piece) {
    selection_.setFloatingPiece(std::move(piece));
}

void CDyeworksView::DropSelection() {
    selection_.dropFloatingPiece();
    selection_.select(std::nullopt, false);
}

/// A selection must not change hands while it is dragged.
void CDyeworksView::takeBackSelecting() {
    if (selecting())
        CancelDrag();
}

bool CDyeworksView::selecting() const noexcept {
    return tool_ != nullptr && selection_.toolAtPress() == Tool::Select;
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
    selection_.setToolAtPress(Tool::Select);
    if (!selection_.commitFloatingPiece(false))
        return;
    const TextureCanvas& canvas = document_.canvas();
    selection_.select(Rect{0, 0, canvas.width() - 1, canvas.height() - 1}, false);
    // The frame of a shape that has just been taken back must not keep the selection's out.
    static_cast<void>(selection_.takeRedrawRequest());
    window_.invalidateAll();
}

void CDyeworksView::OnUpdateSelectAll(CommandUi& ui) {
    ui.enabled = keepsSelection(selection_.toolAtPress());
}

void CDyeworksView::OnCancelSelection() {
    takeBackSelecting();
    selection_.commitFloatingPiece(true);
}

void CDyeworksView::OnFlip(CommandId id) {
    takeBackSelecting();
    if (!selection_.exists())
        return;
    const Rect area = *selection_.texels();
    document_.Edit(this, [&](TextureCanvas& canvas) {
        canvas.Flip(area.left, area.top, area.right, area.bottom,
                    id == ID_FLIP_X ? TextureCanvas::kFlipHorizontal : TextureCanvas::kFlipVertical);
    });
}

void CDyeworksView::OnCopy() {
    static_cast<void>(copySelection());
}

bool CDyeworksView::copySelection() const {
    if (!selection_.exists())
        return false;
    const bool copied = document_.canvas().CopyToClipboard(*selection_.texels());
    if (!copied)
        applicationMessage(text(StringId::CannotCopy));
    return copied;
}

void CDyeworksView::OnCut() {
    takeBackSelecting();
    // What came to no clipboard would be lost.
    if (!copySelection())
        return;
    const Rect area = *selection_.texels();
    document_.Edit(this, [&](TextureCanvas& canvas) {
        canvas.FillBox(area.left, area.top, area.right, area.bottom, 0);
    });
}

void CDyeworksView::OnUpdateSelected(CommandUi& ui) {
    ui.enabled = selection_.exists();
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
