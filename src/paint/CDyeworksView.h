#pragma once

#include "framework/CommandTarget.h"
#include "framework/DocumentView.h"
#include "paint/CurrentTool.h"
#include "paint/KeyEvent.h"
#include "paint/PointerEvent.h"
#include "paint/Rect.h"
#include "paint/Surface.h"
#include "paint/ViewGeometry.h"

#include <cstdint>
#include <memory>

namespace dyeworks {

class CDyeworksDoc;
class DrawTool;
class ViewWindow;

/// A view of an image: what it shows and what the pointer, the keys and the commands do in it. Works through
/// the window that shows it and needs no widget.
class CDyeworksView : public CommandTarget, public DocumentView {
public:
    /// Joins the document's views until it is destroyed. Both arguments must outlive the view.
    CDyeworksView(CDyeworksDoc& document, ViewWindow& window);
    ~CDyeworksView() override;

    [[nodiscard]] CDyeworksDoc& document() const noexcept { return document_; }
    [[nodiscard]] ViewWindow& window() const noexcept { return window_; }

    // What the window tells the view.
    /// Once, when the document has its contents and the window can be asked for its client size.
    void InitialUpdate();
    /// The view became the active one.
    void Activated();
    /// The client size changed.
    void Resized();
    /// Draws a part of the view (right and bottom exclusive) onto the surface, whose origin is a logical
    /// point: client coordinates plus the scroll position. `buttonFace` (0xffRRGGBB) shows outside the image.
    void Paint(Surface& surface, const Rect& logicalArea, std::uint32_t buttonFace) const;
    /// No palette was attached: there is no image to see, and the window writes so over the button face.
    [[nodiscard]] bool showsNoPalette() const;

    /// The second press of a double-click comes like any other.
    void PointerPressed(const PointerEvent& event);
    void PointerMoved(const PointerEvent& event);
    void PointerReleased(const PointerEvent& event);
    /// The capture was taken away other than by `releasePointer`.
    void PointerCaptureLost();
    void KeyPressed(const KeyEvent& event);
    void KeyReleased(const KeyEvent& event);

    void update(DocumentView* sender, int hint) override;

    /// Asks for a repaint of the canvas's changed rectangle. False when it is empty.
    bool InvalidateChanged();
    /// Ends a drag and takes back what it has done so far.
    void CancelDrag();

    [[nodiscard]] std::int32_t zoom() const noexcept { return zoom_; }
    [[nodiscard]] bool gridShown() const noexcept { return gridShown_; }
    /// Size of the zoomed image in pixels.
    [[nodiscard]] Size contentSize() const { return geometry().contentSize(); }
    /// The value that the tools write, within the image's depth.
    [[nodiscard]] std::uint32_t drawingValue() const noexcept { return drawingValue_; }
    [[nodiscard]] bool dragging() const noexcept { return tool_ != nullptr || scrollDragging_; }

    /// False when the zoom is at its end already. Without `redraw` only the content size follows.
    bool ZoomStep(bool out, bool redraw);
    /// Zooms so that the texel under the client point stays there as far as the view can scroll.
    void ZoomAt(Point client, bool out);
    /// Held to 1 to 16.
    void SetZoom(std::int32_t zoom);
    void ToggleGrid();

private:
    [[nodiscard]] ViewGeometry geometry() const;
    void applyZoom(bool redraw);
    void scrollTo(Point position);
    void pickColour(Point client);
    void takeDrawingValue();
    [[nodiscard]] std::uint32_t depthMask() const;
    void scrollDrag(Point client);
    [[nodiscard]] std::unique_ptr<DrawTool> endDrag();
    void showPosition(Point texel);
    void setCursorFor(bool shift);

    void addCommands();
    template <Tool kTool>
    void addToolCommand(CommandId id);
    template <Tool kTool>
    void OnTool();
    template <Tool kTool>
    void OnUpdateTool(CommandUi& ui);
    void OnZoomIn();
    void OnUpdateZoomIn(CommandUi& ui);
    void OnZoomOut();
    void OnUpdateZoomOut(CommandUi& ui);
    void OnZoom(CommandId id);
    void OnUpdateZoom(CommandUi& ui);
    void OnUpdateGrid(CommandUi& ui);
    void OnUndo();
    void OnUpdateUndo(CommandUi& ui);
    void OnRedo();
    void OnUpdateRedo(CommandUi& ui);

    CDyeworksDoc& document_;
    ViewWindow& window_;
    std::int32_t zoom_ = 1;
    bool gridShown_ = true;
    bool initialised_ = false;
    std::uint32_t drawingValue_ = 0;
    std::unique_ptr<DrawTool>
        tool_; ///< The tool of the drag that is going on, as it was chosen at the press.
    bool scrollDragging_ = false;
    Point scrollDragPoint_; ///< Client point up to which the scroll drag has been followed.
    Point scrollDragStart_; ///< Scroll position at its press.
};

} // namespace dyeworks
