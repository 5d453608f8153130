#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/ViewWindow.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace dyeworks {

namespace {

/// Whether the piece looks the same when it has been placed in the image, by values as it is.
bool keepsColours(const TextureCanvas& piece, const TextureCanvas& image) {
    if (piece.holdsColours() || image.holdsColours())
        return piece.bitsPerPixel() == image.bitsPerPixel();
    const auto ofPiece = piece.colourTable();
    const auto ofImage = image.colourTable();
    // The last component of a colour has no meaning.
    constexpr std::size_t kChannels = 3;
    constexpr std::size_t kColourSize = 4;
    std::array<bool, 256> same{};
    for (std::size_t value = 0; value < same.size(); ++value) {
        const std::size_t at = value * kColourSize;
        same[value] = at < ofPiece.size() && at < ofImage.size() &&
                      std::ranges::equal(ofPiece.subspan(at, kChannels), ofImage.subspan(at, kChannels));
    }
    if (std::ranges::all_of(same, [](bool is) { return is; }))
        return true;
    for (std::int32_t y = 0; y < piece.height(); ++y) {
        for (std::int32_t x = 0; x < piece.width(); ++x) {
            if (!same[piece.GetPixel(x, y) & 255U])
                return false;
        }
    }
    return true;
}

/// Makes one texel two where a side of `length` texels has room for them.
void widen(std::int32_t& first, std::int32_t& last, std::int32_t length) {
    if (first == last && last + 1 < length)
        ++last;
    else if (first == last && first > 0)
        --first;
}

} // namespace

void CDyeworksView::SetFloatingPiece(std::unique_ptr<TextureCanvas> piece, StringId name) {
    selection_.setFloatingPiece(std::move(piece), name);
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

/// By hand, as it were: with the Select tool, what floats going into the image. False when it floats on.
bool CDyeworksView::select(const Rect& texels) {
    CancelDrag();
    setCurrentTool(Tool::Select);
    selection_.setToolAtPress(Tool::Select);
    if (!selection_.commitFloatingPiece(false))
        return false;
    selection_.select(texels, false);
    // The frame of a shape that has just been taken back must not keep the selection's out.
    static_cast<void>(selection_.takeRedrawRequest());
    window_.invalidateAll();
    return true;
}

void CDyeworksView::OnSelectAll() {
    const TextureCanvas& canvas = document_.canvas();
    select({0, 0, canvas.width() - 1, canvas.height() - 1});
}

void CDyeworksView::SelectTexels(const Rect& texels) {
    const TextureCanvas& canvas = document_.canvas();
    Rect area = intersection(texels, {0, 0, canvas.width() - 1, canvas.height() - 1});
    if (area.right < area.left || area.bottom < area.top)
        return;
    // Less than an area shows no frame.
    widen(area.left, area.right, canvas.width());
    widen(area.top, area.bottom, canvas.height());
    if (!select(area))
        return;
    const Size client = window_.clientSize();
    const Rect shown = geometry().clientArea(area);
    if (shown.left >= 0 && shown.top >= 0 && shown.right <= client.width && shown.bottom <= client.height)
        return;
    const Point middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    scrollTo(geometry().scrollToKeep(middle, {client.width / 2, client.height / 2}));
}

void CDyeworksView::OnUpdateSelectAll(CommandUi& ui) {
    ui.require(keepsSelection(selection_.toolAtPress()), StringId::WhyToolSelectsNothing);
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
    const bool across = id == ID_FLIP_X;
    const auto flip = [&](TextureCanvas& canvas) {
        canvas.Flip(area.left, area.top, area.right, area.bottom,
                    across ? TextureCanvas::kFlipHorizontal : TextureCanvas::kFlipVertical);
    };
    document_.Edit(this, flip, across ? StringId::StepFlipX : StringId::StepFlipY);
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
    const auto erase = [&](TextureCanvas& canvas) {
        canvas.FillBox(area.left, area.top, area.right, area.bottom, 0);
    };
    document_.Edit(this, erase, StringId::StepCut);
}

void CDyeworksView::OnUpdateSelected(CommandUi& ui) {
    ui.require(selection_.exists(), StringId::WhyNothingSelected);
}

void CDyeworksView::OnPaste() {
    CancelDrag();
    std::unique_ptr<TextureCanvas> piece = TextureCanvas::PasteFromClipboard();
    if (piece == nullptr && platform().clipboard().offers(ClipboardFormat::Bitmap))
        applicationWarning(text(StringId::CannotPaste), text(StringId::ClipboardAdvice));
    const bool differs = piece != nullptr && !keepsColours(*piece, document_.canvas());
    SetFloatingPiece(std::move(piece), StringId::StepPaste);
    document_.host().setStatusText(differs ? text(StringId::PastedColoursDiffer) : std::string(),
                                   kMessagePane);
}

void CDyeworksView::OnUpdatePaste(CommandUi& ui) {
    ui.require(platform().clipboard().offers(ClipboardFormat::Bitmap), StringId::WhyNoBitmap);
}

} // namespace dyeworks
