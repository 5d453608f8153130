#include "ViewModel.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::array<std::pair<CommandId, Tool>, 11> kTools{{{ID_TOOL_SELECT, Tool::Select},
                                                             {ID_TOOL_PIXEL, Tool::Pixel},
                                                             {ID_TOOL_PEN, Tool::Pen},
                                                             {ID_TOOL_LINE, Tool::Line},
                                                             {ID_TOOL_BOX, Tool::Box},
                                                             {ID_TOOL_BOX_FILL, Tool::BoxFill},
                                                             {ID_TOOL_CIRCLE, Tool::Circle},
                                                             {ID_TOOL_CIRCLE_FILL, Tool::CircleFill},
                                                             {ID_TOOL_PAINT, Tool::Paint},
                                                             {ID_TOOL_ZOOM_LENS, Tool::ZoomLens},
                                                             {ID_TOOL_REPLACER, Tool::Replacer}}};
constexpr std::array kZooms{1, 2, 3, 4, 6, 8, 12, 16};

Point plus(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

Point minus(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}

} // namespace

std::optional<Tool> toolOf(CommandId id) {
    const auto* const found = std::ranges::find(kTools, id, &std::pair<CommandId, Tool>::first);
    return found == kTools.end() ? std::nullopt : std::optional(found->second);
}

void ViewModel::begin() {
    value = document.image().mask();
}

/// The first texel alone counts as nothing.
void ViewModel::setSelection(Point from, Point to) {
    const Rect wanted = Rect{from.x, from.y, to.x, to.y}.normalised();
    selection = wanted == Rect{} ? std::nullopt : std::optional(wanted);
}

bool ViewModel::clearSelected(bool wrap) {
    PlainPen pen;
    pen.wrap = wrap;
    return document.edit([&](PlainImage& image) { image.filledBox(selection.value_or(Rect{}), pen); });
}

PlainPen ViewModel::pen() const {
    PlainPen pen = shared_.pen;
    pen.value = value;
    return pen;
}

PlainImage ViewModel::seen() const {
    PlainImage all = document.image();
    if (piece)
        all.paste(*piece, selection.value_or(Rect{}), shared_.pen.wrap);
    return all;
}

void ViewModel::commit() {
    if (const std::optional<PlainImage> placed = std::exchange(piece, std::nullopt))
        document.edit(
            [&](PlainImage& image) { image.paste(*placed, selection.value_or(Rect{}), shared_.pen.wrap); });
    selection.reset();
}

void ViewModel::drop() {
    for (ViewModel* const view : document.views) {
        view->piece.reset();
        view->selection.reset();
    }
}

void ViewModel::imageReplaced() {
    replaced = true;
    for (ViewModel* const view : document.views) {
        if (!view->piece)
            view->selection.reset();
        view->value &= document.image().mask();
    }
}

bool ViewModel::hasUnsavedChanges() const {
    return document.differsFromFile() ||
           std::ranges::any_of(document.views, [](const ViewModel* view) { return view->piece.has_value(); });
}

/// What is selected is turned about its middle, by a quarter as a piece that floats.
void ViewModel::turn(CommandId id) {
    const bool half = id == ID_IMAGE_TURN_HALF;
    const auto turned = [&](const PlainImage& image) {
        if (!half)
            return image.turned(id == ID_IMAGE_TURN_RIGHT);
        PlainImage made = image;
        made.flip(made.whole(), true, true);
        return made;
    };
    if (!exists())
        return replaceImage(turned);
    if (half && !piece) {
        document.edit([&](PlainImage& image) { image.flip(*selection, true, true); });
        return;
    }
    const PlainImage lifted = piece ? *piece : document.image().part(*selection);
    if (!piece)
        clearSelected(false);
    piece = turned(lifted);
    const auto [l, t, r, b] = *selection;
    anchor_ = half ? Point{l, t} : Point{l + (r - l - (b - t)) / 2, t + (b - t - (r - l)) / 2};
    setSelection(anchor_, half ? Point{r, b} : Point{anchor_.x + b - t, anchor_.y + r - l});
}

void ViewModel::crop() {
    const Rect kept = intersection(*selection, document.image().whole());
    if (kept.right >= kept.left && kept.bottom >= kept.top)
        replaceImage([&](const PlainImage& image) { return image.part(kept); });
}

