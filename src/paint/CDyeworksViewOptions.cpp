#include "paint/BrushOutline.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/SurfaceDrawing.h"
#include "paint/ViewWindow.h"
#include "platform/StringId.h"

namespace dyeworks {

namespace {

/// Whether the tool draws points, lines or outlines.
bool drawsWithBrush(Tool tool) {
    return tool == Tool::Pixel || tool == Tool::Pen || tool == Tool::Line || tool == Tool::Box ||
           tool == Tool::Circle;
}

void chooseBrush(const Brush& brush) {
    DrawingOptions options = drawingOptions();
    options.brush = brush;
    setDrawingOptions(options);
}

} // namespace

void CDyeworksView::addOptionCommands() {
    on(ID_VIEW_REPEAT, &CDyeworksView::ToggleRepeat, &CDyeworksView::OnUpdateRepeat);
    on(ID_DRAW_WRAP, &CDyeworksView::OnWrap, &CDyeworksView::OnUpdateWrap);
    onRange(ID_BRUSH_SMALLER, ID_BRUSH_LARGER, &CDyeworksView::OnBrushSize,
            &CDyeworksView::OnUpdateBrushSize);
    onRange(ID_BRUSH_SQUARE, ID_BRUSH_ROUND, &CDyeworksView::OnBrushShape,
            &CDyeworksView::OnUpdateBrushShape);
    onRange(ID_MIRROR_ACROSS, ID_MIRROR_DOWN, &CDyeworksView::OnMirror, &CDyeworksView::OnUpdateMirror);
}

void CDyeworksView::ToggleRepeat() {
    // A drag keeps to the copy that it began in.
    CancelDrag();
    const ViewGeometry before = geometry();
    const Point scroll = window_.scrollPosition();
    const Point shown{scroll.x - before.origin().x, scroll.y - before.origin().y};
    repeated_ = !repeated_;
    window_.setContentSize(contentSize());
    if (!window_.shiftHeld())
        window_.fitFrame();
    const Point origin = geometry().origin();
    scrollTo({shown.x + origin.x, shown.y + origin.y});
    window_.invalidateAll();
    followPointer(window_.pointerPosition());
}

void CDyeworksView::OnUpdateRepeat(CommandUi& ui) {
    ui.checked = repeated_;
}

void CDyeworksView::OnWrap() {
    DrawingOptions options = drawingOptions();
    options.wrap = !options.wrap;
    setDrawingOptions(options);
}

void CDyeworksView::OnUpdateWrap(CommandUi& ui) {
    ui.checked = drawingOptions().wrap;
}

void CDyeworksView::OnBrushSize(CommandId id) {
    Brush brush = drawingOptions().brush;
    brush.size += id == ID_BRUSH_LARGER ? 1 : -1;
    chooseBrush(brush);
}

void CDyeworksView::OnUpdateBrushSize(CommandUi& ui) {
    const std::int32_t size = drawingOptions().brush.size;
    if (ui.id == ID_BRUSH_LARGER)
        ui.require(size < Brush::kMaxSize, StringId::WhyBrushLargest);
    else
        ui.require(size > 1, StringId::WhyBrushSmallest);
}

void CDyeworksView::OnBrushShape(CommandId id) {
    Brush brush = drawingOptions().brush;
    brush.round = id == ID_BRUSH_ROUND;
    chooseBrush(brush);
}

void CDyeworksView::OnUpdateBrushShape(CommandUi& ui) {
    ui.checked = drawingOptions().brush.round == (ui.id == ID_BRUSH_ROUND);
}

void CDyeworksView::OnMirror(CommandId id) {
    DrawingOptions options = drawingOptions();
    bool& mirrors = id == ID_MIRROR_ACROSS ? options.mirrorAcross : options.mirrorDown;
    mirrors = !mirrors;
    setDrawingOptions(options);
}

void CDyeworksView::OnUpdateMirror(CommandUi& ui) {
    ui.checked = ui.id == ID_MIRROR_ACROSS ? drawingOptions().mirrorAcross : drawingOptions().mirrorDown;
}

void CDyeworksView::drawingOptionsChanged() {
    window_.invalidateAll();
    showBrush(window_.pointerPosition());
}

void CDyeworksView::PointerEntered(Point client) {
    pointerInside_ = true;
    showBrush(client);
}

void CDyeworksView::PointerLeft() {
    pointerInside_ = false;
    showBrush({});
}

/// Moves the outline of the brush to the texel cursor or under the pointer, or takes it away. A brush of a
/// single texel has none.
void CDyeworksView::showBrush(Point client) {
    const Brush& brush = drawingOptions().brush;
    const bool atPointer = pointerInside_ && !scrollDragging_ && !cursor_.isShown() && isInSight(client);
    std::optional<PointedBrush> wanted;
    if ((atPointer || cursor_.isShown()) && !showsNoPalette() && brush.size > 1 &&
        drawsWithBrush(currentTool()))
        wanted = {cursor_.isShown() ? *cursor_.texel() : geometry().texelAt(client), brush};
    if (wanted == brushShown_)
        return;
    for (const std::optional<PointedBrush>& shown : {brushShown_, wanted}) {
        if (shown) {
            const Rect texel = geometry().clientArea({shown->texel.x, shown->texel.y, 0, 0});
            window_.invalidate(brushOutlineArea(shown->brush, {texel.left, texel.top}, zoom_));
        }
    }
    brushShown_ = wanted;
}

void CDyeworksView::PaintBrush(const Surface& surface) const {
    if (!brushShown_)
        return;
    const Point origin = geometry().origin();
    drawBrushOutline(surface, reachOf(surface), brushShown_->brush,
                     {origin.x + brushShown_->texel.x * zoom_, origin.y + brushShown_->texel.y * zoom_},
                     zoom_);
}

} // namespace dyeworks
