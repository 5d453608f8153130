#include "ViewTestWindow.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::ElementsAre;

TEST_F(ViewFixture, ZoomCommandsAreAvailableUpToTheEnds) {
    EXPECT_FALSE(stateOf(view, ID_ZOOM_OUT).enabled);
    view.runCommand(ID_ZOOM_X16);
    EXPECT_FALSE(stateOf(view, ID_ZOOM_IN).enabled);
    EXPECT_TRUE(stateOf(view, ID_ZOOM_OUT).enabled);
    EXPECT_EQ(stateOf(view, ID_ZOOM_X16).checked, true);
    EXPECT_EQ(stateOf(view, ID_ZOOM_X1).checked, false);
}

TEST_F(ViewFixture, PixelsThatAreColoursShowWithoutAPalette) {
    constexpr std::uint32_t kFace = 0xFF808080;
    const struct {
        std::uint16_t bits;
        std::uint32_t value, shown;
    } cases[] = {{4, 5, kFace},
                 {8, 5, kFace},
                 {12, 5, kFace},
                 {16, 0x7E00, 0xFFFF8400},
                 {24, 0x123456, 0xFF123456},
                 {32, 0x123456, 0xFF123456}};
    for (const auto& [bits, value, shown] : cases) {
        document.canvas().Create(2, 2, 1, bits);
        document.canvas().SetPixel(0, 0, value);
        std::uint32_t pixel = 0;
        Surface surface{&pixel, 1, 1, 1};
        view.Paint(surface, {0, 0, 1, 1}, kFace);
        EXPECT_EQ(pixel, shown) << bits;
        EXPECT_EQ(view.showsNoPalette(), shown == kFace) << bits;
    }
}

TEST_F(ViewFixture, RedrawRequestWaitsForNoPaintThatItDoesNotConcern) {
    openPalette();
    document.Attach();
    view.runCommand(ID_ZOOM_X4); // 10 by 7 and a half texels of it show
    static_cast<void>(view.BeginPaint());
    struct Case {
        Rect texels;
        std::uint32_t bits;
        Rect clientArea;
    };
    for (const Case& c : {Case{{8, 5, 3, 2}, 0x80, {12, 8, 36, 24}}, Case{{10, 2, 12, 5}, 0, {}},
                          Case{{2, 8, 5, 9}, 0, {}}, Case{{9, 7, 12, 9}, 0x80, {36, 28, 52, 40}}}) {
        view.selection().showDragFrame({1, 1, 2, 2}, 0xc0); // never painted
        view.selection().showDragFrame(c.texels, 0x80);
        const auto request = view.BeginPaint();
        EXPECT_EQ(request.bits, c.bits) << c.texels.left;
        EXPECT_EQ(request.clientArea, c.clientArea) << c.texels.left;
        EXPECT_EQ(view.BeginPaint().bits, 0U);
    }
}

TEST_F(ViewFixture, ShowsWhatAnImportChangedInPlace) {
    openPalette();
    document.Attach();
    host.plugIns.texelOnImport = 6;
    window.fullRepaints = 0;
    document.runCommand(ID_IMPORT_FIRST);
    EXPECT_EQ(window.fullRepaints, 1);
    view.runCommand(ID_ZOOM_X4);
    window.scroll = {6, 2};
    window.invalidated.clear();
    pixel(3, 2, 5);
    EXPECT_THAT(window.invalidated, ElementsAre(Rect{6, 6, 10, 10})) << "of the edit alone";
}

TEST_F(ViewFixture, ActivationShowsTheDocumentOncePerChange) {
    openPalette();
    document.Attach();
    const std::string attached = document.attachedName();
    openPalette();
    host.barRefreshes = 0;
    window.pointer = {3, 2};
    CDyeworksDoc other(host);
    FakeViewWindow otherWindow;
    CDyeworksView otherView(other, otherWindow);

    view.Activated();
    EXPECT_EQ(host.palettes.currentKey, attached);
    EXPECT_EQ(host.panes[2], "(16, 12) 4bit");
    EXPECT_EQ(host.panes[1], "(3, 2) 100%");
    EXPECT_EQ(host.barRefreshes, 1);
    ASSERT_NE(window.displayPalette, nullptr);
    EXPECT_EQ(window.displayPalette->entries().size(), 16U);

    // The user turns to another palette; coming back from elsewhere keeps the choice.
    openPalette();
    view.Activated();
    EXPECT_NE(host.palettes.currentKey, attached);
    EXPECT_EQ(host.barRefreshes, 1);

    otherView.ZoomStep(false, true);
    otherView.Activated();
    EXPECT_EQ(host.panes[1], "(0, 0) 200%");
    view.Activated();
    EXPECT_EQ(host.palettes.currentKey, attached);
    EXPECT_EQ(host.panes[2], "(16, 12) 4bit");
    window.scroll = {5, 0};
    view.Scrolled();
    EXPECT_EQ(host.panes[1], "(8, 2) 100%");
}

