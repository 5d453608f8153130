#pragma once

#include "framework/CommandTarget.h"
#include "paint/Brush.h"
#include "paint/CurrentTool.h"
#include "paint/DrawingOptions.h"
#include "paint/ImageSelection.h"
#include "paint/ImageViewer.h"
#include "paint/KeyEvent.h"
#include "paint/PointerEvent.h"
#include "paint/Rect.h"
#include "paint/Surface.h"
#include "paint/TexelCursor.h"
#include "paint/ToolHost.h"
#include "paint/ViewGeometry.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace dyeworks {

class DrawTool;
class TextureCanvas;
class ViewWindow;
struct ViewLook;
enum class CursorShape;

/// A view of an image: what it shows and what the pointer, the keys and the commands do in it. Works through
/// the window that shows it and needs no widget.
class CDyeworksView : public CommandTarget,
                      public ImageViewer,
                      public ToolHost,
                      private DrawingOptionsListener {
public:
    /// Joins the document's views until it is destroyed. Both arguments must outlive the view.
    CDyeworksView(CDyeworksDoc& document, ViewWindow& window);
    ~CDyeworksView() override;
    CDyeworksView(const CDyeworksView&) = delete;
    CDyeworksView& operator=(const CDyeworksView&) = delete;

    [[nodiscard]] CDyeworksDoc& document() const noexcept override { return document_; }

    // What the window tells the view.
    /// Once, when the document has its contents and the window can be asked for its client size.
    void InitialUpdate();
    /// The view became the active one.
    void Activated();
    /// The client size changed.
    void Resized();
    /// The image moved beneath the pointer, which is in the client area.
    void Scrolled();
    /// Whether the window may close while the image lives on in others: not when the user then keeps a piece
    /// that floats in it from being placed.
    [[nodiscard]] bool MayClose();
    /// The window is about to close; it still stands where it stood.
    void Closing();
    /// The interval of `ViewWindow::startTicking` has passed.
    void Tick();
    /// Before a paint of the window, whatever its area: the redraw request, which this paint serves.
    [[nodiscard]] ImageSelection::RedrawRequest BeginPaint();
    /// Draws a part of the view (right and bottom exclusive) onto the surface; both are in content
    /// coordinates: client coordinates plus the scroll position. `buttonFace` (0xffRRGGBB) shows outside the
    /// image. A redraw request without kRedrawImage draws onto what the surface holds.
    void Paint(Surface& surface, const Rect& contentArea, std::uint32_t buttonFace,
               std::uint32_t redrawRequest = 0) const;
    /// Draws a part of the image as it is printed: with its zoom, grid and selection, and without what only
    /// helps to draw, as its copies and the lines of the mirrors. `area` (right and bottom exclusive) counts
    /// from the image's corner, as the surface's origin does, and reaches to `printedSize`.
    void PaintPrinted(Surface& surface, const Rect& area, std::uint32_t paperColour) const;
    [[nodiscard]] Size printedSize() const;
    /// Draws what of the brush's outline under the pointer lies on the surface, whose origin is in content
    /// coordinates, over what a paint has left there.
    void PaintBrush(const Surface& surface) const;
    /// Draws what of the texel cursor lies on the surface, likewise.
    void PaintTexelCursor(const Surface& surface) const;
    /// No palette is attached to give the pixels colours: there is no image to see, and the window writes so
    /// over the button face.
    [[nodiscard]] bool showsNoPalette() const;

    /// The second press of a double-click comes like any other.
    void PointerPressed(const PointerEvent& event);
    void PointerMoved(const PointerEvent& event);
    void PointerReleased(const PointerEvent& event);
    /// The pointer has come from something else, as from a menu that closed, and need not move.
    void PointerEntered(Point client);
    /// The pointer is over something else now.
    void PointerLeft();
    /// The capture was taken away other than by `releasePointer`.
    void PointerCaptureLost();
    /// True when the key was of use.
    bool KeyPressed(const KeyEvent& event);
    void KeyReleased(const KeyEvent& event);

    /// Keys come to the view from now on, or come to something else, and not to a menu for a while.
    void FocusChanged(bool gained);
    /// Whether the keys hold a tool down, to which the pointer then does nothing.
    [[nodiscard]] bool dragsByKeys() const noexcept { return cursor_.holdsTool(); }
    /// The key for a context menu does at the texel cursor what a right press does before its menu opens.
    void ContextMenuKeyPressed();
    /// The texel that the texel cursor stands on and what that shows, to be read out; "" without a cursor.
    [[nodiscard]] std::string toldTexel() const;

    /// What a context menu offers, which depends on the tool that is chosen.
    enum class ContextMenu {
        None,
        Selection,      ///< Clipboard and selection.
        Tools,          ///< All tools.
        ToolsToReplace, ///< All but the replacer.
        Zoom            ///< The zoom factors.
    };
    [[nodiscard]] ContextMenu contextMenu() const;

    void update(DocumentView* sender, int hint) override;

    void CancelDrag() override;

    [[nodiscard]] ImageSelection& selection() noexcept override { return selection_; }
    [[nodiscard]] const ImageSelection& selection() const noexcept { return selection_; }
    [[nodiscard]] std::uint32_t drawingValue() const noexcept override { return drawingValue_; }

    [[nodiscard]] std::int32_t zoom() const noexcept { return zoom_; }
    [[nodiscard]] bool gridShown() const noexcept { return gridShown_; }
    /// Whether the image is surrounded by its copies.
    [[nodiscard]] bool repeated() const noexcept { return repeated_; }
    /// Size of everything there is to see, in pixels: the zoomed image, with its copies when it is repeated.
    [[nodiscard]] Size contentSize() const { return geometry().contentSize(); }
    [[nodiscard]] bool dragging() const noexcept { return tool_ != nullptr || scrollDragging_; }

    /// False when the zoom is at its end already. Without `redraw` only the content size follows.
    bool ZoomStep(bool out, bool redraw);
    void ZoomAt(Point client, bool out) override;
    /// Held to 1 to 16.
    void SetZoom(std::int32_t zoom);
    void ToggleGrid();
    /// Lets the texels of a value stand out from now on, without touching them; nothing: all look as always.
    void StandOut(std::optional<std::uint32_t> value);
    /// Shows another canvas in the place of the image's, from the same corner on, without touching that;
    /// null: the image again. The canvas must outlive that.
    void ShowInstead(const TextureCanvas* other);
    /// The image stays where it is as far as the window lets it.
    void ToggleRepeat();
    /// Selects texels of the image (inclusive), at least two by two where it has as many, with the Select
    /// tool, and brings them into sight. Nothing while a piece floats on.
    void SelectTexels(const Rect& texels);

private:
    // As the document and the tools see the view.
    bool InvalidateChanged() override;
    void SizeChanged(Point moved) override;
    [[nodiscard]] bool hasFloatingPiece() const override { return selection_.hasFloatingPiece(); }
    [[nodiscard]] std::optional<FloatingPiece> floatingPiece() const override {
        return selection_.floatingPiece();
    }
    void SetFloatingPiece(std::unique_ptr<TextureCanvas> piece, StringId name) override;
    void RecolourFloatingPiece() override { selection_.recolourFloatingPiece(); }
    bool CommitFloatingPiece(bool redraw) override { return selection_.commitFloatingPiece(redraw); }
    void DropSelection() override;
    void RepaintNow() override;
    [[nodiscard]] ImageViewer& viewer() noexcept override { return *this; }

    [[nodiscard]] ViewGeometry geometry() const;
    [[nodiscard]] ViewLook look(std::uint32_t outsideColour, std::uint32_t redrawRequest) const;
    [[nodiscard]] Size imageSize() const;
    void applyZoom(bool redraw);
    void scrollTo(Point position);
    [[nodiscard]] Point texelInImage(Point client) const;
    [[nodiscard]] Point texelOfDrag(Point client) const;
    void showBrush(Point client);
    void drawingOptionsChanged() override;
    void pickColour(Point client);
    void pickTexel(Point texel);
    void pressed(const PointerEvent& event);
    void moved(const PointerEvent& event);
    void released(const PointerEvent& event);
    bool pointerTakesOver(Point client);
    bool cursorKey(const KeyEvent& event);
    void moveCursor(Point texel);
    void hideCursor();
    void holdTool(const KeyEvent& event);
    void letToolGo();
    [[nodiscard]] Point cursorStart() const;
    [[nodiscard]] Rect cursorArea(bool holdsTool) const;
    [[nodiscard]] PointerEvent cursorEvent(PointerButton button) const;
    void invalidateCursor();
    void bringCursorIntoSight();
    void followCursor();
    void tellPicked();
    void takeDrawingValue();
    [[nodiscard]] std::uint32_t depthMask() const;
    void scrollDrag(Point client);
    std::shared_ptr<DrawTool> endDrag();
    void followPointer(Point client);
    void showPosition() const;
    [[nodiscard]] bool isInSight(Point client) const;
    bool select(const Rect& texels);
    void showSize() const;
    void updateCursor(Point client, bool shift, bool control);
    [[nodiscard]] CursorShape selectionCursor(Point client) const;
    bool moveSelection(const KeyEvent& event);
    bool zoomByKey(Key key);
    [[nodiscard]] bool selecting() const noexcept;
    void takeBackSelecting();
    /// False when nothing came to the clipboard.
    [[nodiscard]] bool copySelection() const;
    void restoreSettings();
    void restoreAttachment(const std::string& name);
    void saveSettings() const;

    void addCommands();
    void addOptionCommands();
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
    void OnUpdateRepeat(CommandUi& ui);
    void OnWrap();
    void OnUpdateWrap(CommandUi& ui);
    void OnBrushSize(CommandId id);
    void OnUpdateBrushSize(CommandUi& ui);
    void OnBrushShape(CommandId id);
    void OnUpdateBrushShape(CommandUi& ui);
    void OnMirror(CommandId id);
    void OnUpdateMirror(CommandUi& ui);
    void OnUndo();
    void OnUpdateUndo(CommandUi& ui);
    void OnRedo();
    void OnUpdateRedo(CommandUi& ui);
    void OnSpuit();
    void OnUpdateSpuit(CommandUi& ui);
    void OnPickEntry();
    void OnSelectAll();
    void OnUpdateSelectAll(CommandUi& ui);
    void OnCancelSelection();
    void OnFlip(CommandId id);
    void OnResizeCanvas();
    void OnScaleImage();
    void OnCrop();
    void OnShiftImage();
    void OnShiftByHalf();
    void OnTurn(CommandId id);
    void OnUpdateImageWork(CommandUi& ui);
    void OnToFourBits();
    void OnToEightBits();
    void OnUpdateDepth(CommandUi& ui);
    void OnCopy();
    void OnCut();
    void OnUpdateSelected(CommandUi& ui);
    void OnPaste();
    void OnUpdatePaste(CommandUi& ui);

    CDyeworksDoc& document_;
    ViewWindow& window_;
    std::int32_t zoom_ = 1;
    bool gridShown_ = true;
    bool repeated_ = false;
    /// The image's size when the window was last laid out for it.
    Size shownSize_{1, 1};
    bool initialised_ = false;
    std::optional<std::uint32_t> standingOut_;
    const TextureCanvas* instead_ = nullptr; ///< Mostly none.
    bool noPaletteShown_ = false;            ///< What the window shows is the words in place of the image.
    /// Where the window was scrolled to when its file was last open. Until the first paint the window takes
    /// on its size by and by, and a size that is passed through must not cut the position.
    std::optional<Point> restoredScroll_;
    ImageSelection selection_;
    std::uint32_t drawingValue_ = 0;
    /// Of the drag that is going on. Shared with the call that the tool is in: a preview may end the drag
    /// there.
    std::shared_ptr<DrawTool> tool_;
    /// Where the left button has gone up since its last press.
    std::optional<PointerEvent> released_;
    Point dragCopy_; ///< Way to the copy of the image that it began in.
    Point pointed_;  ///< The texel that the status line tells of.
    struct PointedBrush {
        Point texel; ///< Possibly of a copy.
        Brush brush;
        bool operator==(const PointedBrush&) const = default;
    };
    std::optional<PointedBrush> brushShown_; ///< Around which the window shows an outline.
    bool pointerInside_ = false;
    TexelCursor cursor_;
    bool keysHere_ = false;   ///< The view has the focus, as far as it knows.
    Point pointerBeforeKeys_; ///< Client point that the pointer had when the cursor was shown.
    bool spuit_ = false;      ///< A right press picks the colour under it.
    bool scrollDragging_ = false;
    Point scrollDragPoint_; ///< Client point up to which the scroll drag has been followed.
    Point scrollDragStart_; ///< Scroll position at its press.
};

} // namespace dyeworks
