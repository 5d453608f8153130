#include "paint/CDyeworksView.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/DrawTool.h"
#include "paint/ViewWindow.h"

#include <string>
#include <utility>

namespace dyeworks {

namespace {

std::string pair(std::int32_t first, std::int32_t second) {
    return "(" + std::to_string(first) + ", " + std::to_string(second) + ") ";
}

bool isIn(Point texel, const Rect& texels) {
    return texel.x >= texels.left && texel.x <= texels.right && texel.y >= texels.top &&
           texel.y <= texels.bottom;
}

} // namespace

CDyeworksView::CDyeworksView(CDyeworksDoc& document, ViewWindow& window)
    : document_(document)
    , window_(window)
    , selection_(document, *this, window, [this] { return geometry(); }) {
    addCommands();
    document_.addView(*this);
    addDrawingOptionsListener(*this);
}

CDyeworksView::~CDyeworksView() {
    CancelDrag();
    removeDrawingOptionsListener(*this);
    document_.removeView(*this);
}

ViewGeometry CDyeworksView::geometry() const {
    return {zoom_, imageSize(), window_.clientSize(), window_.scrollPosition(), repeated_};
}

Size CDyeworksView::imageSize() const {
    return {document_.canvas().width(), document_.canvas().height()};
}

void CDyeworksView::InitialUpdate() {
    initialised_ = true;
    shownSize_ = imageSize();
    window_.setContentSize(contentSize());
    window_.fitFrame();
    drawingValue_ = depthMask();
    if (drawingValue_ == 15 || drawingValue_ == 255)
        document_.host().selectPaletteBarCell(static_cast<std::int32_t>(drawingValue_));
    window_.invalidateAll();
    restoreSettings();
}

void CDyeworksView::Activated() {
    // Every window has a zoom of its own, those of the same image too.
    followPointer(window_.pointerPosition());
    ImageHost& host = document_.host();
    if (host.lastActivatedImage() == &document_)
        return;
    host.setLastActivatedImage(&document_);
    if (PaletteSet* const set = host.paletteSet(); set != nullptr && !document_.attachedName().empty())
        set->setCurrent(document_.attachedName());
    host.refreshPaletteBar();
    window_.setDisplayPalette(document_.GetDisplayPalette());
    showSize();
    document_.TakeOverPreviews();
}

void CDyeworksView::showSize() const {
    const TextureCanvas& canvas = document_.canvas();
    document_.host().setStatusText(
        pair(canvas.width(), canvas.height()) + std::to_string(canvas.bitsPerPixel()) + "bit", kSizePane);
}

void CDyeworksView::Resized() {
    scrollTo(restoredScroll_.value_or(window_.scrollPosition()));
}

void CDyeworksView::Scrolled() {
    if (!scrollDragging_)
        followPointer(window_.pointerPosition());
}

/// The image lives on in its other windows, and what floats in this one is a part of the work.
bool CDyeworksView::MayClose() {
    return document_.views().size() == 1 || selection_.commitFloatingPiece(false);
}

void CDyeworksView::Closing() {
    // Where nobody was asked it has to go.
    static_cast<void>(MayClose());
    saveSettings();
}

bool CDyeworksView::showsNoPalette() const {
    return !document_.IsAttached() && !document_.canvas().holdsColours();
}

void CDyeworksView::update(DocumentView* sender, int hint) {
    if (sender == this || !initialised_)
        return;
    if (hint == 0) {
        InvalidateChanged();
        return;
    }
    window_.invalidateAll();
    if (cursor_.isShown())
        window_.texelCursorChanged();
}

bool CDyeworksView::InvalidateChanged() {
    const auto changed = document_.canvas().changedRect();
    if (!changed)
        return false;
    if (cursor_.isShown() && isIn(*cursor_.texel(), *changed))
        window_.texelCursorChanged();
    const Rect area = geometry().clientArea(*changed);
    const Point step = geometry().origin();
    const std::int32_t copies = repeated_ ? 1 : 0;
    for (std::int32_t row = -copies; row <= copies; ++row) {
        for (std::int32_t column = -copies; column <= copies; ++column)
            window_.invalidate({area.left + column * step.x, area.top + row * step.y,
                                area.right + column * step.x, area.bottom + row * step.y});
    }
    return true;
}

void CDyeworksView::SizeChanged(Point moved) {
    const auto middle = [this] {
        const Size client = window_.clientSize();
        return Point{client.width / 2, client.height / 2};
    };
    // The window still stands where it stood over the image as it was.
    const ViewGeometry before(zoom_, shownSize_, window_.clientSize(), window_.scrollPosition(), repeated_);
    const Point texel = before.texelAt(middle());
    const Size size = imageSize();
    // In a copy it stays in that copy, which now begins elsewhere.
    const Point copy = before.copyAt(texel);
    const Point grown{copy.x / shownSize_.width * (size.width - shownSize_.width),
                      copy.y / shownSize_.height * (size.height - shownSize_.height)};
    shownSize_ = size;
    SetZoom(zoom_);
    scrollTo(geometry().scrollToKeep({texel.x + moved.x + grown.x, texel.y + moved.y + grown.y}, middle()));
    drawingValue_ &= depthMask();
    if (document_.host().isActiveImage(document_)) {
        followPointer(window_.pointerPosition());
        showSize();
    }
}

void CDyeworksView::RepaintNow() {
    window_.repaintNow();
}

bool CDyeworksView::ZoomStep(bool out, bool redraw) {
    const std::int32_t zoom = out ? ViewGeometry::zoomedOut(zoom_) : ViewGeometry::zoomedIn(zoom_);
    if (zoom == zoom_)
        return false;
    zoom_ = zoom;
    applyZoom(redraw);
    followPointer(window_.pointerPosition());
    return true;
}

void CDyeworksView::ZoomAt(Point client, bool out) {
    const Point texel = geometry().texelAt(client);
    if (!ZoomStep(out, false))
        return;
    scrollTo(geometry().scrollToKeep(texel, client));
    applyZoom(true);
    followPointer(client);
}

void CDyeworksView::SetZoom(std::int32_t zoom) {
    const std::int32_t before = std::exchange(zoom_, ViewGeometry::holdZoom(zoom));
    applyZoom(true);
    if (zoom_ != before)
        followPointer(window_.pointerPosition());
}

void CDyeworksView::ToggleGrid() {
    gridShown_ = !gridShown_;
    window_.invalidateAll();
}

void CDyeworksView::applyZoom(bool redraw) {
    window_.setContentSize(contentSize());
    scrollTo(window_.scrollPosition());
    followCursor();
    if (!redraw)
        return;
    if (!window_.shiftHeld())
        window_.fitFrame();
    window_.invalidateAll();
    window_.repaintNow();
}

void CDyeworksView::scrollTo(Point position) {
    const Point allowed = geometry().clampedScroll(position);
    if (allowed != window_.scrollPosition())
        window_.scrollTo(allowed);
}

} // namespace dyeworks
