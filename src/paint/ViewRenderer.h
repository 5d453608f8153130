#pragma once

#include "paint/Rect.h"
#include "paint/Surface.h"

#include <cstdint>

namespace dyeworks {

class TextureCanvas;

/// How a view shows its image.
struct ViewLook {
    std::int32_t zoom = 1;
    bool gridShown = true;
    bool noPalette = false;          ///< The outside colour takes the image's place.
    std::uint32_t outsideColour = 0; ///< 0xffRRGGBB, around the image.
};

/// Draws an image as its view shows it: zoomed, with the grid over it.
class ViewRenderer {
public:
    /// `canvas` must outlive the renderer.
    ViewRenderer(const TextureCanvas& canvas, const ViewLook& look);

    /// Draws the logical area (right and bottom exclusive) as far as the surface reaches; the surface's
    /// origin is a logical point. Costs the pixels of the area, whatever the size of the image.
    void draw(Surface& surface, const Rect& area) const;

private:
    void drawImage(Surface& surface, const Rect& area) const;
    void drawGrid(Surface& surface, const Rect& area) const;

    const TextureCanvas& canvas_;
    ViewLook look_;
};

} // namespace dyeworks
