#include "CanvasTesting.h"
#include "ViewTestWindow.h"
#include "platform/StringId.h"

#include <gmock/gmock.h>

#include <utility>

namespace dyeworks {
namespace {

constexpr Keys kShift{true, false, false};
constexpr Keys kControl{false, true, false};

/// At zoom 4 and in a window of 64 by 48 pixels, with texels of value 7 below what is selected.
class Selecting : public ViewFixture {
protected:
    Selecting() {
        fill(0, 0, 7);
        window.client = {64, 48};
        view.runCommand(ID_ZOOM_X4);
        view.runCommand(ID_TOOL_SELECT);
    }
    ~Selecting() override { setCurrentTool(Tool::Select); }

    static Point middleOf(Point texel) { return {texel.x * 4 + 2, texel.y * 4 + 2}; }
    /// The texels from (2, 2) to (5, 5), whose frame covers the client pixels from (9, 9) to (23, 23).
    void select() {
        press(middleOf({2, 2}));
        move(middleOf({5, 5}));
        release(middleOf({5, 5}));
    }
    CursorShape cursorAt(Point at, Keys keys = {}) {
        move(at, keys);
        return window.cursor;
    }
};

TEST_F(Selecting, EachHandleShowsWhichSidesItMoves) {
    using Shape = CursorShape;
    const struct {
        Point handle;
        Shape shape;
        Point target;
        Rect selected;
    } cases[] = {{{9, 9}, Shape::SizeBackwardDiagonal, {1, 3}, {1, 3, 5, 5}},
                 {{22, 9}, Shape::SizeForwardDiagonal, {6, 1}, {2, 1, 6, 5}},
                 {{22, 22}, Shape::SizeBackwardDiagonal, {6, 7}, {2, 2, 6, 7}},
                 {{9, 22}, Shape::SizeForwardDiagonal, {1, 7}, {1, 2, 5, 7}},
                 {{15, 9}, Shape::SizeVertical, {9, 3}, {2, 3, 5, 5}},
                 {{22, 15}, Shape::SizeHorizontal, {6, 9}, {2, 2, 6, 5}},
                 {{15, 22}, Shape::SizeVertical, {9, 7}, {2, 2, 5, 7}},
                 {{9, 15}, Shape::SizeHorizontal, {1, 9}, {1, 2, 5, 5}},
                 {{16, 17}, Shape::SizeAll, {6, 5}, {4, 3, 7, 6}},
                 {{8, 9}, Shape::Arrow, {4, 4}, {2, 2, 4, 4}},
                 {{23, 15}, Shape::Arrow, {6, 6}, {5, 3, 6, 6}},
                 {{15, 23}, Shape::Arrow, {6, 6}, {3, 5, 6, 6}}};
    for (const auto& [handle, shape, target, selected] : cases) {
        SCOPED_TRACE(testing::PrintToString(std::pair{handle.x, handle.y}));
        select();
        EXPECT_EQ(cursorAt(handle), shape);
        press(handle);
        EXPECT_EQ(cursorAt(middleOf(target)), shape) << "as long as it is dragged";
        release(middleOf({12, 11}));
        EXPECT_EQ(view.selection().texels().value_or(Rect{}), selected);
        EXPECT_TRUE(view.KeyPressed({Key::Enter}));
    }
}

TEST_F(Selecting, TooLittleHasAFrameWhileItIsGrabbed) {
    press(middleOf({2, 2}));
    move(middleOf({2, 5}));
    release(middleOf({2, 5}));
    window.invalidated.clear();
    press(middleOf({2, 3}));
    EXPECT_EQ(std::exchange(window.invalidated, {}).size(), 1U) << "to come";
    release(middleOf({2, 3}));
    EXPECT_EQ(window.invalidated.size(), 1U) << "to go";
}

TEST_F(Selecting, TheCursorFollowsToolAndKeys) {
    select();
    constexpr Point kInside{16, 17};
    EXPECT_EQ(cursorAt(kInside, kShift), CursorShape::OpenHand);
    EXPECT_EQ(cursorAt({64, 17}), CursorShape::OpenHand) << "beside the window";
    setCurrentTool(Tool::Pen);
    EXPECT_EQ(cursorAt(kInside), CursorShape::Arrow);
    setCurrentTool(Tool::ZoomLens);
    EXPECT_EQ(cursorAt(kInside, kShift), CursorShape::ZoomIn);
    EXPECT_EQ(cursorAt(kInside, kControl), CursorShape::ZoomOut);
    window.pointer = kInside;
    view.KeyReleased({Key::Control});
    EXPECT_EQ(window.cursor, CursorShape::ZoomIn);
    view.KeyPressed({Key::Control, 1, false, true});
    EXPECT_EQ(window.cursor, CursorShape::ZoomOut);
}

TEST_F(Selecting, WhatFloatsTakesTheColoursThatTheImageTakes) {
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
        document.canvas().Create(16, 12, 1, bits);
        fill(0, 0, 7);
        openPalette(256);
        document.Attach();
        TextureLookupTable& palette = *host.palettes.lookup("");
        ASSERT_TRUE(document.canvas().CopyToClipboard({2, 2, 4, 3}));
        view.runCommand(ID_EDIT_PASTE);
        EXPECT_EQ(host.panes[kMessagePane], "");
        const auto redOf7 = [&] { return view.selection().look(0)->floating->colourTable()[7 * 4 + 2]; };
        TextureLookupTable passing(palette);
        passing.table.setRed(7, 4);
        document.PaletteChanged(document.attachedName(), &passing);
        EXPECT_EQ(redOf7(), 4 << 3) << "previewed";
        palette.table.setRed(7, 5);
        document.RefreshPalette();
        EXPECT_EQ(redOf7(), 5 << 3);
        view.runCommand(ID_EDIT_PASTE);
        EXPECT_EQ(host.panes[kMessagePane], text(StringId::PastedColoursDiffer));
        // Of colours that no texel has.
        document.canvas().FillBox(2, 2, 4, 3, 8);
        ASSERT_TRUE(document.canvas().CopyToClipboard({2, 2, 4, 3}));
        palette.table.setRed(7, 6);
        document.RefreshPalette();
        view.runCommand(ID_EDIT_PASTE);
        EXPECT_EQ(host.panes[kMessagePane], "");
    }
}

TEST_F(Selecting, CutLeavesWhatTheClipboardDoesNotTake) {
    select();
    const auto before = pixels();
    for (const bool busy : {true, false}) {
        platform.clipboard.busy = busy;
        view.runCommand(ID_EDIT_CUT);
        EXPECT_EQ(pixels() == before, busy);
        EXPECT_EQ(platform.messages.shown.size(), 1U);
    }
}

TEST_F(Selecting, AWindowThatClosesPlacesItsPieceInTheImageThatStays) {
    FakeViewWindow otherWindow;
    CDyeworksView other(document, otherWindow);
    other.InitialUpdate();
    const auto blank = canvasOf({"...", "..."});
    ASSERT_TRUE(blank->CopyToClipboard({0, 0, 2, 1}));
    view.runCommand(ID_EDIT_PASTE);
    otherWindow.invalidated.clear();
    view.Closing();
    EXPECT_EQ(rowsOf(document.canvas())[1], "...7777777777777");
    EXPECT_THAT(otherWindow.invalidated, testing::ElementsAre(Rect{0, 0, 3, 2}));
}

} // namespace
} // namespace dyeworks