void ViewModel::settle() {
    cancel();
    for (ViewModel* const view : document.views)
        view->close();
}

void ViewModel::letFloat(PlainImage newPiece) {
    if (piece)
        commit();
    piece = std::move(newPiece);
    shared_.tool = atPress_ = Tool::Select;
    anchor_ = {std::max(std::min(anchor_.x, document.image().width - piece->width), 0),
               std::max(std::min(anchor_.y, document.image().height - piece->height), 0)};
    current_ = plus(anchor_, {piece->width - 1, piece->height - 1});
    setSelection(anchor_, current_);
}

void ViewModel::pick(Point position) {
    const Point seen = texel(position);
    const Point at = minus(seen, copyWith(seen));
    if (!document.image().holds(at))
        return;
    value = document.image().at(at);
    if (shared_.cell >= 0)
        shared_.cell = std::min(shared_.firstEntry + static_cast<int>(value), shared_.cells - 1);
}

void ViewModel::rightPress(Point position) {
    if (!dragging_ && spuit && shared_.tool != Tool::Select && shared_.tool != Tool::ZoomLens)
        pick(position);
}

void ViewModel::press(const Pointer& event) {
    if (dragging_)
        return;
    const Tool tool = atPress_ = shared_.tool;
    if (event.control && tool != Tool::Select && tool != Tool::ZoomLens)
        return pick(event.position);
    if (shared_.cell >= 0)
        value = static_cast<std::uint32_t>(shared_.cell - shared_.firstEntry) & document.image().mask();
    // What is selected lies in the image itself.
    const bool grabs = tool == Tool::Select && hitAt(event.position) != TrackerHit::None;
    copy_ = grabs ? Point{} : copyWith(texel(event.position));
    start_ = minus(texel(event.position), copy_);
    byKeys_ = false;
    dragging_ = tool != Tool::Paint && tool != Tool::Replacer;
    if (tool == Tool::Select)
        grab(event.position);
    if (tool == Tool::Replacer)
        document.edit(
            [this](PlainImage& image) { image.replace(selection.value_or(image.whole()), start_, value); });
    if (keepsSelection(tool))
        return;
    commit();
    if (tool == Tool::Paint) {
        document.edit([this](PlainImage& image) { image.flood(start_, pen()); });
        return;
    }
    anchor_ = current_ = previous_ = start_;
    centred_ = event.alt;
    snapshot_ = document.image();
    if (tool == Tool::Pixel)
        hasStep_ = document.edit([this](PlainImage& image) { image.dot(start_, pen()); });
    else if (tool == Tool::Pen)
        document.image().dot(start_, pen());
    else
        drawShape();
}

TrackerHit ViewModel::hitAt(Point position) const {
    const auto [l, t, r, b] = selection.value_or(Rect{});
    const Rect frame{l * zoom + 1, t * zoom + 1, r * zoom + zoom - 1, b * zoom + zoom - 1};
    return selection
               ? SelectionTracker(frame, SelectionTracker::kDottedLine | SelectionTracker::kResizeInside)
                     .hitTest(position)
               : TrackerHit::None;
}

/// The corner opposite to the one that was hit stays.
void ViewModel::grab(Point position) {
    const auto [l, t, r, b] = selection.value_or(Rect{});
    hit_ = hitAt(position);
    cut_ = hasStep_ = false;
    selectionBefore_ = hit_ == TrackerHit::None && piece ? std::nullopt : selection;
    const bool left =
        hit_ == TrackerHit::TopLeft || hit_ == TrackerHit::BottomLeft || hit_ == TrackerHit::Left;
    const bool top = hit_ == TrackerHit::TopLeft || hit_ == TrackerHit::TopRight || hit_ == TrackerHit::Top;
    anchor_ = {left ? r : l, top ? b : t};
    current_ = {left ? l : r, top ? t : b};
    if (hit_ != TrackerHit::None)
        return;
    commit();
    anchor_ = current_ = start_;
    setSelection(start_, start_);
}