TEST_F(ViewFixture, ADragWithShiftScrollsAsFarAsThereIsImageAndEscapeScrollsBack) {
    view.SetZoom(4); // 64 by 48 pixels in 40 by 30.
    setCurrentTool(Tool::Pen);
    for (const bool escaped : {false, true}) {
        window.scroll = {10, 10};
        press({20, 20}, {.shift = true});
        move({15, 28});
        EXPECT_EQ(window.scroll, (Point{15, 2}));
        move({-99, -99});
        EXPECT_EQ(window.scroll, (Point{24, 18}));
        if (escaped)
            EXPECT_TRUE(view.KeyPressed({Key::Escape}));
        else
            release({-99, -99});
        EXPECT_EQ(window.scroll, escaped ? (Point{10, 10}) : (Point{24, 18}));
        EXPECT_FALSE(view.dragging() || window.captured || document.edits().canUndo());
    }
    setCurrentTool(Tool::Select);
}

TEST_F(ViewFixture, AButtonThatGoesUpWhileThePressIsPreviewedEndsTheDrag) {
    host.active = &document;
    document.runCommand(ID_PREVIEW1);
    for (const Tool tool : {Tool::Pen, Tool::Pixel, Tool::Box}) {
        view.selection().setFloatingPiece(document.canvas().CopyRect(0, 0, 2, 2), StringId{});
        setCurrentTool(tool);
        host.plugIns.onPreview = [&] { release({5, 5}); };
        press({5, 5});
        host.plugIns.onPreview = nullptr;
        EXPECT_FALSE(view.dragging());
        EXPECT_EQ(document.canvas().GetPixel(5, 5), 9U);
        EXPECT_TRUE(document.Undo());
        EXPECT_EQ(document.canvas().GetPixel(5, 5), 0U);
    }
    setCurrentTool(Tool::Select);
}

TEST_F(ViewFixture, PreviewsSeeADragEndAndNoEventReachesWhatHasGone) {
    host.active = &document;
    document.runCommand(ID_PREVIEW1);
    for (const Tool tool : {Tool::Pen, Tool::Box}) {
        const auto before = pixels();
        setCurrentTool(tool);
        press({1, 1});
        move({9, 9});
        host.plugIns.onPreview = [&] { move({5, 3}); };
        document.Undo();
        host.plugIns.onPreview = nullptr;
        EXPECT_FALSE(view.dragging());
        EXPECT_EQ(pixels(), before);
    }
    setCurrentTool(Tool::Circle);
    press({0, 0});
    move({9, 9});
    host.plugIns.take();
    move({0, 0});
    EXPECT_EQ(host.plugIns.take().size(), 1U) << "the circle has gone";
    release({0, 0});
    host.plugIns.take();
    TmfImage other;
    ASSERT_TRUE(other.create(4, 4, 4));
    EXPECT_FALSE(document.SetImage(other));
    EXPECT_TRUE(host.plugIns.take().empty());
}

TEST_F(ViewFixture, APieceThatMayNotBePlacedFloatsOn) {
    document.setSnapshotFactory([](const auto&) { return nullptr; });
    document.setPathName("c:\\a.tmf");
    for (const Tool tool : {Tool::Select, Tool::Paint, Tool::Pixel}) {
        view.selection().setFloatingPiece(document.canvas().CopyRect(0, 0, 3, 3), StringId{});
        const auto place = view.selection().texels();
        setCurrentTool(tool);
        platform.messages.answerWith(MessageAnswer::No);
        press({9, 9});
        platform.messages.answerWith(MessageAnswer::No);
        EXPECT_FALSE(document.save());
        {
            FakeViewWindow otherWindow;
            const CDyeworksView other(document, otherWindow);
            platform.messages.answerWith(MessageAnswer::No);
            EXPECT_FALSE(view.MayClose());
        }
        EXPECT_TRUE(view.selection().hasFloatingPiece());
        EXPECT_EQ(view.selection().texels(), place);
        view.CancelDrag();
        view.selection().dropFloatingPiece();
    }
}

} // namespace
} // namespace dyeworks
