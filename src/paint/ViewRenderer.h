#pragma once

#include "paint/Rect.h"
#include "paint/Surface.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace dyeworks {

class TextureCanvas;

/// How a view shows a selection.
struct SelectionLook {
    Rect texels;                             ///< Inclusive.
    const TextureCanvas* floating = nullptr; ///< Shown in place of the selected texels, scaled to them.
    std::uint32_t trackerStyle = 0;          ///< As in `SelectionTracker`.
    bool antsPhase = false;                  ///< Swaps black and white of the border.
    bool floatingWraps = false; ///< What floats also shows where it comes in again from the other side.
};

/// How a view shows its image.
struct ViewLook {
    std::int32_t zoom = 1;
    bool gridShown = true;
    bool repeated = false; ///< Copies of the image surround it; all else shows in the middle alone.
    // Lines over the middle column and row, where what is drawn is mirrored.
    bool mirrorsAcross = false;
    bool mirrorsDown = false;
    bool noPalette = false;                   ///< The outside colour takes the place of all else.
    std::uint32_t outsideColour = 0;          ///< 0xffRRGGBB, around the image.
    std::optional<std::uint32_t> standingOut; ///< Texels of this value show in a colour far from their own.
    bool imageShown = true; ///< Otherwise what the surface holds stays beneath the selection.
    std::optional<SelectionLook> selection;
};

/// Draws an image as its view shows it: zoomed, with the grid and the selection over it.
class ViewRenderer {
public:
    /// `canvas` and the floating piece must outlive the renderer.
    ViewRenderer(const TextureCanvas& canvas, const ViewLook& look);

    /// Draws the logical area (right and bottom exclusive) as far as the surface reaches; the surface's
    /// origin is a logical point. Costs the pixels of the area, whatever the size of the image.
    void draw(Surface& surface, const Rect& area) const;

private:
    template <typename Draw>
    void forEachCopy(const Surface& surface, const Rect& visible, Draw draw) const;
    [[nodiscard]] Rect imageArea() const;
    void drawOutside(const Surface& surface, const Rect& visible, const Rect& image) const;
    void drawBands(const Surface& surface, const Rect& area, bool gridShown) const;
    void drawImage(const Surface& surface, const Rect& area) const;
    void drawGrid(const Surface& surface, const Rect& area) const;
    void drawMirrorLines(const Surface& surface, const Rect& area) const;
    void drawSelection(const Surface& surface, const Rect& visible) const;
    void drawFloating(const Surface& surface, const Rect& visible) const;

    const TextureCanvas& canvas_;
    ViewLook look_;
    std::vector<std::uint8_t> colours_; ///< In place of the canvas's own while a value stands out.
};

} // namespace dyeworks
