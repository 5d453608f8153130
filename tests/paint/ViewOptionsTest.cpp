#include "CanvasTesting.h"
#include "ViewTestWindow.h"
#include "paint/BrushOutline.h"
#include "paint/DrawingOptions.h"

namespace dyeworks {
namespace {

/// A view in a window that shows what it paints, of an image with a palette; the window is larger than the
/// image's copies at zoom 1 and smaller at 2.
class ViewOptions : public ViewFixture {
protected:
    ViewOptions() {
        openPalette();
        document.Attach();
        for (std::int32_t y = 0; y < 12; ++y)
            document.canvas().DrawLine(0, y, 15, 11 - y, static_cast<std::uint32_t>(y));
        document.canvas().ResetChangedRect();
        shown.resize({60, 40});
        shown.view = &seen;
        seen.InitialUpdate();
        otherShown.view = &other;
        other.InitialUpdate();
        host.cell = 9;
    }
    ~ViewOptions() override {
        setDrawingOptions({});
        setCurrentTool(Tool::Select);
        shown.view = otherShown.view = nullptr;
    }

    void pressIn(Point at) { seen.PointerPressed(event(at, PointerButton::Left, {})); }
    void moveTo(Point at) { seen.PointerMoved(event(shown.pointer = at, PointerButton::None, {})); }
    void releaseAt(Point at) { seen.PointerReleased(event(at, PointerButton::Left, {})); }

