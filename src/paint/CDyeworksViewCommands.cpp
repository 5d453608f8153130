#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/ViewWindow.h"
#include "platform/StringId.h"

namespace dyeworks {

namespace {

std::int32_t zoomOf(CommandId id) {
    return static_cast<std::int32_t>(id - ID_ZOOM_BASE);
}

} // namespace

template <Tool kTool>
void CDyeworksView::addToolCommand(CommandId id) {
    on(id, &CDyeworksView::OnTool<kTool>, &CDyeworksView::OnUpdateTool<kTool>);
}

void CDyeworksView::addCommands() {
    addToolCommand<Tool::Select>(ID_TOOL_SELECT);
    addToolCommand<Tool::ZoomLens>(ID_TOOL_ZOOM_LENS);
    addToolCommand<Tool::Replacer>(ID_TOOL_REPLACER);
    addToolCommand<Tool::Pixel>(ID_TOOL_PIXEL);
    addToolCommand<Tool::Pen>(ID_TOOL_PEN);
    addToolCommand<Tool::Line>(ID_TOOL_LINE);
    addToolCommand<Tool::Box>(ID_TOOL_BOX);
    addToolCommand<Tool::BoxFill>(ID_TOOL_BOX_FILL);
    addToolCommand<Tool::Circle>(ID_TOOL_CIRCLE);
    addToolCommand<Tool::CircleFill>(ID_TOOL_CIRCLE_FILL);
    addToolCommand<Tool::Paint>(ID_TOOL_PAINT);
    on(ID_ZOOM_IN, &CDyeworksView::OnZoomIn, &CDyeworksView::OnUpdateZoomIn);
    on(ID_ZOOM_OUT, &CDyeworksView::OnZoomOut, &CDyeworksView::OnUpdateZoomOut);
    for (const std::int32_t zoom : ViewGeometry::kZoomFactors) {
        const CommandId id = ID_ZOOM_BASE + static_cast<CommandId>(zoom);
        onRange(id, id, &CDyeworksView::OnZoom, &CDyeworksView::OnUpdateZoom);
    }
    on(ID_VIEW_GRID, &CDyeworksView::ToggleGrid, &CDyeworksView::OnUpdateGrid);
    addOptionCommands();
    on(ID_EDIT_UNDO, &CDyeworksView::OnUndo, &CDyeworksView::OnUpdateUndo);
    on(ID_EDIT_REDO, &CDyeworksView::OnRedo, &CDyeworksView::OnUpdateRedo);
    on(ID_TOOL_SPUIT, &CDyeworksView::OnSpuit, &CDyeworksView::OnUpdateSpuit);
    on(ID_ENTRY_PICK, &CDyeworksView::OnPickEntry);
    on(ID_EDIT_SELECT_ALL, &CDyeworksView::OnSelectAll, &CDyeworksView::OnUpdateSelectAll);
    on(ID_CANCEL_SELECTION, &CDyeworksView::OnCancelSelection, &CDyeworksView::OnUpdateSelected);
    onRange(ID_FLIP_X, ID_FLIP_Y, &CDyeworksView::OnFlip, &CDyeworksView::OnUpdateSelected);
    on(ID_IMAGE_RESIZE, &CDyeworksView::OnResizeCanvas, &CDyeworksView::OnUpdateImageWork);
    on(ID_IMAGE_SCALE, &CDyeworksView::OnScaleImage, &CDyeworksView::OnUpdateImageWork);
    on(ID_IMAGE_CROP, &CDyeworksView::OnCrop, &CDyeworksView::OnUpdateSelected);
    on(ID_IMAGE_SHIFT, &CDyeworksView::OnShiftImage, &CDyeworksView::OnUpdateImageWork);
    on(ID_IMAGE_SHIFT_HALF, &CDyeworksView::OnShiftByHalf, &CDyeworksView::OnUpdateImageWork);
    onRange(ID_IMAGE_TURN_LEFT, ID_IMAGE_TURN_HALF, &CDyeworksView::OnTurn,
            &CDyeworksView::OnUpdateImageWork);
    on(ID_IMAGE_TO_4_BITS, &CDyeworksView::OnToFourBits, &CDyeworksView::OnUpdateDepth);
    on(ID_IMAGE_TO_8_BITS, &CDyeworksView::OnToEightBits, &CDyeworksView::OnUpdateDepth);
    on(ID_EDIT_COPY, &CDyeworksView::OnCopy, &CDyeworksView::OnUpdateSelected);
    on(ID_EDIT_CUT, &CDyeworksView::OnCut, &CDyeworksView::OnUpdateSelected);
    on(ID_EDIT_PASTE, &CDyeworksView::OnPaste, &CDyeworksView::OnUpdatePaste);
}

template <Tool kTool>
void CDyeworksView::OnTool() {
    setCurrentTool(kTool);
    showBrush(window_.pointerPosition());
    if (keepsSelection(kTool)) {
        // What can be selected and done with a selection need not wait for the next press.
        if (!dragging())
            selection_.setToolAtPress(kTool);
        return;
    }
    takeBackSelecting();
    selection_.commitFloatingPiece(true);
}

template <Tool kTool>
void CDyeworksView::OnUpdateTool(CommandUi& ui) {
    ui.checked = currentTool() == kTool;
}

void CDyeworksView::OnZoomIn() {
    ZoomStep(false, true);
}

void CDyeworksView::OnUpdateZoomIn(CommandUi& ui) {
    ui.require(zoom_ < ViewGeometry::kMaxZoom, StringId::WhyZoomLargest);
}

void CDyeworksView::OnZoomOut() {
    ZoomStep(true, true);
}

void CDyeworksView::OnUpdateZoomOut(CommandUi& ui) {
    ui.require(zoom_ > ViewGeometry::kMinZoom, StringId::WhyZoomSmallest);
}

void CDyeworksView::OnZoom(CommandId id) {
    SetZoom(zoomOf(id));
}

void CDyeworksView::OnUpdateZoom(CommandUi& ui) {
    ui.checked = zoom_ == zoomOf(ui.id);
}

void CDyeworksView::OnUpdateGrid(CommandUi& ui) {
    ui.checked = gridShown_;
}

void CDyeworksView::OnUndo() {
    document_.Undo();
}

void CDyeworksView::OnUpdateUndo(CommandUi& ui) {
    ui.require(document_.CanUndo(), StringId::WhyNothingToUndo);
}

void CDyeworksView::OnRedo() {
    document_.Redo();
}

void CDyeworksView::OnUpdateRedo(CommandUi& ui) {
    ui.require(document_.edits().canRedo(), StringId::WhyNothingToRedo);
}

} // namespace dyeworks
