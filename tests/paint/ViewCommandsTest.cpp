#include "ViewTestWindow.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::ElementsAre;

TEST_F(ViewFixture, InitialUpdateSelectsTheHighestValue) {
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
        document.canvas().Create(10, 8, 1, bits);
        view.InitialUpdate();
        EXPECT_EQ(view.drawingValue(), bits == 4 ? 15U : 255U);
        EXPECT_EQ(host.cell, bits == 4 ? 15 : 255);
        EXPECT_EQ(window.content, (Size{10, 8}));
    }
}

TEST_F(ViewFixture, ZoomCommandsAreAvailableUpToTheEnds) {
    EXPECT_FALSE(stateOf(view, ID_ZOOM_OUT).enabled);
    const int fits = window.fits;
    view.runCommand(ID_ZOOM_X16);
    EXPECT_EQ(window.fits, fits + 1);
    EXPECT_EQ(window.content, (Size{256, 192}));
    EXPECT_FALSE(stateOf(view, ID_ZOOM_IN).enabled);
    EXPECT_TRUE(stateOf(view, ID_ZOOM_OUT).enabled);
    EXPECT_EQ(stateOf(view, ID_ZOOM_X16).checked, true);
    EXPECT_EQ(stateOf(view, ID_ZOOM_X1).checked, false);
    window.shift = true;
    view.runCommand(ID_ZOOM_OUT);
    EXPECT_EQ(window.fits, fits + 1);
    EXPECT_EQ(stateOf(view, ID_ZOOM_X12).checked, true);
    EXPECT_FALSE(view.handles(ID_ZOOM_BASE));
}

TEST_F(ViewFixture, ZoomingOutScrollsBackIntoTheContent) {
    view.runCommand(ID_ZOOM_X8);
    window.scroll = {88, 66};
    view.runCommand(ID_ZOOM_X3);
    EXPECT_EQ(window.scroll, (Point{8, 6}));
    view.runCommand(ID_ZOOM_X1);
    EXPECT_EQ(window.scroll, (Point{0, 0}));
}

TEST_F(ViewFixture, KeysZoomAtThePointerAndKeepItsTexel) {
    view.runCommand(ID_ZOOM_X4);
    window.pointer = {20, 15};
    window.scroll = {10, 6};
    const auto under = [&] {
        return Point{(window.pointer.x + window.scroll.x) / view.zoom(),
                     (window.pointer.y + window.scroll.y) / view.zoom()};
    };
    const Point texel = under();
    for (const Key key : {Key::I, Key::Numpad9, Key::I, Key::I, Key::O, Key::NumpadDivide}) {
        view.KeyPressed({key});
        EXPECT_EQ(under(), texel) << "at zoom " << view.zoom();
    }
    EXPECT_EQ(view.zoom(), 8);
    view.KeyPressed({Key::I, 2});
    EXPECT_EQ(view.zoom(), 8);

    // At the end of the zoom nothing moves.
    view.runCommand(ID_ZOOM_X16);
    window.scroll = {101, 53};
    view.ZoomAt({20, 15}, false);
    EXPECT_EQ(window.scroll, (Point{101, 53}));
}

TEST_F(ViewFixture, RepaintsTheZoomedChangedRectangle) {
    view.runCommand(ID_ZOOM_X4);
    window.scroll = {6, 2};
    window.invalidated.clear();
    document.Box(nullptr, {3, 2, 5, 4}, 7);
    EXPECT_THAT(window.invalidated, ElementsAre(Rect{6, 6, 18, 18}));
    window.invalidated.clear();
    document.Undo();
    EXPECT_THAT(window.invalidated, ElementsAre(Rect{6, 6, 18, 18}));
}

TEST_F(ViewFixture, UpdatesComeFromOthersAndWaitForTheInitialUpdate) {
    FakeViewWindow fresh;
    CDyeworksView second(document, fresh);
    const int full = window.fullRepaints;
    document.updateAllViews(nullptr, 1);
    EXPECT_EQ(window.fullRepaints, full + 1);
    EXPECT_EQ(fresh.fullRepaints, 0);
    view.update(&view, 1);
    EXPECT_EQ(window.fullRepaints, full + 1);
    view.update(&second, 1);
    EXPECT_EQ(window.fullRepaints, full + 2);
}

TEST_F(ViewFixture, ActivationShowsTheDocumentOncePerChange) {
    openPalette();
    document.Attach();
    const std::string attached = document.attachedName();
    openPalette();
    CDyeworksDoc other(host);
    FakeViewWindow otherWindow;
    CDyeworksView otherView(other, otherWindow);

    view.Activated();
    EXPECT_EQ(host.palettes.currentKey, attached);
    EXPECT_EQ(host.panes[2], "(16, 12) 4bit");
    EXPECT_EQ(host.barRefreshes, 1);

    // The user turns to another palette; coming back from elsewhere keeps the choice.
    openPalette();
    view.Activated();
    EXPECT_NE(host.palettes.currentKey, attached);
    EXPECT_EQ(host.barRefreshes, 1);

    otherView.Activated();
    view.Activated();
    EXPECT_EQ(host.palettes.currentKey, attached);
    EXPECT_EQ(host.panes[2], "(16, 12) 4bit");
}

} // namespace
} // namespace dyeworks
