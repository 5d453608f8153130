#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/ViewRenderer.h"
#include "paint/ViewWindow.h"

#include <utility>

namespace dyeworks {

ImageSelection::RedrawRequest CDyeworksView::BeginPaint() {
    restoredScroll_.reset();
    if (showsNoPalette()) {
        noPaletteShown_ = true;
        return {};
    }
    // Whatever part is painted now, the rest still shows the words.
    if (std::exchange(noPaletteShown_, false))
        window_.invalidateAll();
    return selection_.takeRedrawRequest();
}

void CDyeworksView::Paint(Surface& surface, const Rect& contentArea, std::uint32_t buttonFace,
                          std::uint32_t redrawRequest) const {
    ViewLook look;
    look.zoom = zoom_;
    look.gridShown = gridShown_;
    look.repeated = repeated_;
    look.standingOut = standingOut_;
    look.mirrorsAcross = drawingOptions().mirrorAcross;
    look.mirrorsDown = drawingOptions().mirrorDown;
    look.noPalette = showsNoPalette();
    look.outsideColour = buttonFace;
    look.imageShown = redrawRequest == 0 || (redrawRequest & ImageSelection::kRedrawImage) != 0;
    look.selection = selection_.look(redrawRequest);
    const Point origin = geometry().origin();
    Surface logical = surface;
    logical.originX -= origin.x;
    logical.originY -= origin.y;
    ViewRenderer(document_.canvas(), look)
        .draw(logical, {contentArea.left - origin.x, contentArea.top - origin.y, contentArea.right - origin.x,
                        contentArea.bottom - origin.y});
}

void CDyeworksView::StandOut(std::optional<std::uint32_t> value) {
    if (std::exchange(standingOut_, value) != value)
        window_.invalidateAll();
}

void CDyeworksView::Tick() {
    selection_.tick();
}

} // namespace dyeworks
