#include "paint/ImageSelection.h"

#include "paint/CDyeworksDoc.h"
#include "paint/CanvasDrawing.h"
#include "paint/DrawingOptions.h"
#include "paint/ImageViewer.h"
#include "paint/SurfaceDrawing.h"
#include "paint/ViewWindow.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

constexpr int kAntsInterval = 200; // milliseconds
constexpr std::int32_t kAntsWidth = 2;
/// No window reaches further.
constexpr std::int32_t kFarthest = 32767;

/// Whether a selection is more than a line of texels.
bool isArea(const std::optional<Rect>& texels) {
    return texels && texels->right > texels->left && texels->bottom > texels->top;
}

/// Client area that a selection and its border take up.
std::optional<Rect> areaOf(const ViewGeometry& geometry, const std::optional<Rect>& texels) {
    if (!texels)
        return std::nullopt;
    const Rect frame = geometry.clientFrame(*texels);
    const Rect area{frame.left - 1, frame.top - 1, frame.right + 2, frame.bottom + 2};
    return isEmpty(area) ? std::nullopt : std::optional(area);
}

/// Where a side of `length` texels begins so that it lies inside `size` of them, or from 0 on if it is
/// longer.
std::int32_t heldInside(std::int32_t position, std::int32_t length, std::int32_t size) {
    return std::max(std::min(position, size - length), 0);
}

} // namespace

ImageSelection::ImageSelection(CDyeworksDoc& document, ImageViewer& viewer, ViewWindow& window,
                               std::function<ViewGeometry()> geometry)
    : document_(document)
    , viewer_(viewer)
    , window_(window)
    , geometry_(std::move(geometry)) {}

bool ImageSelection::exists() const noexcept {
    return keepsSelection(toolAtPress_) && isArea(texels_);
}

void ImageSelection::setToolAtPress(Tool tool) {
    const bool existed = exists();
    toolAtPress_ = tool;
    if (exists() != existed)
        window_.invalidateAll();
}

TrackerHit ImageSelection::hit(Point client) const {
    if (!texels_)
        return TrackerHit::None;
    return SelectionTracker(geometry_().clientFrame(*texels_), kSelectionStyle).hitTest(client);
}

void ImageSelection::select(const std::optional<Rect>& texels, bool redraw) {
    const Rect wanted = texels.value_or(Rect{}).normalised();
    const std::optional<Rect> before =
        std::exchange(texels_, wanted == Rect{} ? std::nullopt : std::optional(wanted));
    if (!texels_)
        window_.stopTicking();
    if (redraw) {
        dragRectangle_ = wanted;
        redrawRequest_ = {
            (isArea(before) ? kRedrawImage : 0) | (texels_ ? kRedrawDrag : 0),
            unionOf(areaOf(geometry_(), before), areaOf(geometry_(), texels_)).value_or(Rect{})};
        window_.invalidate(redrawRequest_.clientArea);
        if (floatingPieceWraps())
            window_.invalidateAll();
        window_.repaintNow();
        // Had all of it been out of sight, a later paint would be limited.
        redrawRequest_ = {};
    }
    if (texels_)
        window_.startTicking(kAntsInterval);
}

void ImageSelection::setDragged(bool dragged) {
    dragged_ = dragged;
    if (texels_ && !exists())
        window_.invalidate(areaOf(geometry_(), texels_).value_or(Rect{}));
}

void ImageSelection::moveBy(Point step, bool edges) {
    if (!texels_)
        return;
    texels_->right += step.x;
    texels_->bottom += step.y;
    if (!edges) {
        texels_->left += step.x;
        texels_->top += step.y;
    }
    window_.invalidateAll();
}

void ImageSelection::setFloatingPiece(std::unique_ptr<TextureCanvas> piece, StringId name) {
    if (piece == nullptr || piece->width() <= 0 || piece->height() <= 0)
        return;
    if (floatingPiece_ != nullptr && !commitFloatingPiece(true))
        return;
    anchor_ = {heldInside(anchor_.x, piece->width(), document_.canvas().width()),
               heldInside(anchor_.y, piece->height(), document_.canvas().height())};
    const Rect place{anchor_.x, anchor_.y, anchor_.x + piece->width() - 1, anchor_.y + piece->height() - 1};
    floatingPiece_ = std::move(piece);
    pieceName_ = name;
    setCurrentTool(Tool::Select);
    setToolAtPress(Tool::Select);
    select(place, true);
}

std::optional<FloatingPiece> ImageSelection::floatingPiece() const {
    if (floatingPiece_ == nullptr)
        return std::nullopt;
    return FloatingPiece{floatingPiece_.get(), texels_.value_or(Rect{})};
}

/// Whether it also shows elsewhere than at the selection.
bool ImageSelection::floatingPieceWraps() const noexcept {
    return floatingPiece_ != nullptr && drawingOptions().wrap;
}

void ImageSelection::dropFloatingPiece() {
    if (floatingPieceWraps())
        window_.invalidateAll();
    floatingPiece_.reset();
}

void ImageSelection::recolourFloatingPiece() {
    if (floatingPiece_ != nullptr)
        floatingPiece_->copyColourTableFrom(document_.canvas());
}

void ImageSelection::drawFloatingPiece(TextureCanvas& canvas) const {
    if (floatingPiece_ != nullptr)
        CanvasDrawing(canvas, drawingOptions(), 0).paste(*floatingPiece_, texels_.value_or(Rect{}));
}

