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

ViewLook CDyeworksView::look(std::uint32_t outsideColour, std::uint32_t redrawRequest) const {
    ViewLook look;
    look.zoom = zoom_;
    look.gridShown = gridShown_;
    look.noPalette = showsNoPalette();
    look.outsideColour = outsideColour;
    look.imageShown = redrawRequest == 0 || (redrawRequest & ImageSelection::kRedrawImage) != 0;
    look.selection = selection_.look(redrawRequest);
    return look;
}

void CDyeworksView::Paint(Surface& surface, const Rect& contentArea, std::uint32_t buttonFace,
                          std::uint32_t redrawRequest) const {
    ViewLook shown = look(buttonFace, redrawRequest);
    shown.repeated = repeated_;
    shown.standingOut = standingOut_;
    shown.mirrorsAcross = drawingOptions().mirrorAcross;
    shown.mirrorsDown = drawingOptions().mirrorDown;
    const Point origin = geometry().origin();
    Surface logical = surface;
    logical.originX -= origin.x;
    logical.originY -= origin.y;
    ViewRenderer(instead_ == nullptr ? document_.canvas() : *instead_, shown)
        .draw(logical, {contentArea.left - origin.x, contentArea.top - origin.y, contentArea.right - origin.x,
                        contentArea.bottom - origin.y});
}

void CDyeworksView::StandOut(std::optional<std::uint32_t> value) {
    if (std::exchange(standingOut_, value) != value)
        window_.invalidateAll();
}

void CDyeworksView::ShowInstead(const TextureCanvas* other) {
    if (std::exchange(instead_, other) != other)
        window_.invalidateAll();
}

void CDyeworksView::PaintPrinted(Surface& surface, const Rect& area, std::uint32_t paperColour) const {
    ViewRenderer(document_.canvas(), look(paperColour, 0)).draw(surface, area);
}

Size CDyeworksView::printedSize() const {
    return ViewGeometry(zoom_, imageSize(), {}, {}).contentSize();
}

void CDyeworksView::Tick() {
    selection_.tick();
}

} // namespace dyeworks
