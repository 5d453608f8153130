#include "core/EntryText.h"
#include "core/TextureLookupTable.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/ViewWindow.h"
#include "platform/StringId.h"
#include "platform/Text.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

/// Whether a tool that is pressed and let go at once has done all it can do.
bool needsNoDrag(Tool tool) {
    return tool == Tool::Pixel || tool == Tool::ZoomLens;
}

} // namespace

/// The keys that paint. Those that move a selection come to it before.
bool CDyeworksView::cursorKey(const KeyEvent& event) {
    // The pointer holds a tool down, or scrolls.
    if (showsNoPalette() || (dragging() && !cursor_.holdsTool()))
        return false;
    if (event.key == Key::Space) {
        if (event.repeated)
            return true;
        if (cursor_.holdsTool())
            letToolGo();
        else if (cursor_.isShown())
            holdTool(event);
        else
            moveCursor(cursorStart());
        return true;
    }
    const Point from = cursor_.isShown() ? *cursor_.texel() : cursorStart();
    const std::optional<Point> target = TexelCursor::walked(from, event, imageSize());
    if (target)
        moveCursor(*target);
    return target.has_value();
}

/// Where the pointer is in the image; or else where the cursor was, or the middle of what is in sight.
Point CDyeworksView::cursorStart() const {
    const Point pointer = window_.pointerPosition();
    const Point texel = texelInImage(pointer);
    const Size image = imageSize();
    if (pointerInside_ && isInSight(pointer) && texel.x < image.width && texel.y < image.height)
        return texel;
    if (cursor_.texel())
        return *cursor_.texel();
    const Size client = window_.clientSize();
    const Size content = contentSize();
    return texelInImage(
        {std::min(client.width, content.width) / 2, std::min(client.height, content.height) / 2});
}

void CDyeworksView::moveCursor(Point texel) {
    if (!cursor_.isShown())
        pointerBeforeKeys_ = window_.pointerPosition();
    keysHere_ = true;
    invalidateCursor();
    cursor_.showAt(texel, imageSize());
    invalidateCursor();
    bringCursorIntoSight();
    followPointer(window_.pointerPosition());
    if (const std::shared_ptr<DrawTool> tool = tool_; tool != nullptr && cursor_.holdsTool()) {
        const PointerEvent event = cursorEvent(PointerButton::None);
        tool->move(texelOfDrag(event.position), event);
        document_.ShowEdit();
    }
    window_.texelCursorChanged();
}

void CDyeworksView::hideCursor() {
    if (!cursor_.isShown())
        return;
    invalidateCursor();
    cursor_.hide();
    window_.texelCursorChanged();
}

/// As a press of the pointer does there.
void CDyeworksView::holdTool(const KeyEvent& event) {
    cursor_.press(event);
    const bool picks = event.control && currentTool() != Tool::Select && currentTool() != Tool::ZoomLens;
    pressed(cursorEvent(PointerButton::Left));
    if (!dragging())
        cursor_.release();
    else if (needsNoDrag(selection_.toolAtPress()))
        letToolGo();
    if (picks)
        tellPicked();
    invalidateCursor();
}

/// As a release of the pointer does there.
void CDyeworksView::letToolGo() {
    if (!cursor_.holdsTool())
        return;
    invalidateCursor();
    released(cursorEvent(PointerButton::Left));
}