    PaintingWindow shown;
    CDyeworksView seen{document, shown};
    PaintingWindow otherShown;
    CDyeworksView other{document, otherShown};
};

TEST_F(ViewOptions, RepeatedShowsNinePlainPicturesAndAllElseInTheMiddle) {
    for (const std::int32_t zoom : {1, 2, 3}) {
        seen.SetZoom(zoom);
        shown.resize({3 * 16 * zoom + 5, 3 * 12 * zoom + 4});
        const auto picture = [this] { return shown.painted(0); };
        const auto width = static_cast<std::size_t>(shown.client.width);
        const std::size_t columns = 16 * static_cast<std::size_t>(zoom);
        const std::size_t rows = 12 * static_cast<std::size_t>(zoom);
        const auto pixel = [&](const auto& of, std::size_t x, std::size_t y) { return of[y * width + x]; };
        seen.ToggleGrid();
        const auto plain = picture();
        seen.ToggleGrid();
        setDrawingOptions({{}, true, true, false});
        seen.runCommand(ID_EDIT_SELECT_ALL);
        const auto full = picture();
        ASSERT_NE(full, plain);
        seen.ToggleRepeat();
        ASSERT_EQ(shown.content, (Size{48 * zoom, 36 * zoom}));
        const auto repeated = picture();
        for (std::size_t y = 0; y < static_cast<std::size_t>(shown.client.height); ++y) {
            for (std::size_t x = 0; x < width; ++x) {
                const bool middle = x / columns == 1 && y / rows == 1;
                const std::uint32_t expected = x >= 3 * columns || y >= 3 * rows
                                                   ? PaintingWindow::kOutside
                                                   : pixel(middle ? full : plain, x % columns, y % rows);
                ASSERT_EQ(pixel(repeated, x, y), expected) << x << ' ' << y << " at zoom " << zoom;
            }
        }
        seen.ToggleRepeat();
        seen.runCommand(ID_CANCEL_SELECTION);
        setDrawingOptions({});
    }
}

TEST_F(ViewOptions, WhatIsDrawnInACopyIsDrawnInTheImage) {
    setCurrentTool(Tool::Pen);
    for (const bool wrap : {false, true}) {
        setDrawingOptions({{}, false, false, wrap});
        for (std::int32_t copy = 0; copy < 9; ++copy) {
            const Point corner{copy % 3 * 16, copy / 3 * 12};
            auto wanted = document.canvas().Clone();
            wanted->DrawLine(10, 3, 18, 9, 9);
            if (wrap)
                wanted->DrawLine(10 - 16, 3, 18 - 16, 9, 9);
            seen.ToggleRepeat();
            pressIn({corner.x + 10, corner.y + 3});
            moveTo({corner.x + 18, corner.y + 9}); // Beyond the copy's right edge.
            EXPECT_EQ(host.panes[1], copy % 3 < 2 ? "(2, 9) 100%" : "(18, 9) 100%") << copy;
            releaseAt({corner.x + 18, corner.y + 9});
            EXPECT_EQ(rowsOf(document.canvas()), rowsOf(*wanted)) << copy;
            document.Undo();
            seen.ToggleRepeat();
        }
    }
}

TEST_F(ViewOptions, PaperShowsNeitherCopiesNorMirrorLines) {
    seen.SetZoom(2);
    const auto before = shown.painted(0);
    setDrawingOptions({{}, true, true, false});
    seen.ToggleRepeat();
    shown.scroll = {};
    ASSERT_NE(shown.painted(0), before);
    EXPECT_EQ(shown.drawn([this](Surface& surface, const Rect& area) {
        seen.PaintPrinted(surface, area, PaintingWindow::kOutside);
    }),
              before);
}

TEST_F(ViewOptions, RepeatKeepsTheImageWhereItIsAndComesBack) {
    document.setPathName("c:\\a.tmf");
    ASSERT_TRUE(document.save());
    seen.SetZoom(8); // 128 by 96 pixels.
    shown.scrollTo({30, 50});
    shown.place = WindowPlacement{};
    seen.runCommand(ID_VIEW_REPEAT);
    EXPECT_EQ(shown.scroll, (Point{30 + 128, 50 + 96}));
    seen.Closing();
    PaintingWindow again;
    CDyeworksView reopened{document, again};
    again.view = &reopened;
    reopened.InitialUpdate();
    EXPECT_TRUE(stateOf(reopened, ID_VIEW_REPEAT).checked);
    again.view = nullptr;
    seen.runCommand(ID_VIEW_REPEAT);
    EXPECT_EQ(shown.scroll, (Point{30, 50}));
}

TEST(DrawingOptions, ReturnFromTheSettings) {
    const FakePlatform fake;
    restoreDrawingOptions();
    EXPECT_TRUE(drawingOptions().plain());
    for (int n = 0; n < 16; ++n) {
        const DrawingOptions wanted{{n + 1, (n & 1) != 0}, (n & 2) != 0, (n & 4) != 0, (n & 8) != 0};
        setDrawingOptions(wanted);
        {
            const FakePlatform other;
            setDrawingOptions({});
        }
        restoreDrawingOptions();
        EXPECT_EQ(drawingOptions(), wanted) << n;
    }
    setDrawingOptions({});
}

TEST(BrushOutline, IsTheRingOfPixelsAroundTheTexels) {
    constexpr std::int32_t kSide = 60;
    constexpr std::uint32_t kGrey = 0xff808080;
    for (int n = 0; n < 2 * 3 * Brush::kMaxSize; ++n) {
        const Brush brush{1 + n / 6, n % 2 == 0};
        const std::int32_t zoom = 1 + n / 2 % 3;
        std::vector<std::uint32_t> seen(kSide * kSide, kGrey), covered(kSide * kSide);
        const auto at = [](std::vector<std::uint32_t> & pixels, std::int32_t x, std::int32_t y) -> auto& {
            return pixels.at(static_cast<std::size_t>(y * kSide + x));
        };
        const Rect clip{3, 0, kSide, kSide};
        drawBrushOutline({seen.data(), kSide, kSide, kSide, 0, 0}, clip, brush, {24, 27}, zoom);
        const BrushSpot spot(brush);
        for (const Rect& box : spot.boxes()) {
            for (std::int32_t y = 27 + box.top * zoom; y < 27 + (box.bottom + 1) * zoom; ++y) {
                for (std::int32_t x = 24 + box.left * zoom; x < 24 + (box.right + 1) * zoom; ++x)
                    at(covered, x, y) = 1;
            }
        }
        Rect area{kSide, kSide, 0, 0};
        for (std::int32_t y = 1; y < kSide - 1; ++y) {
            for (std::int32_t x = 1; x < kSide - 1; ++x) {
                bool ring = false;
                for (std::int32_t i = 0; i < 9; ++i)
                    ring = ring || at(covered, x - 1 + i % 3, y - 1 + i / 3) == 1;
                ring = ring && at(covered, x, y) == 0;
                if (ring)
                    area = {std::min(area.left, x), std::min(area.top, y), std::max(area.right, x + 1),
                            std::max(area.bottom, y + 1)};
                const std::uint32_t dot = x / 2 % 2 == y / 2 % 2 ? 0xffffffff : 0xff000000;
                ASSERT_EQ(at(seen, x, y), ring && x >= clip.left ? dot : kGrey)
                    << x << ' ' << y << " of " << brush.size << " at " << zoom;
            }
        }
        EXPECT_EQ(brushOutlineArea(brush, {24, 27}, zoom), area);
    }
}

TEST_F(ViewOptions, WindowsShowWhatAPaintOfAllOfThemWould) {
    Random random(7);
    constexpr Tool kTools[] = {Tool::Select, Tool::Select,     Tool::Pen,
                               Tool::Box,    Tool::CircleFill, Tool::Paint};
    constexpr CommandId kCommands[] = {ID_DRAW_WRAP,   ID_DRAW_WRAP,       ID_VIEW_REPEAT,  ID_BRUSH_LARGER,
                                       ID_BRUSH_ROUND, ID_BRUSH_SMALLER,   ID_BRUSH_SQUARE, ID_MIRROR_ACROSS,
                                       ID_MIRROR_DOWN, ID_EDIT_UNDO,       ID_ZOOM_X1,      ID_ZOOM_X2,
                                       ID_EDIT_COPY,   ID_EDIT_PASTE,      ID_FLIP_X,       ID_TOOL_PIXEL,
                                       ID_TOOL_SELECT, ID_CANCEL_SELECTION};
    setDrawingOptions({{5, true}, false, false, true});
    for (int turn = 0; turn < 4000; ++turn) {
        const Point at{random.between(-5, 65), random.between(-5, 45)};
        const std::int32_t dice = random.between(0, 99);
        if (dice < 20) {
            pressIn(at);
        } else if (dice < 60) {
            moveTo(at);
        } else if (dice < 75) {
            releaseAt(at);
        } else if (dice < 80) {
            setCurrentTool(kTools[random.between(0, 5)]);
        } else if (dice < 90) {
            seen.runCommand(kCommands[random.between(0, 17)]);
        } else if (dice < 93) {
            seen.KeyPressed({random.once(2) ? Key::Escape : Key::Right, 1, false, false});
        } else if (dice < 94) {
            document.RefreshPalette();
        } else if (dice < 95) {
            random.once(2) ? seen.PointerLeft() : seen.PointerCaptureLost();
        } else if (dice < 97) {
            shown.scrollTo({random.between(0, 20), random.between(0, 20)});
            seen.Scrolled();
        } else {
            seen.Tick();
        }
        shown.repaintNow();
        otherShown.repaintNow();
        if (seen.dragging() && seen.selection().toolAtPress() != Tool::Select)
            continue;
        ASSERT_EQ(shown.shown, shown.painted(0)) << "turn " << turn << ", " << dice;
        ASSERT_EQ(otherShown.shown, otherShown.painted(0)) << "turn " << turn << ", " << dice;
    }
}

} // namespace
} // namespace dyeworks
