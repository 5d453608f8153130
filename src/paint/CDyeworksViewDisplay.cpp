#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/SurfaceDrawing.h"
#include "paint/ViewRenderer.h"
#include "paint/ViewWindow.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr int kAntsInterval = 200; // milliseconds
constexpr std::int32_t kAntsWidth = 2;
/// No window reaches further.
constexpr std::int32_t kFarthest = 32767;

/// Whether a selection is more than a line of texels.
bool isArea(const Rect& selection) {
    return selection.right > selection.left && selection.bottom > selection.top;
}

/// Client area that a selection and its border take up; nothing for no selection.
Rect areaOf(const ViewGeometry& geometry, const Rect& selection) {
    if (selection == Rect{})
        return {};
    const Rect frame = geometry.clientFrame(selection);
    return {frame.left - 1, frame.top - 1, frame.right + 2, frame.bottom + 2};
}

Rect unionOf(const Rect& a, const Rect& b) {
    if (isEmpty(a))
        return b;
    if (isEmpty(b))
        return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

} // namespace

CDyeworksView::RedrawRequest CDyeworksView::BeginPaint() {
    restoredScroll_.reset();
    if (showsNoPalette()) {
        noPaletteShown_ = true;
        return {};
    }
    // Whatever part is painted now, the rest still shows the words.
    if (std::exchange(noPaletteShown_, false))
        window_.invalidateAll();
    return std::exchange(redrawRequest_, {});
}

void CDyeworksView::Paint(Surface& surface, const Rect& logicalArea, std::uint32_t buttonFace,
                          std::uint32_t redrawRequest) const {
    ViewLook look;
    look.zoom = zoom_;
    look.gridShown = gridShown_;
    look.noPalette = showsNoPalette();
    look.outsideColour = buttonFace;
    look.imageShown = redrawRequest == 0 || (redrawRequest & kRedrawImage) != 0;
    const auto select = [&](const Rect& texels) {
        look.selection = {texels, floatingPiece_.get(), trackerStyle_, antsPhase_};
    };
    // A piece that floats shows also after a tool that draws, and whatever is being selected is framed.
    const bool selected =
        SelectionExists() || floatingPiece_ != nullptr || (selecting() && selection_ != Rect{});
    if (redrawRequest == 0 && selected)
        select(selection_);
    else if ((redrawRequest & kRedrawDrag) != 0)
        select(dragRectangle_);
    ViewRenderer(document_.canvas(), look).draw(surface, logicalArea);
}

bool CDyeworksView::SelectionExists() const noexcept {
    return keepsSelection(toolAtPress_) && isArea(selection_);
}

void CDyeworksView::SetSelection(const std::optional<Rect>& texels, bool redraw) {
    const Rect before = std::exchange(selection_, texels.value_or(Rect{}).normalised());
    const bool existed = isArea(before);
    const bool shown = selection_ != Rect{};
    if (!shown)
        window_.stopTicking();
    if (redraw) {
        dragRectangle_ = selection_;
        redrawRequest_ = {(existed ? kRedrawImage : 0) | (shown ? kRedrawDrag : 0),
                          unionOf(areaOf(geometry(), before), areaOf(geometry(), selection_))};
        window_.invalidate(redrawRequest_.clientArea);
        window_.repaintNow();
        // Had all of it been out of sight, a later paint would be limited.
        redrawRequest_ = {};
    }
    if (shown)
        window_.startTicking(kAntsInterval);
}

void CDyeworksView::SelectingEnded() {
    if (!SelectionExists())
        window_.invalidate(areaOf(geometry(), selection_));
}

void CDyeworksView::Tick() {
    if (selection_ == Rect{})
        return;
    antsPhase_ = !antsPhase_;
    const Rect frame = grown(geometry().clientFrame(selection_), kAntsWidth);
    const auto held = [](std::int32_t coordinate) { return std::clamp(coordinate, 0, kFarthest); };
    const Rect border{held(frame.left), held(frame.top), held(frame.right), held(frame.bottom)};
    window_.invalidate({border.left, border.top, border.right, border.top + kAntsWidth});
    window_.invalidate({border.left, border.bottom - kAntsWidth, border.right, border.bottom});
    window_.invalidate({border.left, border.top, border.left + kAntsWidth, border.bottom});
    window_.invalidate({border.right - kAntsWidth, border.top, border.right, border.bottom});
    window_.repaintNow();
}

void CDyeworksView::ShowDragFrame(const Rect& texels, std::uint32_t redrawRequest) {
    if (trackerStyle_ != kSelectionStyle)
        HideDragFrame();
    trackerStyle_ = SelectionTracker::kDottedLine;
    dragRectangle_ = texels.normalised();
    requestRedraw(redrawRequest, geometry().clientArea(dragRectangle_));
}

void CDyeworksView::HideDragFrame() {
    // The canvas need not have changed wherever the frame was drawn.
    trackerStyle_ = kSelectionStyle;
    requestRedraw(kRedrawImage, geometry().clientArea(dragRectangle_));
}

/// A request for an area out of sight would wait for some later paint, when it is out of date.
void CDyeworksView::requestRedraw(std::uint32_t request, const Rect& clientArea) {
    const Size client = window_.clientSize();
    const bool inSight = !isEmpty(intersection(clientArea, {0, 0, client.width, client.height}));
    redrawRequest_ = inSight ? RedrawRequest{request, clientArea} : RedrawRequest{};
    window_.invalidate(clientArea);
}

} // namespace dyeworks
