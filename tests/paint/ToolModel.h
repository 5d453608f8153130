#pragma once

#include "WholeImages.h"
#include "framework/CommandIds.h"
#include "paint/CDyeworksView.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

struct ToolCommand {
    const char* name;
    Tool tool;
    CommandId command;
};

inline constexpr ToolCommand kToolCommands[] = {{"Select", Tool::Select, ID_TOOL_SELECT},
                                                {"Pixel", Tool::Pixel, ID_TOOL_PIXEL},
                                                {"Pen", Tool::Pen, ID_TOOL_PEN},
                                                {"Line", Tool::Line, ID_TOOL_LINE},
                                                {"Box", Tool::Box, ID_TOOL_BOX},
                                                {"BoxFill", Tool::BoxFill, ID_TOOL_BOX_FILL},
                                                {"Circle", Tool::Circle, ID_TOOL_CIRCLE},
                                                {"CircleFill", Tool::CircleFill, ID_TOOL_CIRCLE_FILL},
                                                {"Paint", Tool::Paint, ID_TOOL_PAINT},
                                                {"ZoomLens", Tool::ZoomLens, ID_TOOL_ZOOM_LENS},
                                                {"Replacer", Tool::Replacer, ID_TOOL_REPLACER}};

/// Second description of what pointer, keys and commands do in a view, with no thought for repaints. Of the
/// view it uses nothing but the canvas's primitives and the tracker's handles.
struct ToolModel : WholeImages {
    using Menu = CDyeworksView::ContextMenu;

    // What can be seen.
    Tool tool = Tool::Select;
    Tool atPress = Tool::Select;
    bool spuit = false;
    bool dragging = false;
    Rect selection;
    Image piece;
    std::uint32_t value = 15;
    std::int32_t cell = 0;
    std::int32_t firstEntry = 0;
    std::int32_t zoom = 1;
    Point scroll;
    Size client;
    bool antsPhase = false;
    std::string position; ///< What the status line says of the pointer.
    Point pointed;

    // Of the drag, and to take it back.
    bool scrolling = false;
    bool centred = false;
    bool cut = false;
    bool hasStep = false;
    TrackerHit hit = TrackerHit::None;
    Point anchor, current, previous, start, scrollBefore;
    Image snapshot;
    Rect selectionBefore;
    Image clipboard;

