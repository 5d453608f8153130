#pragma once

#include "framework/WindowPlacement.h"
#include "paint/Rect.h"

#include <optional>

namespace dyeworks {

class DisplayPalette;

enum class CursorShape {
    Arrow,
    OpenHand,
    ZoomIn,  ///< A magnifier with a plus.
    ZoomOut, ///< A magnifier with a minus.
    // What can be dragged: along a diagonal from the top left (top right), up and down, sideways, anywhere.
    SizeBackwardDiagonal,
    SizeForwardDiagonal,
    SizeVertical,
    SizeHorizontal,
    SizeAll
};

/// What an image view asks of the window that shows it. The window carries out and decides nothing.
class ViewWindow {
public:
    virtual ~ViewWindow() = default;

    /// The area that shows the image, scroll bars excluded.
    [[nodiscard]] virtual Size clientSize() const = 0;

    /// Logical point that is shown at the client area's top-left corner; never negative.
    [[nodiscard]] virtual Point scrollPosition() const = 0;
    /// `position` is within the range that the content and client sizes allow.
    virtual void scrollTo(Point position) = 0;
    /// Size of everything there is to scroll over, in pixels.
    virtual void setContentSize(Size size) = 0;

    /// Asks for a repaint of client pixels (right and bottom exclusive, possibly outside the client area).
    virtual void invalidate(const Rect& clientArea) = 0;
    virtual void invalidateAll() = 0;
    /// Carries out the repaints that were asked for, before it returns.
    virtual void repaintNow() = 0;

    /// Between the two, all pointer events come to this view.
    virtual void capturePointer() = 0;
    virtual void releasePointer() = 0;
    virtual void setCursor(CursorShape shape) = 0;

    /// Resizes the frame, without moving it, so that the whole content fits in, but not beyond the right and
    /// bottom edges of the main window's client area. A maximised frame stays as it is.
    virtual void fitFrame() = 0;

    /// Where the frame stands; nothing while it cannot be told.
    [[nodiscard]] virtual std::optional<WindowPlacement> placement() const = 0;
    virtual void setPlacement(const WindowPlacement& placement) = 0;

    /// Realises the palette (null: none) while the frame is there. It belongs to the document.
    virtual void setDisplayPalette(const DisplayPalette* palette) = 0;

    /// Until `stopTicking`, the window calls the view's `Tick` in every such interval, unless the desktop
    /// asks for less motion.
    virtual void startTicking(int milliseconds) = 0;
    virtual void stopTicking() = 0;

    /// What is told of the texel cursor has changed: it was moved, or what it stands on looks otherwise.
    virtual void texelCursorChanged() {}

    /// Where the pointer is, in client pixels.
    [[nodiscard]] virtual Point pointerPosition() const = 0;
    /// Whether a Shift key is down now, other than as part of a shortcut.
    [[nodiscard]] virtual bool shiftHeld() const = 0;
};

} // namespace dyeworks
