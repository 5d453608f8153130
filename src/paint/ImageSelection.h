#pragma once

#include "paint/CanvasTransform.h"
#include "paint/CurrentTool.h"
#include "paint/Rect.h"
#include "paint/SelectionTracker.h"
#include "paint/TextureCanvas.h"
#include "paint/ViewGeometry.h"
#include "paint/ViewRenderer.h"
#include "platform/Text.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace dyeworks {

class CDyeworksDoc;
class ImageViewer;
struct FloatingPiece;
class ViewWindow;

/// What is selected in a view of an image: the texels with the frame around them and its marching border, and
/// the floating piece, texels that are shown inside the selection, scaled to it, and belong to no image yet.
/// Asks the view's window to repaint what changes; the view paints it. Texel rectangles are inclusive.
class ImageSelection {
public:
    // Bits of a redraw request, which limits the next paint to parts of the picture.
    static constexpr std::uint32_t kRedrawImage = 0x40; ///< The image, without what is selected in it.
    static constexpr std::uint32_t kRedrawDrag =
        0x80; ///< Floating piece and selection frame, at the rectangle that is being dragged.

    /// What a paint is limited to, and where; everything outside is painted in the ordinary way.
    struct RedrawRequest {
        std::uint32_t bits = 0; ///< kRedrawImage, kRedrawDrag; 0 for an ordinary paint everywhere.
        Rect clientArea;        ///< Right and bottom exclusive.
    };

    /// All must outlive the selection. `viewer` is the view that it belongs to, `geometry` how that shows the
    /// image now.
    ImageSelection(CDyeworksDoc& document, ImageViewer& viewer, ViewWindow& window,
                   std::function<ViewGeometry()> geometry);

    /// Nothing when no texels are selected.
    [[nodiscard]] const std::optional<Rect>& texels() const noexcept { return texels_; }
    /// Whether there is something selected to work with: more than a line of texels, and the tool of the last
    /// press was none that draws.
    [[nodiscard]] bool exists() const noexcept;
    /// The tool of the last press, or the one chosen since then if it selects: a selection shows only after
    /// one that keeps it.
    void setToolAtPress(Tool tool);
    [[nodiscard]] Tool toolAtPress() const noexcept { return toolAtPress_; }
    /// What of the frame is at the client point.
    [[nodiscard]] TrackerHit hit(Point client) const;
    /// Selects the texels between two corners, or nothing. With `redraw` the window shows it before the call
    /// returns. The first texel alone counts as nothing.
    void select(const std::optional<Rect>& texels, bool redraw);
    /// While it is dragged every paint shows it, also when it is too little to work with; the frame around
    /// that comes and goes with the drag.
    void setDragged(bool dragged);
    /// Moves it, or with `edges` its right and its bottom edge alone, by texels.
    void moveBy(Point step, bool edges);

    [[nodiscard]] bool hasFloatingPiece() const noexcept { return floatingPiece_ != nullptr; }
    [[nodiscard]] std::optional<FloatingPiece> floatingPiece() const;
    /// As `ImageViewer::SetFloatingPiece`. Nothing when the piece before it floats on.
    void setFloatingPiece(std::unique_ptr<TextureCanvas> piece, StringId name);
    /// As `ImageViewer::RecolourFloatingPiece`.
    void recolourFloatingPiece();
    /// Puts the floating piece, if there is one, into the image; then nothing is selected. False when it
    /// floats on, because the user left an edit that could not be undone.
    bool commitFloatingPiece(bool redraw);
    /// Draws the floating piece, if there is one, on the canvas where it would be placed.
    void drawFloatingPiece(TextureCanvas& canvas) const;
    /// Forgets the floating piece. It shows until the next repaint.
    void dropFloatingPiece();
    /// Turns what is selected, of which there must be something, about its middle. By a quarter it is lifted
    /// out of the image first and floats; what floats already just turns. Without memory for it nothing
    /// changes, and the user is told.
    void turn(Turn turn);
    /// Where the next floating piece is placed: the texel that the last drag began at, or as far as it came.
    /// After one that scrolled it is the number of pixels that the image was scrolled by at its press.
    void setAnchor(Point texel) noexcept { anchor_ = texel; }

    /// A shape is being dragged between two corners: its frame shows in the next paint, which `redrawRequest`
    /// limits.
    void showDragFrame(const Rect& texels, std::uint32_t redrawRequest);
    /// The drag is over.
    void hideDragFrame();

    /// The interval of `ViewWindow::startTicking` has passed: the border marches on.
    void tick();

    /// The redraw request that the next paint serves; from then on there is none.
    [[nodiscard]] RedrawRequest takeRedrawRequest();
    /// What a paint that serves `redrawRequest` shows of it.
    [[nodiscard]] std::optional<SelectionLook> look(std::uint32_t redrawRequest) const;

private:
    static constexpr std::uint32_t kSelectionStyle =
        SelectionTracker::kDottedLine | SelectionTracker::kResizeInside;

    void requestRedraw(std::uint32_t request, const Rect& clientArea);
    [[nodiscard]] bool floatingPieceWraps() const noexcept;

    CDyeworksDoc& document_;
    ImageViewer& viewer_;
    ViewWindow& window_;
    std::function<ViewGeometry()> geometry_;
    std::optional<Rect> texels_;
    Tool toolAtPress_ = Tool::Select;
    std::unique_ptr<TextureCanvas> floatingPiece_;
    StringId pieceName_{}; ///< Of the step that places it.
    Point anchor_;
    Rect dragRectangle_; ///< From the anchor of a drag to its current point.
    std::uint32_t trackerStyle_ = kSelectionStyle;
    bool antsPhase_ = false;
    bool dragged_ = false;
    RedrawRequest redrawRequest_;
};

} // namespace dyeworks
