#include "ViewTestWindow.h"

#include <utility>

namespace dyeworks {
namespace {

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

TEST_F(ToolFixture, WithAltAShapeGrowsFromItsCentreAndIsOneStep) {
    constexpr Keys kAlt{false, false, true};
    for (const auto& [tool, draw] : {std::pair<Tool, void (*)(TextureCanvas&)>{
                                         Tool::Line, [](TextureCanvas& c) { c.DrawLine(4, 3, 10, 7, 9); }},
                                     {Tool::BoxFill, [](TextureCanvas& c) { c.FillBox(4, 3, 10, 7, 9); }}}) {
        setCurrentTool(tool);
        press({7, 5}, kAlt);
        move({9, 11}, kAlt);
        move({10, 7}, kAlt);
        EXPECT_EQ(pixels(), expected(draw));
        release({10, 7}, kAlt);
        EXPECT_EQ(pixels(), expected(draw));
        document.Undo();
        EXPECT_FALSE(document.CanUndo());
        EXPECT_EQ(pixels(), expected([](TextureCanvas&) {}));
    }
}

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

} // namespace
} // namespace dyeworks