    static Point plus(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    static Point minus(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    static Rect between(Point a, Point b) { return Rect{a.x, a.y, b.x, b.y}.normalised(); }
    [[nodiscard]] Point texel(Point p) const { return {(p.x + scroll.x) / zoom, (p.y + scroll.y) / zoom}; }
    [[nodiscard]] Rect whole() const { return {0, 0, image->width() - 1, image->height() - 1}; }
    static bool keeps(Tool t) { return t == Tool::Select || t == Tool::ZoomLens || t == Tool::Replacer; }
    static bool zooms(Key k) {
        return k == Key::I || k == Key::O || k == Key::Numpad9 || k == Key::NumpadDivide;
    }
    [[nodiscard]] bool selecting() const { return dragging && !scrolling && atPress == Tool::Select; }
    [[nodiscard]] bool exists() const {
        return keeps(atPress) && selection.right > selection.left && selection.bottom > selection.top;
    }
    [[nodiscard]] Menu menu() const {
        return dragging                 ? Menu::None
               : tool == Tool::Select   ? Menu::Selection
               : tool == Tool::ZoomLens ? Menu::Zoom
               : tool == Tool::Replacer ? Menu::ToolsToReplace
               : spuit                  ? Menu::None
                                        : Menu::Tools;
    }

    bool clearSelected() {
        return edit([this](TextureCanvas& c) {
            c.FillBox(selection.left, selection.top, selection.right, selection.bottom, 0);
        });
    }
    void commit() {
        if (piece != nullptr)
            edit([this](TextureCanvas& c) {
                c.StretchPaste(*piece, selection.left, selection.top, selection.right + 1,
                               selection.bottom + 1);
            });
        piece.reset();
        selection = {};
    }
    [[nodiscard]] Image selected() const {
        auto part = std::make_unique<TextureCanvas>();
        if (part->Create(selection.right - selection.left + 1, selection.bottom - selection.top + 1, 1,
                         image->bitsPerPixel())) {
            std::ranges::copy(image->colourTable(), part->colourTable().begin());
            for (std::int32_t y = 0; y < part->height(); ++y) {
                for (std::int32_t x = 0; x < part->width(); ++x)
                    part->SetPixel(x, y, image->GetPixel(selection.left + x, selection.top + y));
            }
        }
        return part;
    }
    void letFloat(Image newPiece) {
        if (piece != nullptr)
            commit();
        piece = std::move(newPiece);
        tool = atPress = Tool::Select;
        anchor = {std::max(std::min(anchor.x, image->width() - piece->width()), 0),
                  std::max(std::min(anchor.y, image->height() - piece->height()), 0)};
        current = plus(anchor, {piece->width() - 1, piece->height() - 1});
        selection = between(anchor, current);
    }

    void pick(Point p) {
        const Point at = texel(p);
        if (at.x < 0 || at.y < 0 || at.x >= image->width() || at.y >= image->height())
            return;
        value = image->GetPixel(at.x, at.y);
        cell = firstEntry + static_cast<std::int32_t>(value);
    }
    void rightPress(Point p) {
        if (!dragging && spuit && tool != Tool::Select && tool != Tool::ZoomLens)
            pick(p);
    }
    void press(const PointerEvent& e) {
        if (dragging)
            return;
        if (e.shift) {
            dragging = scrolling = true;
            previous = e.position;
            scrollBefore = anchor = scroll;
            return;
        }
        atPress = tool;
        if (e.control && tool != Tool::Select && tool != Tool::ZoomLens)
            return pick(e.position);
        if (cell >= 0)
            value = static_cast<std::uint32_t>(cell - firstEntry) & ((1U << image->bitsPerPixel()) - 1);
        start = texel(e.position);
        dragging = tool != Tool::Paint && tool != Tool::Replacer;
        if (tool == Tool::Select)
            grab(e.position);
        if (tool == Tool::Replacer)
            edit([this](TextureCanvas& c) {
                c.ReplaceColor(selection == Rect{} ? whole() : selection, start.x, start.y, value);
            });
        if (keeps(tool))
            return;
        commit();
        if (tool == Tool::Paint) {
            edit([this](TextureCanvas& c) { c.FloodFill(start.x, start.y, value); });
            return;
        }
        anchor = current = previous = start;
        centred = e.alt;
        snapshot = image->Clone();
        if (tool == Tool::Pixel)
            hasStep = edit([this](TextureCanvas& c) { c.SetPixel(start.x, start.y, value); });
        else if (tool == Tool::Pen)
            image->SetPixel(start.x, start.y, value);
        else
            drawShape();
    }
    void grab(Point p) {
        const auto& [l, t, r, b] = selection;
        const Point at = plus(p, scroll);
        const Rect frame{l * zoom + 1, t * zoom + 1, r * zoom + zoom - 1, b * zoom + zoom - 1};
        hit = selection == Rect{} ? TrackerHit::None : SelectionTracker(frame, 10).hitTest(at);
        cut = hasStep = false;
        selectionBefore = hit == TrackerHit::None && piece != nullptr ? Rect{} : selection;
        const bool left =
            hit == TrackerHit::TopLeft || hit == TrackerHit::BottomLeft || hit == TrackerHit::Left;
        const bool top = hit == TrackerHit::TopLeft || hit == TrackerHit::TopRight || hit == TrackerHit::Top;
        anchor = {left ? r : l, top ? b : t};
        current = {left ? l : r, top ? t : b};
        if (hit != TrackerHit::None)
            return;
        commit();
        anchor = current = start;
        selection = between(start, start);
    }

    void scrollTo(Point wanted) {
        scroll = {std::max(std::min(wanted.x, image->width() * zoom - client.width), 0),
                  std::max(std::min(wanted.y, image->height() * zoom - client.height), 0)};
    }
    void tellPosition() {
        position = "(" + std::to_string(pointed.x) + ", " + std::to_string(pointed.y) + ") " +
                   std::to_string(zoom) + "00%";
    }
    void zoomed(std::int32_t newZoom, Point newScroll, Point pointer) {
        scroll = newScroll;
        if (std::exchange(zoom, newZoom) == newZoom)
            return;
        if (pointer.x >= 0 && pointer.y >= 0 && pointer.x < client.width && pointer.y < client.height)
            pointed = texel(pointer);
        tellPosition();
    }
    void move(const PointerEvent& e) {
        if (scrolling) {
            scrollTo(plus(scroll, minus(previous, e.position)));
            previous = e.position;
            return;
        }
        const Point at = pointed = texel(e.position);
        tellPosition();
        if (!dragging || atPress == Tool::Pixel || atPress == Tool::ZoomLens)
            return;
        if (atPress == Tool::Select) {
            if (current != at)
                select(at, e.control);
        } else if (atPress == Tool::Pen) {
            if (anchor != at)
                image->DrawLine(anchor.x, anchor.y, at.x, at.y, value);
            anchor = at;
        } else if (previous != at) {
            follow(at);
            image->CopyFrom(*snapshot);
            drawShape();
            previous = at;
        }
    }
    void select(Point at, bool control) {
        if (hit == TrackerHit::Inside) {
            if (piece == nullptr) {
                Image copy = selected();
                cut = true;
                hasStep = !control && clearSelected();
                letFloat(std::move(copy));
            }
            const Point way = minus(at, std::exchange(start, at));
            anchor = plus(anchor, way);
            current = plus(current, way);
        } else {
            if (hit != TrackerHit::Top && hit != TrackerHit::Bottom)
                current.x = at.x;
            if (hit != TrackerHit::Left && hit != TrackerHit::Right)
                current.y = at.y;
        }
        selection = between(anchor, current);
    }
    void follow(Point at) {
        current = at;
        if (centred)
            anchor = minus(start, minus(at, start));
    }
    void drawShape() {
        TextureCanvas& c = *image;
        if (atPress == Tool::Line)
            c.DrawLine(anchor.x, anchor.y, current.x, current.y, value);
        else if (atPress == Tool::Box)
            c.DrawBox(anchor.x, anchor.y, current.x, current.y, value);
        else if (atPress == Tool::BoxFill)
            c.FillBox(anchor.x, anchor.y, current.x, current.y, value);
        else if (atPress == Tool::Circle)
            c.DrawEllipse(anchor.x, anchor.y, current.x, current.y, value);
        else
            c.FillEllipse(anchor.x, anchor.y, current.x, current.y, value);
    }
    /// True when the view is to zoom there.
    bool release(const PointerEvent& e) {
        if (!std::exchange(dragging, false) || std::exchange(scrolling, false))
            return false;
        if (atPress == Tool::ZoomLens) {
            atPress = tool;
            return true;
        }
        if (atPress == Tool::Select || atPress == Tool::Pixel)
            return false;
        if (atPress != Tool::Pen) {
            if (atPress == Tool::Line)
                follow(texel(e.position));
            image->CopyFrom(*snapshot);
            drawShape();
        }
        record(std::move(snapshot));
        return false;
    }
    /// True when that took back texels.
    bool cancel() {
        if (!std::exchange(dragging, false))
            return false;
        if (std::exchange(scrolling, false)) {
            scrollTo(scrollBefore);
            return false;
        }
        if (atPress == Tool::Select) {
            if (cut)
                piece.reset();
            selection = selectionBefore;
        }
        const bool open = atPress != Tool::Select && atPress != Tool::Pixel && atPress != Tool::ZoomLens;
        const bool recorded = !open && atPress != Tool::ZoomLens && hasStep;
        if (open)
            image->CopyFrom(*snapshot);
        else if (recorded)
            undo();
        return open || recorded;
    }

    /// False when the key does nothing; a key that zooms is left to the view.
    bool keyDown(const KeyEvent& e) {
        if (e.key == Key::Escape && dragging) {
            cancel();
            return true;
        }
        if ((e.key == Key::Escape || e.key == Key::Enter) && (exists() || piece != nullptr)) {
            if (selecting())
                dragging = false;
            if (e.key == Key::Escape)
                piece.reset();
            commit();
            return true;
        }
        if (e.repeatCount != 1)
            return false;
        const Point way{e.key == Key::Left    ? -1
                        : e.key == Key::Right ? 1
                                              : 0,
                        e.key == Key::Up     ? -1
                        : e.key == Key::Down ? 1
                                             : 0};
        const bool moves = exists() && way != Point{};
        if (moves)
            selection = {selection.left + (e.shift ? 0 : way.x), selection.top + (e.shift ? 0 : way.y),
                         selection.right + way.x, selection.bottom + way.y};
        return zooms(e.key) || moves;
    }

    void setImage(const TextureCanvas& other) {
        cancel();
        edit([&](TextureCanvas& c) { c.CopyFrom(other); });
    }
    void save() {
        cancel();
        if (piece != nullptr)
            commit();
        modified = false;
    }

    void command(CommandId id) {
        bool tookBack = false;
        if (id == ID_EDIT_SELECT_ALL || id == ID_EDIT_PASTE || id == ID_EDIT_UNDO || id == ID_EDIT_REDO)
            tookBack = cancel();
        for (const ToolCommand& choice : kToolCommands) {
            if (choice.command == id) {
                tool = choice.tool;
                if (keeps(tool) && !dragging)
                    atPress = tool;
            }
        }
        const bool choosesPen = id != ID_TOOL_SPUIT && !keeps(tool) &&
                                std::ranges::any_of(kToolCommands, [id](auto& c) { return c.command == id; });
        const bool changesSelected =
            id == ID_CANCEL_SELECTION || id == ID_FLIP_X || id == ID_FLIP_Y || id == ID_EDIT_CUT;
        if (selecting() && (choosesPen || changesSelected))
            cancel();
        if (id == ID_EDIT_SELECT_ALL || id == ID_CANCEL_SELECTION || choosesPen)
            commit();
        if (id == ID_TOOL_SPUIT)
            spuit = !spuit;
        if (id == ID_EDIT_SELECT_ALL) {
            tool = atPress = Tool::Select;
            selection = whole();
        }
        if (exists() && (id == ID_FLIP_X || id == ID_FLIP_Y))
            edit([&](TextureCanvas& c) {
                c.Flip(selection.left, selection.top, selection.right, selection.bottom,
                       id == ID_FLIP_X ? 1 : 2);
            });
        if (exists() && (id == ID_EDIT_COPY || id == ID_EDIT_CUT)) {
            clipboard = selected();
            if (id == ID_EDIT_CUT)
                clearSelected();
        }
        if (id == ID_EDIT_PASTE && clipboard != nullptr)
            letFloat(clipboard->Clone());
        if (id == ID_EDIT_UNDO && !tookBack)
            undo();
        if (id == ID_EDIT_REDO)
            redo();
    }
};

} // namespace dyeworks
