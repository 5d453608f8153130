#include "ViewTestWindow.h"

#include <gmock/gmock.h>

#include <utility>

namespace dyeworks {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Keys kShift{true, false, false};
constexpr Keys kControl{false, true, false};
constexpr Keys kAlt{false, false, true};

constexpr std::pair<CommandId, Tool> kTools[] = {{ID_TOOL_PIXEL, Tool::Pixel},
                                                 {ID_TOOL_PEN, Tool::Pen},
                                                 {ID_TOOL_LINE, Tool::Line},
                                                 {ID_TOOL_BOX, Tool::Box},
                                                 {ID_TOOL_BOX_FILL, Tool::BoxFill},
                                                 {ID_TOOL_CIRCLE, Tool::Circle},
                                                 {ID_TOOL_CIRCLE_FILL, Tool::CircleFill},
                                                 {ID_TOOL_PAINT, Tool::Paint}};

class ToolFixture : public ViewFixture {
protected:
    ~ToolFixture() override { setCurrentTool(Tool::Pen); }

    void drag(Tool tool, const std::vector<Point>& path, Keys keys = {}) {
        for (const auto& [id, named] : kTools) {
            if (named == tool)
                view.runCommand(id);
        }
        press(path.front(), keys);
        for (std::size_t i = 1; i < path.size(); ++i)
            move(path[i], keys);
        release(path.back(), keys);
    }