bool ImageSelection::commitFloatingPiece(bool redraw) {
    // Released before the repaints that follow.
    if (std::unique_ptr<TextureCanvas> piece = std::move(floatingPiece_)) {
        const Rect place = texels_.value_or(Rect{});
        const auto paste = [&](TextureCanvas& canvas) {
            CanvasDrawing(canvas, drawingOptions(), 0).paste(*piece, place);
        };
        const std::uint64_t before = document_.texelState();
        bool placed = false;
        try {
            placed = document_.Edit(&viewer_, paste, pieceName_);
        } catch (const std::bad_alloc&) {
            // It would be nowhere then, unless only showing it has failed.
            if (document_.texelState() == before)
                floatingPiece_ = std::move(piece);
            throw;
        }
        if (!placed) {
            floatingPiece_ = std::move(piece);
            return false;
        }
    }
    if (texels_)
        select(std::nullopt, redraw);
    return true;
}

void ImageSelection::turn(Turn turn) {
    const Rect area = *texels_;
    if (turn == Turn::Half && floatingPiece_ == nullptr) {
        const auto flip = [&](TextureCanvas& canvas) {
            canvas.Flip(area.left, area.top, area.right, area.bottom,
                        TextureCanvas::kFlipHorizontal | TextureCanvas::kFlipVertical);
        };
        document_.Edit(&viewer_, flip, StringId::StepTurnHalf);
        return;
    }
    std::unique_ptr<TextureCanvas> lifted;
    if (floatingPiece_ == nullptr)
        lifted = document_.canvas().CopyRect(area.left, area.top, area.right, area.bottom);
    const TextureCanvas* const piece = floatingPiece_ != nullptr ? floatingPiece_.get() : lifted.get();
    std::unique_ptr<TextureCanvas> turnedPiece = piece == nullptr ? nullptr : turned(*piece, turn);
    if (turnedPiece == nullptr) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return;
    }
    const auto erase = [&](TextureCanvas& canvas) {
        canvas.FillBox(area.left, area.top, area.right, area.bottom, 0);
    };
    if (floatingPiece_ == nullptr) {
        if (!document_.Edit(&viewer_, erase, StringId::StepLift))
            return;
        pieceName_ = turn == Turn::Left ? StringId::StepTurnLeft : StringId::StepTurnRight;
    }
    floatingPiece_ = std::move(turnedPiece);
    Rect place = area;
    if (turn != Turn::Half) {
        const std::int32_t width = area.right - area.left;
        const std::int32_t height = area.bottom - area.top;
        // Rounded towards zero, so that a second quarter turn comes back to the same middle.
        place.left += (width - height) / 2;
        place.top += (height - width) / 2;
        place.right = place.left + height;
        place.bottom = place.top + width;
    }
    anchor_ = {place.left, place.top};
    select(place, false);
    window_.invalidateAll();
}

void ImageSelection::showDragFrame(const Rect& texels, std::uint32_t redrawRequest) {
    if (trackerStyle_ != kSelectionStyle)
        hideDragFrame();
    trackerStyle_ = SelectionTracker::kDottedLine;
    dragRectangle_ = texels.normalised();
    requestRedraw(redrawRequest, geometry_().clientArea(dragRectangle_));
}

void ImageSelection::hideDragFrame() {
    // The canvas need not have changed wherever the frame was drawn.
    trackerStyle_ = kSelectionStyle;
    requestRedraw(kRedrawImage, geometry_().clientArea(dragRectangle_));
}

/// A request for an area out of sight would wait for some later paint, when it is out of date.
void ImageSelection::requestRedraw(std::uint32_t request, const Rect& clientArea) {
    const Size client = window_.clientSize();
    const bool inSight = !isEmpty(intersection(clientArea, {0, 0, client.width, client.height}));
    redrawRequest_ = inSight ? RedrawRequest{request, clientArea} : RedrawRequest{};
    window_.invalidate(clientArea);
}

void ImageSelection::tick() {
    if (!texels_)
        return;
    antsPhase_ = !antsPhase_;
    const Rect frame = grown(geometry_().clientFrame(*texels_), kAntsWidth);
    const auto held = [](std::int32_t coordinate) { return std::clamp(coordinate, 0, kFarthest); };
    const Rect border{held(frame.left), held(frame.top), held(frame.right), held(frame.bottom)};
    window_.invalidate({border.left, border.top, border.right, border.top + kAntsWidth});
    window_.invalidate({border.left, border.bottom - kAntsWidth, border.right, border.bottom});
    window_.invalidate({border.left, border.top, border.left + kAntsWidth, border.bottom});
    window_.invalidate({border.right - kAntsWidth, border.top, border.right, border.bottom});
    window_.repaintNow();
}

ImageSelection::RedrawRequest ImageSelection::takeRedrawRequest() {
    return std::exchange(redrawRequest_, {});
}

std::optional<SelectionLook> ImageSelection::look(std::uint32_t redrawRequest) const {
    // A piece that floats shows also after a tool that draws, and whatever is being selected is framed.
    if (redrawRequest == 0 && (exists() || floatingPiece_ != nullptr || (dragged_ && texels_)))
        return SelectionLook{texels_.value_or(Rect{}), floatingPiece_.get(), trackerStyle_, antsPhase_,
                             floatingPieceWraps()};
    if ((redrawRequest & kRedrawDrag) != 0)
        return SelectionLook{dragRectangle_, floatingPiece_.get(), trackerStyle_, antsPhase_,
                             floatingPieceWraps()};
    return std::nullopt;
}

} // namespace dyeworks
