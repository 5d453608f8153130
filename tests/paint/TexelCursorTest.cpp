#include "CanvasTesting.h"
#include "ViewTestWindow.h"

#include <gmock/gmock.h>

#include <array>

namespace dyeworks {
namespace {

constexpr std::int32_t kWidth = 26;
constexpr std::int32_t kHeight = 21;

/// An image in a view of its own.
struct Side {
    Side() {
        document.canvas().Create(kWidth, kHeight, 1, 4);
        window.view = &view;
        EXPECT_TRUE(host.palettes.newPalette(16, ColourType::Rgba, 1));
        document.Attach();
        view.InitialUpdate();
    }
    ~Side() { window.view = nullptr; }

    FakeImageHost host;
    CDyeworksDoc document{host};
    PaintingWindow window;
    CDyeworksView view{document, window};
};

/// The same work done by the keys on one side and by the pointer on the other.
class TexelCursors : public testing::TestWithParam<unsigned> {
protected:
    TexelCursors() {
        for (Side* side : {&keys, &pointer})
            side->document.canvas().FillEllipse(3, 3, 19, 15, 6);
        both([](CDyeworksView& view) { view.runCommand(ID_TOOL_PEN); });
    }
    ~TexelCursors() override { setCurrentTool(Tool::Select); }

    template <typename Do>
    void both(Do work) {
        work(keys.view);
        work(pointer.view);
    }
    bool key(Key pressed, Keys held = {}) {
        return keys.view.KeyPressed({pressed, 1, held.shift, held.control, held.alt, false});
    }
    PointerEvent at(Point texel, PointerButton button, Keys held) {
        const std::int32_t zoom = pointer.view.zoom();
        const Point scroll = pointer.window.scroll;
        const Point corner{texel.x * zoom - scroll.x, texel.y * zoom - scroll.y};
        Point point{corner.x + zoom / 2, corner.y + zoom / 2};
        // Of what the texel has of the selection's frame, the first handle.
        for (std::int32_t i = 0; currentTool() == Tool::Select && !down && i < zoom * zoom; ++i) {
            const Point other{corner.x + i % zoom, corner.y + i / zoom};
            const auto order = [&](Point p) {
                return static_cast<unsigned>(pointer.view.selection().hit(p));
            };
            if (order(other) < order(point))
                point = other;
        }
        return {point, false, held.control, held.shift, button};
    }
    void walk(Key pressed, Keys held) {
        const bool arrow = pressed <= Key::Down;
        if (arrow && keys.view.selection().exists() && !down && !held.alt) {
            both([&](CDyeworksView& view) {
                view.KeyPressed({pressed, 1, held.shift, held.control, false, false});
            });
            return;
        }
        const std::int32_t step = held.control ? 8 : 1;
        const Point before = place;
        const std::array<Point, 8> target{{{place.x - step, place.y},
                                           {place.x, place.y - step},
                                           {place.x + step, place.y},
                                           {place.x, place.y + step},
                                           {0, place.y},
                                           {kWidth, place.y},
                                           {place.x, 0},
                                           {place.x, kHeight}}};
        const Point wanted = target[static_cast<std::size_t>(pressed) - static_cast<std::size_t>(Key::Left)];
        place = {std::clamp(wanted.x, 0, kWidth - 1), std::clamp(wanted.y, 0, kHeight - 1)};
        dragged = dragged || place != before;
        EXPECT_TRUE(key(pressed, held));
        pointer.view.PointerMoved(at(place, PointerButton::None, atPress));
        EXPECT_EQ(keys.host.panes[1], pointer.host.panes[1]);
    }
    void letGo() {
        if (std::exchange(down, false))
            pointer.view.PointerReleased(at(place, PointerButton::Left, atPress));
    }
    void space(Keys held) {
        key(Key::Space, held);
        if (down)
            return letGo();
        atPress = held;
        dragged = false;
        const Tool tool = currentTool();
        pointer.view.PointerPressed(at(place, PointerButton::Left, held));
        down = pointer.view.dragging();
        if (tool == Tool::Pixel || tool == Tool::ZoomLens)
            letGo();
    }
    void spaceUp() {
        keys.view.KeyReleased({Key::Space, 1, false, false, false, false});
        if (dragged)
            letGo();
    }
    void command(CommandId id) {
        both([id](CDyeworksView& view) { view.runCommand(id); });
        down = pointer.view.dragging();
    }
    void play(Random& random) {
        constexpr CommandId kTools[] = {ID_TOOL_SELECT,      ID_TOOL_PIXEL,     ID_TOOL_PEN,
                                        ID_TOOL_LINE,        ID_TOOL_BOX,       ID_TOOL_CIRCLE,
                                        ID_TOOL_CIRCLE_FILL, ID_TOOL_PAINT,     ID_TOOL_REPLACER,
                                        ID_TOOL_SELECT,      ID_TOOL_ZOOM_LENS, ID_TOOL_BOX_FILL};
        const Keys held{random.once(6), random.once(5), random.once(2)};
        const std::int32_t dice = random.between(0, 99);
        if (dice < 55) {
            walk(static_cast<Key>(static_cast<int>(Key::Left) + random.between(0, random.once(5) ? 7 : 3)),
                 held);
        } else if (dice < 75) {
            if (std::exchange(holdsSpace, !holdsSpace))
                spaceUp();
            else
                space({held.shift, held.control, false});
        } else if (dice < 78 && holdsSpace) {
            EXPECT_TRUE(keys.view.KeyPressed({Key::Space, 1, false, false, false, true}));
        } else if (dice < 81) {
            key(Key::Enter);
            if (down)
                letGo();
            else
                pointer.view.KeyPressed({Key::Enter});
        } else if (dice < 83) {
            both([](CDyeworksView& view) { view.KeyPressed({Key::Escape}); });
            down = false;
        } else if (dice < 85) {
            command(random.once(3) ? ID_TOOL_SPUIT : random.once(2) ? ID_EDIT_UNDO : ID_EDIT_REDO);
        } else if (dice < 87) {
            keys.view.ContextMenuKeyPressed();
            pointer.view.PointerPressed(at(place, PointerButton::Right, {}));
        } else if (dice < 90) {
            keys.host.cell = pointer.host.cell = random.between(0, 15);
        } else if (dice < 91) {
            const std::int32_t zoom = random.between(1, 16);
            both([zoom](CDyeworksView& view) { view.SetZoom(zoom); });
        } else {
            command(kTools[random.between(0, 11)]);
        }
    }
    static auto stateOf(Side& side) {
        const auto& selection = side.view.selection();
        return std::tuple(rowsOf(side.document.canvas()), side.document.edits().steps->count(),
                          side.document.edits().position(), selection.texels().value_or(Rect{}),
                          selection.hasFloatingPiece(), side.view.dragging(), side.view.drawingValue(),
                          side.host.cell, side.view.zoom(), side.document.hasUnsavedChanges());
    }