void ViewModel::move(const Pointer& event) {
    const Point at = minus(texel(event.position), copy_);
    if (!dragging_ || atPress_ == Tool::Pixel || atPress_ == Tool::ZoomLens)
        return;
    if (atPress_ == Tool::Select) {
        if (current_ != at)
            dragSelection(at, event.control);
    } else if (atPress_ == Tool::Pen) {
        if (anchor_ != at)
            document.image().line(anchor_, at, pen());
        anchor_ = at;
    } else if (previous_ != at) {
        follow(at);
        document.image() = *snapshot_;
        drawShape();
        previous_ = at;
    }
}

void ViewModel::dragSelection(Point at, bool control) {
    if (hit_ == TrackerHit::Inside) {
        if (!piece) {
            PlainImage copy = document.image().part(selection.value_or(Rect{}), shared_.pen.wrap);
            cut_ = true;
            hasStep_ = !control && clearSelected(shared_.pen.wrap);
            letFloat(std::move(copy));
        }
        const Point way = minus(at, std::exchange(start_, at));
        anchor_ = plus(anchor_, way);
        current_ = plus(current_, way);
    } else {
        if (hit_ != TrackerHit::Top && hit_ != TrackerHit::Bottom)
            current_.x = at.x;
        if (hit_ != TrackerHit::Left && hit_ != TrackerHit::Right)
            current_.y = at.y;
    }
    setSelection(anchor_, current_);
}

void ViewModel::follow(Point at) {
    current_ = at;
    if (centred_)
        anchor_ = minus(start_, minus(at, start_));
}

void ViewModel::drawShape() {
    PlainImage& image = document.image();
    const Rect corners{anchor_.x, anchor_.y, current_.x, current_.y};
    if (atPress_ == Tool::Line)
        image.line(anchor_, current_, pen());
    else if (atPress_ == Tool::Box)
        image.box(corners, pen());
    else if (atPress_ == Tool::BoxFill)
        image.filledBox(corners, pen());
    else
        image.ellipse(corners, pen(), atPress_ == Tool::CircleFill);
}

void ViewModel::release(const Pointer& event) {
    if (!std::exchange(dragging_, false))
        return;
    if (atPress_ == Tool::ZoomLens) {
        zoomStep(event.control);
        atPress_ = shared_.tool;
        return;
    }
    if (atPress_ == Tool::Select || atPress_ == Tool::Pixel)
        return;
    if (atPress_ != Tool::Pen) {
        if (atPress_ == Tool::Line)
            follow(minus(texel(event.position), copy_));
        document.image() = *snapshot_;
        drawShape();
    }
    document.record(std::move(*snapshot_));
}

bool ViewModel::cancel() {
    bool changed = false;
    for (ViewModel* const view : document.views)
        changed = view->cancelOwn() || changed;
    return changed;
}

bool ViewModel::cancelOwn() {
    if (!dragging_)
        return false;
    const bool open = opensEdit();
    dragging_ = false;
    if (atPress_ == Tool::Select) {
        if (cut_)
            piece.reset();
        selection = selectionBefore_;
    }
    const bool recorded = !open && atPress_ != Tool::ZoomLens && hasStep_;
    if (open)
        document.image() = *snapshot_;
    else if (recorded)
        document.undo();
    return open || recorded;
}

void ViewModel::zoomStep(bool out) {
    const auto at = std::ranges::find(kZooms, zoom);
    if (out && at != kZooms.begin())
        zoom = *(at - 1);
    else if (!out && at + 1 != kZooms.end())
        zoom = *(at + 1);
}