    /// The image after `draw` on an empty one.
    template <typename Draw>
    std::vector<std::uint8_t> expected(Draw draw) const {
        TextureCanvas canvas;
        EXPECT_TRUE(canvas.CreateLike(document.canvas()));
        draw(canvas);
        const auto rows = canvas.pixelRows();
        return {rows.begin(), rows.end()};
    }
};

TEST_F(ToolFixture, InterruptedDragLeavesTheImageAsItWas) {
    document.Box(nullptr, {1, 1, 9, 9}, 3);
    ASSERT_TRUE((document.setPathName("c:\\a.tmf"), document.save()));
    const auto before = pixels();
    for (const auto& [id, tool] : kTools) {
        if (tool == Tool::Paint)
            continue;
        for (const bool escape : {true, false}) {
            SCOPED_TRACE(id);
            setCurrentTool(tool);
            press({2, 2});
            move({7, 4});
            move({4, 10});
            EXPECT_TRUE(window.captured);
            EXPECT_NE(pixels(), before);
            if (escape)
                view.KeyPressed({Key::Escape});
            else
                view.PointerCaptureLost();
            EXPECT_EQ(pixels(), before);
            release({12, 11});
            EXPECT_EQ(pixels(), before);
            EXPECT_EQ(document.history().position(), 1);
            // A pixel is a whole edit, so the way back from it counts as a change.
            EXPECT_EQ(document.title(), tool == Tool::Pixel ? "a.tmf * " : "a.tmf");
            ASSERT_TRUE(document.save());
        }
    }
}

TEST_F(ToolFixture, AltCentresTheShapeAndTheAnchorFollowsTheRelease) {
    setCurrentTool(Tool::Line);
    press({8, 6}, kAlt);
    move({10, 7});
    EXPECT_EQ(pixels(), expected([](TextureCanvas& c) { c.DrawLine(6, 5, 10, 7, 9); }));
    release({12, 8});
    EXPECT_EQ(pixels(), expected([](TextureCanvas& c) { c.DrawLine(4, 4, 12, 8, 9); }));
}

TEST_F(ToolFixture, LineEndsAtTheReleaseAndShapesAtTheLastMove) {
    for (const Tool tool : {Tool::Line, Tool::Box}) {
        setCurrentTool(tool);
        press({1, 1});
        move({6, 6});
        release({9, 8});
        EXPECT_EQ(pixels(), expected([&](TextureCanvas& c) {
                      if (tool == Tool::Line)
                          c.DrawLine(1, 1, 9, 8, 9);
                      else
                          c.DrawBox(1, 1, 6, 6, 9);
                  }));
        document.Undo();
    }
}

TEST_F(ToolFixture, ShapeDragRepaintsWhatItChangesAndNothingElse) {
    document.canvas().Create(2000, 2000, 1, 8);
    setCurrentTool(Tool::Box);
    press({10, 10});
    move({14, 13});
    window.invalidated.clear();
    const int full = window.fullRepaints;
    move({12, 16});
    const Rect before{10, 10, 15, 14};
    const Rect after{10, 10, 13, 17};
    EXPECT_THAT(window.invalidated, AllOf(Contains(before), Contains(after), Each(AnyOf(before, after))));
    EXPECT_EQ(window.fullRepaints, full);
    release({12, 16});
}

TEST_F(ToolFixture, ShapesAskForTheirFrameWhileTheyAreDragged) {
    openPalette();
    document.Attach();
    for (const Tool tool : {Tool::Line, Tool::Box, Tool::CircleFill}) {
        const std::uint32_t shape = tool == Tool::Line ? 0 : ~0U;
        setCurrentTool(tool);
        static_cast<void>(view.BeginPaint());
        press({2, 2});
        EXPECT_EQ(view.BeginPaint(), 0x80 & shape);
        move({6, 7});
        EXPECT_EQ(view.BeginPaint(), 0xc0 & shape);
        EXPECT_EQ(view.BeginPaint(), 0U);
        release({6, 7});
        EXPECT_EQ(view.BeginPaint(), 0x40 & shape);
    }
}

TEST_F(ToolFixture, PenStrokeReachesOtherViewsAtItsEnd) {
    FakeViewWindow otherWindow;
    CDyeworksView other(document, otherWindow);
    other.InitialUpdate();
    drag(Tool::Pen, {{2, 3}, {6, 3}, {6, 8}});
    EXPECT_THAT(otherWindow.invalidated, ElementsAre(Rect{2, 3, 7, 9}));
}

TEST_F(ToolFixture, RefreshedColoursDoNotLeaveRubberBandsBehind) {
    openPalette();
    document.Attach();
    setCurrentTool(Tool::Line);
    press({1, 1});
    move({9, 9});
    document.RefreshPalette();
    move({9, 2});
    EXPECT_EQ(pixels(), expected([](TextureCanvas& c) { c.DrawLine(1, 1, 9, 2, 9); }));
}

TEST_F(ToolFixture, OtherChangesEndADragFirst) {
    document.Pixel(nullptr, 0, 0, 5);
    document.setPathName("c:\\a.tmf");
    const auto before = pixels();
    for (const bool save : {true, false}) {
        setCurrentTool(Tool::Line);
        press({1, 1});
        move({9, 9});
        if (save)
            ASSERT_TRUE(document.save());
        else
            view.runCommand(ID_EDIT_UNDO);
        EXPECT_EQ(pixels(), save ? before : expected([](TextureCanvas&) {}));
        EXPECT_FALSE(view.dragging());
    }
}

TEST_F(ToolFixture, ControlPicksAndDrawsNothing) {
    document.Pixel(nullptr, 3, 4, 6);
    const auto before = pixels();
    host.firstEntry = 32;
    drag(Tool::Pixel, {{3, 4}}, kControl);
    EXPECT_EQ(view.drawingValue(), 6U);
    EXPECT_EQ(host.cell, 38);
    press({16, 4}, kControl); // beside the image
    EXPECT_EQ(host.cell, 38);
    EXPECT_EQ(pixels(), before);
}

TEST_F(ToolFixture, DrawingValueIsTheCellWithinItsBankAndTheDepth) {
    struct Case {
        std::int32_t cell, first;
        std::uint32_t value;
    };
    for (const Case& c : {Case{5, 0, 5}, Case{85, 80, 5}, Case{200, 0, 8}, Case{-1, 80, 8}}) {
        host.cell = c.cell;
        host.firstEntry = c.first;
        drag(Tool::Pixel, {{1, 1}});
        EXPECT_EQ(view.drawingValue(), c.value);
        EXPECT_EQ(document.canvas().GetPixel(1, 1), c.value);
    }
}

TEST_F(ToolFixture, ShiftDragScrollsWithinTheContent) {
    view.runCommand(ID_ZOOM_X4); // 64 by 48 in 40 by 30
    const auto before = pixels();
    host.panes.clear();
    press({30, 20}, kShift);
    move({25, 22}, kShift);
    move({24, 22}, kShift);
    EXPECT_EQ(window.scroll, (Point{6, 0}));
    move({-40, 0});
    EXPECT_EQ(window.scroll, (Point{24, 18}));
    EXPECT_THAT(host.panes, IsEmpty());
    release({-40, 0});
    EXPECT_FALSE(window.captured);
    EXPECT_EQ(pixels(), before);

    move({1, 2});
    EXPECT_EQ(host.panes[1], "(6, 5) 400%");
    press({0, 0}, kShift);
    move({9, 9});
    view.KeyPressed({Key::Escape});
    EXPECT_EQ(window.scroll, (Point{24, 18}));
}

TEST_F(ToolFixture, CursorIsAHandWhileShiftIsHeldAndNothingScrolls) {
    view.KeyPressed({Key::Shift, 1, true});
    EXPECT_EQ(window.cursor, CursorShape::OpenHand);
    press({3, 3}, kShift);
    EXPECT_EQ(window.cursor, CursorShape::Arrow);
    release({3, 3}, kShift);
    EXPECT_EQ(window.cursor, CursorShape::OpenHand);
    view.KeyReleased({Key::Shift, 1, false});
    EXPECT_EQ(window.cursor, CursorShape::Arrow);
}

} // namespace
} // namespace dyeworks