    FakePlatform platform;
    Side keys;
    Side pointer;
    Point place{kWidth / 2, kHeight / 2}; ///< Of the cursor, as it should be.
    Keys atPress;
    bool down = false;
    bool dragged = false;
    bool holdsSpace = false;
};

TEST_P(TexelCursors, DoWhatThePointerDoes) {
    Random random(GetParam());
    for (const Key corner : {Key::Home, Key::PageUp})
        walk(corner, {});
    for (int turn = 0; turn < 1500; ++turn) {
        play(random);
        ASSERT_EQ(stateOf(keys), stateOf(pointer)) << turn;
        keys.window.repaintNow();
        // The frame of a shape shows in the paints of its drag alone.
        ASSERT_TRUE(keys.view.dragging() || keys.window.shown == keys.window.painted(0)) << turn;
    }
    for (const CommandId way : {ID_EDIT_UNDO, ID_EDIT_REDO}) {
        while (dyeworks::stateOf(keys.view, way).enabled) {
            command(way);
            ASSERT_EQ(stateOf(keys), stateOf(pointer));
        }
    }
    EXPECT_GT(keys.document.edits().steps->count(), 20U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, TexelCursors, testing::Range(1U, 9U));

using TexelCursorPlace = TexelCursors;

TEST_F(TexelCursorPlace, BeginsAtThePointerAndGoesWithItsFirstMove) {
    EXPECT_TRUE(key(Key::Right));
    EXPECT_EQ(keys.host.panes[1], "(14, 10) 100%") << "or else in the middle";
    keys.window.pointer = {7, 9};
    keys.view.PointerMoved({{7, 9}});
    EXPECT_EQ(keys.view.toldTexel(), "");
    EXPECT_TRUE(key(Key::Right));
    EXPECT_THAT(keys.view.toldTexel(), testing::StartsWith("8, 9: entry 6, red "));
    keys.view.PointerMoved({{7, 9}});
    EXPECT_EQ(keys.host.panes[1], "(8, 9) 100%") << "the pointer rests";
    keys.view.PointerMoved({{7, 8}});
    EXPECT_EQ(keys.host.panes[1], "(7, 8) 100%");
    EXPECT_EQ(keys.view.toldTexel(), "");
}

TEST_F(TexelCursorPlace, APressOfThePointerEndsWhatTheKeysDrawAndANudgeDoesNot) {
    keys.view.runCommand(ID_TOOL_LINE);
    keys.host.cell = 3;
    key(Key::Home);
    key(Key::PageUp);
    key(Key::Space);
    key(Key::Right);
    keys.view.PointerMoved({{5, 5}});
    EXPECT_TRUE(keys.view.dragsByKeys());
    keys.view.PointerPressed({{20, 20}, false, false, false, PointerButton::Left});
    keys.view.PointerReleased({{20, 20}, false, false, false, PointerButton::Left});
    EXPECT_EQ(rowsOf(keys.document.canvas())[0].substr(0, 4), "33..");
    EXPECT_EQ(keys.document.edits().steps->count(), 2U);
}

TEST_F(TexelCursorPlace, IsInSightOnAnyColourAtAnyZoomAndEdge) {
    for (const std::int32_t zoom : {1, 2, 3, 4, 8, 16}) {
        keys.view.SetZoom(zoom);
        for (const std::uint32_t value : {0U, 7U, 8U, 15U}) {
            keys.document.canvas().FillBox(0, 0, kWidth - 1, kHeight - 1, value);
            for (const Key edge : {Key::Home, Key::PageUp, Key::End, Key::PageDown}) {
                const auto look = keys.window.painted(0);
                key(edge);
                const auto pixels = keys.window.drawn(
                    [&](Surface& surface, const Rect&) { keys.view.PaintTexelCursor(surface); });
                const auto count = [&](std::uint32_t colour) { return std::ranges::count(pixels, colour); };
                EXPECT_GE(count(0xff000000), 12) << zoom;
                EXPECT_GE(count(0xffffffff), 12) << zoom;
                EXPECT_NE(look, keys.window.painted(0));
            }
        }
    }
}

} // namespace
} // namespace dyeworks