std::optional<bool> ViewModel::enabled(CommandId id) const {
    if (id == ID_BRUSH_SMALLER)
        return shared_.pen.size > 1;
    if (id == ID_BRUSH_LARGER)
        return shared_.pen.size < 16;
    if ((id >= ID_BRUSH_SQUARE && id <= ID_MIRROR_DOWN) || id == ID_DRAW_WRAP)
        return true;
    if (toolOf(id) || id == ID_TOOL_SPUIT || id == ID_VIEW_GRID || id == ID_VIEW_REPEAT ||
        (id >= ID_ZOOM_X1 && id <= ID_ZOOM_X16))
        return true;
    switch (id) {
    case ID_EDIT_UNDO:
        return canUndo();
    case ID_EDIT_REDO:
        return !document.states.redone.empty();
    case ID_IMAGE_TO_4_BITS:
    case ID_IMAGE_TO_8_BITS:
        return document.image().bits == (id == ID_IMAGE_TO_4_BITS ? 8 : 4);
    case ID_EDIT_SELECT_ALL:
        return keepsSelection(atPress_);
    case ID_CANCEL_SELECTION:
    case ID_FLIP_X:
    case ID_FLIP_Y:
    case ID_EDIT_COPY:
    case ID_EDIT_CUT:
    case ID_IMAGE_CROP:
        return exists();
    case ID_IMAGE_RESIZE:
    case ID_IMAGE_SCALE:
    case ID_IMAGE_SHIFT:
    case ID_IMAGE_TURN_LEFT:
    case ID_IMAGE_TURN_RIGHT:
    case ID_IMAGE_TURN_HALF:
    case ID_IMAGE_SHIFT_HALF:
        return true;
    case ID_EDIT_PASTE:
        return shared_.clipboard.has_value();
    case ID_ZOOM_IN:
        return zoom < kZooms.back();
    case ID_ZOOM_OUT:
        return zoom > kZooms.front();
    default:
        return std::nullopt;
    }
}

void ViewModel::run(CommandId id) {
    const std::optional<Tool> tool = toolOf(id);
    const bool draws = tool && !keepsSelection(*tool);
    const bool turns = id >= ID_IMAGE_TURN_LEFT && id <= ID_IMAGE_TURN_HALF;
    const bool ofSelected = id == ID_CANCEL_SELECTION || id == ID_FLIP_X || id == ID_FLIP_Y ||
                            id == ID_EDIT_CUT || id == ID_IMAGE_CROP || turns;
    if (id == ID_EDIT_SELECT_ALL || id == ID_EDIT_PASTE)
        cancel();
    if (tool) {
        shared_.tool = *tool;
        if (keepsSelection(*tool) && !dragging_)
            atPress_ = *tool;
    }
    if (selecting() && (draws || ofSelected))
        cancel();
    if (id == ID_EDIT_SELECT_ALL || id == ID_CANCEL_SELECTION || draws)
        commit();
    if (id == ID_EDIT_SELECT_ALL) {
        shared_.tool = atPress_ = Tool::Select;
        const Rect whole = document.image().whole();
        setSelection({0, 0}, {whole.right, whole.bottom});
    }
    if (id == ID_TOOL_SPUIT)
        spuit = !spuit;
    if (id == ID_VIEW_GRID)
        grid = !grid;
    if (id == ID_VIEW_REPEAT) {
        cancelOwn();
        repeated = !repeated;
    }
    PlainPen& pen = shared_.pen;
    if (id == ID_BRUSH_SMALLER || id == ID_BRUSH_LARGER)
        pen.size += id == ID_BRUSH_LARGER ? 1 : -1;
    if (id == ID_BRUSH_SQUARE || id == ID_BRUSH_ROUND)
        pen.round = id == ID_BRUSH_ROUND;
    if (id == ID_MIRROR_ACROSS)
        pen.across = !pen.across;
    if (id == ID_MIRROR_DOWN)
        pen.down = !pen.down;
    if (id == ID_DRAW_WRAP)
        pen.wrap = !pen.wrap;
    if (id == ID_ZOOM_IN || id == ID_ZOOM_OUT)
        zoomStep(id == ID_ZOOM_OUT);
    if (id >= ID_ZOOM_X1 && id <= ID_ZOOM_X16)
        zoom = static_cast<int>(id - ID_ZOOM_BASE);
    if (exists() && (id == ID_FLIP_X || id == ID_FLIP_Y))
        document.edit([&](PlainImage& image) { image.flip(*selection, id == ID_FLIP_X, id == ID_FLIP_Y); });
    if (exists() && (id == ID_EDIT_COPY || id == ID_EDIT_CUT)) {
        shared_.clipboard = document.image().part(*selection);
        if (id == ID_EDIT_CUT)
            clearSelected(false);
    }
    if (turns)
        turn(id);
    if (exists() && id == ID_IMAGE_CROP)
        crop();
    if (id == ID_IMAGE_SHIFT_HALF)
        replaceImage([](const PlainImage& image) {
            return image.shifted({image.width / 2, image.height / 2});
        });
    if (id == ID_EDIT_PASTE)
        letFloat(*shared_.clipboard);
}

} // namespace dyeworks