/// What the pointer reports at the cursor. Where a handle of the selection reaches into the texel, it points
/// there: it may lie beside the middle of every texel.
PointerEvent CDyeworksView::cursorEvent(PointerButton button) const {
    const Point texel = *cursor_.texel();
    const Rect area = geometry().clientArea({texel.x, texel.y, texel.x, texel.y});
    Point best{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    if (currentTool() == Tool::Select && !dragging()) {
        TrackerHit hit = selection_.hit(best);
        for (Point client{area.left, area.top}; client.y < area.bottom; ++client.y) {
            for (client.x = area.left; client.x < area.right; ++client.x) {
                const TrackerHit here = selection_.hit(client);
                if (here != TrackerHit::None && (hit == TrackerHit::None || here < hit)) {
                    best = client;
                    hit = here;
                }
            }
        }
    }
    return cursor_.eventAt(best, button);
}

void CDyeworksView::ContextMenuKeyPressed() {
    if (!cursor_.isShown() || dragging() || !spuit_)
        return;
    pressed(cursorEvent(PointerButton::Right));
    tellPicked();
}

void CDyeworksView::OnPickEntry() {
    if (cursor_.isShown())
        pickTexel(*cursor_.texel());
    else if (const Point pointer = window_.pointerPosition(); isInSight(pointer))
        pickColour(pointer);
    else
        return;
    tellPicked();
}

/// Tells of the entry that is chosen in the palette bar.
void CDyeworksView::tellPicked() {
    ImageHost& host = document_.host();
    const TextureLookupTable* const palette = document_.GetAttachedPalette();
    if (palette != nullptr)
        host.setStatusText(toldEntry(palette->table, host.paletteBarCell()), kMessagePane);
}

std::string CDyeworksView::toldTexel() const {
    if (!cursor_.isShown())
        return {};
    const Point texel = *cursor_.texel();
    const TextureCanvas& canvas = document_.canvas();
    const std::string x = std::to_string(texel.x);
    const std::string y = std::to_string(texel.y);
    const std::uint32_t value = canvas.GetPixel(texel.x, texel.y);
    const TextureLookupTable* const palette = document_.GetAttachedPalette();
    if (canvas.holdsColours() || palette == nullptr)
        return text(StringId::TexelTold, {x, y, std::to_string(value)});
    const std::int32_t entry = document_.host().paletteBarFirstEntry() + static_cast<std::int32_t>(value);
    return text(StringId::TexelToldEntry, {x, y, std::to_string(entry), toldColour(palette->table, entry)});
}

Rect CDyeworksView::cursorArea(bool holdsTool) const {
    const Point texel = *cursor_.texel();
    const Point origin = geometry().origin();
    const Rect area = geometry().logicalArea({texel.x, texel.y, texel.x, texel.y});
    return texelCursorArea(
        {area.left + origin.x, area.top + origin.y, area.right + origin.x, area.bottom + origin.y},
        contentSize(), holdsTool);
}

void CDyeworksView::invalidateCursor() {
    if (!cursor_.isShown())
        return;
    const Rect area = cursorArea(true);
    const Point scroll = window_.scrollPosition();
    window_.invalidate(
        {area.left - scroll.x, area.top - scroll.y, area.right - scroll.x, area.bottom - scroll.y});
}

void CDyeworksView::PaintTexelCursor(const Surface& surface) const {
    if (cursor_.isShown() && keysHere_ && !showsNoPalette())
        drawTexelCursor(surface, cursorArea(cursor_.holdsTool()), cursor_.holdsTool());
}

/// With all that is drawn around it.
void CDyeworksView::bringCursorIntoSight() {
    if (!cursor_.isShown())
        return;
    const Rect area = cursorArea(true);
    const Size client = window_.clientSize();
    const auto nearest = [](std::int32_t scroll, std::int32_t first, std::int32_t end, std::int32_t room) {
        return std::min(std::max(scroll, end - room), first);
    };
    const Point scroll = window_.scrollPosition();
    scrollTo({nearest(scroll.x, area.left, area.right, client.width),
              nearest(scroll.y, area.top, area.bottom, client.height)});
}

/// The image has another size or another place in the window.
void CDyeworksView::followCursor() {
    if (!cursor_.isShown())
        return;
    cursor_.showAt(*cursor_.texel(), imageSize());
    bringCursorIntoSight();
}

void CDyeworksView::FocusChanged(bool gained) {
    if (std::exchange(keysHere_, gained) != gained)
        invalidateCursor();
}

} // namespace dyeworks
