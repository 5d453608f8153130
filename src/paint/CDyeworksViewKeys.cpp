#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/ViewWindow.h"

namespace dyeworks {

namespace {

/// How far an arrow key reaches, in texels; nowhere for any other key.
Point stepOf(Key key) {
    switch (key) {
    case Key::Left:
        return {-1, 0};
    case Key::Up:
        return {0, -1};
    case Key::Right:
        return {1, 0};
    case Key::Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

bool CDyeworksView::KeyPressed(const KeyEvent& event) {
    if (event.key == Key::Escape && dragging()) {
        CancelDrag();
        return true;
    }
    if (cursor_.holdsTool() && event.key == Key::Enter) {
        letToolGo();
        return true;
    }
    const bool ends = event.key == Key::Escape || event.key == Key::Enter;
    if (ends && (selection_.exists() || selection_.hasFloatingPiece())) {
        // What is placed is not dragged any further.
        if (selecting())
            endDrag();
        if (event.key == Key::Escape)
            selection_.dropFloatingPiece();
        selection_.commitFloatingPiece(true);
        return true;
    }
    if (event.repeatCount != 1)
        return false;
    if (event.key == Key::Shift || event.key == Key::Control) {
        updateCursor(window_.pointerPosition(), event.shift, event.control);
        return true;
    }
    return zoomByKey(event.key) || moveSelection(event) || cursorKey(event);
}

void CDyeworksView::KeyReleased(const KeyEvent& event) {
    if (event.repeatCount == 1 && (event.key == Key::Shift || event.key == Key::Control))
        updateCursor(window_.pointerPosition(), event.shift, event.control);
    // Pressed and let go on the spot, the tool stays down until the next press: not every hand can hold one
    // key and press others.
    if (event.key == Key::Space && !event.repeated && cursor_.hasDragged())
        letToolGo();
}

bool CDyeworksView::zoomByKey(Key key) {
    const bool in = key == Key::I || key == Key::Numpad9;
    const bool out = key == Key::O || key == Key::NumpadDivide;
    if (in || out)
        ZoomAt(cursor_.isShown() ? cursorEvent(PointerButton::None).position : window_.pointerPosition(),
               out);
    return in || out;
}

/// With Shift its right or its bottom edge moves alone. With Alt, and while they hold a tool down, the arrows
/// are the cursor's.
bool CDyeworksView::moveSelection(const KeyEvent& event) {
    const Point step = stepOf(event.key);
    if (step == Point{} || !selection_.exists() || event.alt || cursor_.holdsTool())
        return false;
    selection_.moveBy(step, event.shift);
    return true;
}

void CDyeworksView::updateCursor(Point client, bool shift, bool control) {
    if (!isInSight(client))
        return;
    CursorShape shape = CursorShape::Arrow;
    if (currentTool() == Tool::ZoomLens)
        shape = control ? CursorShape::ZoomOut : CursorShape::ZoomIn;
    else if (shift && !scrollDragging_)
        shape = CursorShape::OpenHand;
    else if (currentTool() == Tool::Select && selection_.exists())
        shape = selectionCursor(client);
    window_.setCursor(shape);
}

CursorShape CDyeworksView::selectionCursor(Point client) const {
    switch (selection_.hit(client)) {
    case TrackerHit::TopLeft:
    case TrackerHit::BottomRight:
        return CursorShape::SizeBackwardDiagonal;
    case TrackerHit::TopRight:
    case TrackerHit::BottomLeft:
        return CursorShape::SizeForwardDiagonal;
    case TrackerHit::Top:
    case TrackerHit::Bottom:
        return CursorShape::SizeVertical;
    case TrackerHit::Left:
    case TrackerHit::Right:
        return CursorShape::SizeHorizontal;
    case TrackerHit::Inside:
        return CursorShape::SizeAll;
    case TrackerHit::None:
        break;
    }
    return CursorShape::Arrow;
}

CDyeworksView::ContextMenu CDyeworksView::contextMenu() const {
    if (dragging())
        return ContextMenu::None;
    switch (currentTool()) {
    case Tool::Select:
        return ContextMenu::Selection;
    case Tool::ZoomLens:
        return ContextMenu::Zoom;
    case Tool::Replacer:
        return ContextMenu::ToolsToReplace;
    default:
        return spuit_ ? ContextMenu::None : ContextMenu::Tools;
    }
}

} // namespace dyeworks
