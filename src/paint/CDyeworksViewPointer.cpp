#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/MakeDrawTool.h"
#include "paint/ViewWindow.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace dyeworks {

void CDyeworksView::PointerPressed(const PointerEvent& event) {
    // What the keys have drawn so far stays.
    letToolGo();
    hideCursor();
    pressed(event);
}

void CDyeworksView::PointerMoved(const PointerEvent& event) {
    if (pointerTakesOver(event.position))
        moved(event);
}

void CDyeworksView::PointerReleased(const PointerEvent& event) {
    if (!cursor_.holdsTool())
        released(event);
}

/// Windows that come and go report moves of a pointer that rests. And to a tool that the keys hold down it
/// does nothing.
bool CDyeworksView::pointerTakesOver(Point client) {
    if (!cursor_.isShown())
        return true;
    if (cursor_.holdsTool() || client == pointerBeforeKeys_)
        return false;
    hideCursor();
    return true;
}

void CDyeworksView::pressed(const PointerEvent& event) {
    if (dragging())
        return;
    if (event.button == PointerButton::Right && spuit_ && currentTool() != Tool::Select &&
        currentTool() != Tool::ZoomLens)
        pickColour(event.position);
    if (event.button != PointerButton::Left)
        return;
    released_.reset();
    if (event.shift) {
        scrollDragging_ = true;
        scrollDragPoint_ = event.position;
        scrollDragStart_ = window_.scrollPosition();
        const Point corner = geometry().origin();
        selection_.setAnchor({scrollDragStart_.x - corner.x, scrollDragStart_.y - corner.y});
        window_.capturePointer();
        showBrush(event.position);
        updateCursor(event.position, event.shift, event.control);
        return;
    }
    const Tool pressed = currentTool();
    selection_.setToolAtPress(pressed);
    if (event.control && pressed != Tool::Select && pressed != Tool::ZoomLens) {
        pickColour(event.position);
        return;
    }
    takeDrawingValue();
    // A selection lies in the image itself, and is grabbed there, however far it reaches.
    const bool grabs = pressed == Tool::Select && selection_.hit(event.position) != TrackerHit::None;
    dragCopy_ = grabs ? Point{} : geometry().copyAt(geometry().texelAt(event.position));
    auto tool = makeDrawTool(pressed, *this);
    if (tool->press(texelOfDrag(event.position), event)) {
        tool_ = std::move(tool);
        selection_.setDragged(selecting());
        window_.capturePointer();
        // Not before the drag has begun: a preview may end it.
        document_.ShowEdit();
        // The button may have gone up in the event loop of a preview, before there was a drag to end.
        if (const std::optional<PointerEvent> released = released_)
            PointerReleased(*released);
    }
}

void CDyeworksView::moved(const PointerEvent& event) {
    // While it is captured, the pointer runs ahead of the handle that it drags.
    if (!dragging())
        updateCursor(event.position, event.shift, event.control);
    if (scrollDragging_) {
        scrollDrag(event.position);
        return;
    }
    pointed_ = texelInImage(event.position);
    showPosition();
    pointerInside_ = true;
    showBrush(event.position);
    if (const std::shared_ptr<DrawTool> tool = tool_) {
        tool->move(texelOfDrag(event.position), event);
        document_.ShowEdit();
    }
}

void CDyeworksView::released(const PointerEvent& event) {
    if (event.button != PointerButton::Left)
        return;
    released_ = event;
    if (!dragging())
        return;
    const std::shared_ptr<DrawTool> tool = endDrag();
    if (tool != nullptr) {
        tool->release(texelOfDrag(event.position), event);
        if (selection_.toolAtPress() == Tool::ZoomLens)
            selection_.setToolAtPress(currentTool());
    }
    updateCursor(event.position, event.shift, event.control);
}

void CDyeworksView::PointerCaptureLost() {
    CancelDrag();
}

void CDyeworksView::CancelDrag() {
    if (!dragging())
        return;
    if (scrollDragging_)
        scrollTo(scrollDragStart_);
    const std::shared_ptr<DrawTool> tool = endDrag();
    if (tool != nullptr)
        tool->cancel();
}

/// The drag is over before the capture goes, so that its loss is not taken for an interruption.
std::shared_ptr<DrawTool> CDyeworksView::endDrag() {
    std::shared_ptr<DrawTool> tool = std::move(tool_);
    selection_.setDragged(false);
    scrollDragging_ = false;
    if (cursor_.holdsTool()) {
        invalidateCursor();
        cursor_.release();
    }
    window_.releasePointer();
    return tool;
}

void CDyeworksView::scrollDrag(Point client) {
    const Point position = window_.scrollPosition();
    scrollTo({position.x + scrollDragPoint_.x - client.x, position.y + scrollDragPoint_.y - client.y});
    scrollDragPoint_ = client;
}

/// The image's texel under the client point, also where that lies in a copy.
Point CDyeworksView::texelInImage(Point client) const {
    const ViewGeometry seen = geometry();
    const Point texel = seen.texelAt(client);
    const Point copy = seen.copyAt(texel);
    return {texel.x - copy.x, texel.y - copy.y};
}

/// The texel under the client point as seen from the copy that the drag began in: a line that leaves it goes
/// on.
Point CDyeworksView::texelOfDrag(Point client) const {
    const Point texel = geometry().texelAt(client);
    return {texel.x - dragCopy_.x, texel.y - dragCopy_.y};
}

void CDyeworksView::pickColour(Point client) {
    pickTexel(texelInImage(client));
}

void CDyeworksView::pickTexel(Point texel) {
    const TextureCanvas& canvas = document_.canvas();
    if (texel.x < 0 || texel.y < 0 || texel.x >= canvas.width() || texel.y >= canvas.height())
        return;
    drawingValue_ = canvas.GetPixel(texel.x, texel.y);
    ImageHost& host = document_.host();
    const std::int64_t cell = std::int64_t{host.paletteBarFirstEntry()} + drawingValue_;
    // No palette reaches as far as the values of deep images do.
    host.selectPaletteBarCell(
        static_cast<std::int32_t>(std::min<std::int64_t>(cell, std::numeric_limits<std::int32_t>::max())));
}

/// Without a selected cell the last value stays.
void CDyeworksView::takeDrawingValue() {
    const ImageHost& host = document_.host();
    const std::int32_t cell = host.paletteBarCell();
    if (cell >= 0)
        drawingValue_ = static_cast<std::uint32_t>(cell - host.paletteBarFirstEntry()) & depthMask();
}

std::uint32_t CDyeworksView::depthMask() const {
    return static_cast<std::uint32_t>((std::uint64_t{1} << document_.canvas().bitsPerPixel()) - 1);
}

/// The pointer may be elsewhere, in a menu for one; the texel that it was last seen at then stays.
void CDyeworksView::followPointer(Point client) {
    if (cursor_.isShown())
        pointed_ = *cursor_.texel();
    else if (isInSight(client))
        pointed_ = texelInImage(client);
    showPosition();
    showBrush(client);
}

void CDyeworksView::showPosition() const {
    document_.host().setStatusText("(" + std::to_string(pointed_.x) + ", " + std::to_string(pointed_.y) +
                                       ") " + std::to_string(zoom_ * 100) + "%",
                                   kPositionPane);
}

bool CDyeworksView::isInSight(Point client) const {
    const Size size = window_.clientSize();
    return client.x >= 0 && client.y >= 0 && client.x < size.width && client.y < size.height;
}

} // namespace dyeworks
