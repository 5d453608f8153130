#include "CanvasTesting.h"
#include "ViewTestWindow.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

constexpr Keys kControl{false, true, false};
constexpr const char* kPath = "c:\\a.tmf";

/// An image with something at (2, 2) to (4, 3), at zoom 4 and 64 by 48 pixels.
class Selecting : public ViewFixture {
protected:
    Selecting() {
        document.canvas().FromImage(*canvasOf(kImage)->ToImage());
        document.canvas().ResetChangedRect();
        document.setPathName(kPath);
        window.client = {64, 48};
        view.runCommand(ID_ZOOM_X4);
        view.runCommand(ID_TOOL_SELECT);
    }
    ~Selecting() override { setCurrentTool(Tool::Select); }

    /// In the selected texel (3, 3), between the handles.
    static constexpr Point kInside{14, 12};
    static Point middleOf(Point texel) { return {texel.x * 4 + 2, texel.y * 4 + 2}; }
    void drag(Point from, Point to, Keys keys = {}) {
        press(middleOf(from), keys);
        move(middleOf(to), keys);
        release(middleOf(to), keys);
    }
    void select() { drag({2, 2}, {4, 3}); }
    /// Leaves it floating one texel further right and down.
    void moveSelected(Keys keys = {}) {
        select();
        press(kInside, keys);
        move(middleOf({4, 4}), keys);
        release(middleOf({4, 4}), keys);
    }
    std::vector<std::string> image() const { return rowsOf(document.canvas()); }
    /// The image with these rows in place of rows 2 to 4.
    static std::vector<std::string> with(const std::string& row2, const std::string& row3,
                                         const std::string& row4) {
        auto rows = kImage;
        rows[2] = row2, rows[3] = row3, rows[4] = row4;
        return rows;
    }

    static inline const std::vector<std::string> kImage{
        "................", "................", "..123...........", "..456...........",
        "................", "................", "................", "................",
        "................", "................", "................", "...............7"};
    static inline const std::vector<std::string> kCut = with(kImage[0], kImage[0], kImage[0]);
    static inline const std::vector<std::string> kMoved =
        with(kImage[0], "...123..........", "...456..........");
};

TEST_F(Selecting, MovedTexelsFloatUntilTheyArePlacedOrDropped) {
    for (const bool copies : {false, true}) {
        for (const Key key : {Key::Enter, Key::Escape}) {
            SCOPED_TRACE(copies);
            moveSelected(copies ? kControl : Keys{});
            const auto left = copies ? kImage : kCut;
            EXPECT_EQ(image(), left);
            EXPECT_EQ(view.selection(), (Rect{3, 3, 5, 4}));
            EXPECT_TRUE(view.KeyPressed({key}));
            const auto copied = with("..123...........", "..4123..........", "...456..........");
            EXPECT_EQ(image(), key == Key::Escape ? left : copies ? copied : kMoved);
            EXPECT_FALSE(view.hasFloatingPiece());
            EXPECT_EQ(view.selection(), Rect{});
            EXPECT_EQ(window.interval, 0);
            EXPECT_FALSE(view.KeyPressed({key})) << "nothing is left";
            while (document.CanUndo())
                document.Undo();
            EXPECT_EQ(image(), kImage);
        }
    }
}

TEST_F(Selecting, InterruptedMoveLeavesImageAndSelectionAsTheyWere) {
    for (const bool escape : {true, false}) {
        select();
        press(kInside);
        move(middleOf({9, 9}));
        EXPECT_EQ(image(), kCut);
        if (escape)
            view.KeyPressed({Key::Escape});
        else
            view.PointerCaptureLost();
        EXPECT_EQ(image(), kImage);
        EXPECT_FALSE(view.hasFloatingPiece() || window.captured || document.CanUndo());
        EXPECT_EQ(view.selection(), (Rect{2, 2, 4, 3}));
        release(middleOf({9, 9}));
        EXPECT_EQ(view.selection(), (Rect{2, 2, 4, 3}));
        view.KeyPressed({Key::Enter});
    }
}

TEST_F(Selecting, EnterInAMoveEndsIt) {
    select();
    press(kInside);
    move(middleOf({4, 4}));
    view.KeyPressed({Key::Enter});
    EXPECT_FALSE(window.captured);
    move(middleOf({9, 9}));
    release(middleOf({9, 9}));
    EXPECT_EQ(image(), kMoved);
    EXPECT_EQ(view.selection(), Rect{});
}

TEST_F(Selecting, EachHandleMovesItsSides) {
    // Of a frame that covers the client pixels from (9, 9) to (23, 23).
    const struct {
        Point handle;
        Rect selected;
    } cases[] = {{{9, 9}, {1, 3, 5, 5}},   {{22, 9}, {2, 1, 6, 5}}, {{22, 22}, {2, 2, 6, 7}},
                 {{9, 22}, {1, 2, 5, 7}},  {{15, 9}, {2, 3, 5, 5}}, {{22, 15}, {2, 2, 6, 5}},
                 {{15, 22}, {2, 2, 5, 7}}, {{9, 15}, {1, 2, 5, 5}}};
    const Point targets[] = {{1, 3}, {6, 1}, {6, 7}, {1, 7}, {9, 3}, {6, 9}, {9, 7}, {1, 9}};
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        drag({2, 2}, {5, 5});
        press(cases[i].handle);
        move(middleOf(targets[i]));
        release(middleOf({12, 11}));
        EXPECT_EQ(view.selection(), cases[i].selected) << i;
        view.KeyPressed({Key::Enter});
    }
}

TEST_F(Selecting, APieceIsScaledToTheSelectionThatArrowKeysMoveAndStretch) {
    select();
    press(kInside);
    move(middleOf({3, 4}));
    release(middleOf({3, 4}));
    for (const auto& [key, shift] : {std::pair{Key::Up, false},
                                     {Key::Left, false},
                                     {Key::Right, true},
                                     {Key::Right, true},
                                     {Key::Right, true},
                                     {Key::Down, true},
                                     {Key::Up, true},
                                     {Key::Down, false},
                                     {Key::Up, false}}) {
        window.fullRepaints = 0;
        EXPECT_TRUE(view.KeyPressed({key, 1, shift}));
        EXPECT_EQ(window.fullRepaints, 1);
    }
    EXPECT_EQ(view.selection(), (Rect{1, 2, 6, 3}));
    EXPECT_EQ(image(), kCut);
    view.KeyPressed({Key::Enter});
    EXPECT_EQ(image(), with(".112233.........", ".445566.........", kImage[0]));
}

TEST_F(Selecting, CommandsDependOnTheSelectionAndTheToolOfTheLastPress) {
    const struct {
        Tool tool;
        bool keeps;
    } cases[] = {{Tool::Pen, false},     {Tool::Select, true}, {Tool::Paint, false},
                 {Tool::ZoomLens, true}, {Tool::Line, false},  {Tool::Replacer, true}};
    for (const auto& [tool, keeps] : cases) {
        SCOPED_TRACE(static_cast<int>(tool));
        setCurrentTool(tool);
        press({1, 1});
        view.KeyPressed({Key::Escape});
        view.SetSelection(Rect{2, 2, 4, 3}, true);
        EXPECT_EQ(stateOf(view, ID_EDIT_SELECT_ALL).enabled, keeps);
        for (const CommandId id : {ID_CANCEL_SELECTION, ID_FLIP_X, ID_FLIP_Y, ID_EDIT_COPY, ID_EDIT_CUT})
            EXPECT_EQ(stateOf(view, id).enabled, keeps) << id;
        setCurrentTool(Tool::Select);
        EXPECT_EQ(stateOf(view, ID_FLIP_X).enabled, keeps) << "the choice of a tool is no press";
        // A line of texels can be seen, and no more.
        view.SetSelection(Rect{2, 2, 2, 9}, true);
        EXPECT_FALSE(stateOf(view, ID_EDIT_COPY).enabled);
    }
    EXPECT_FALSE(stateOf(view, ID_EDIT_PASTE).enabled);
    ASSERT_TRUE(document.canvas().CopyToClipboard({0, 0, 1, 1}));
    EXPECT_TRUE(stateOf(view, ID_EDIT_PASTE).enabled);
}

TEST_F(Selecting, ATexelAtTheOriginCountsAsNone) {
    press({1, 1});
    EXPECT_EQ(window.interval, 0);
    release({1, 1});
    EXPECT_EQ(view.HitSelection({1, 1}), TrackerHit::None);
    setCurrentTool(Tool::Replacer);
    press(middleOf({9, 9}));
    EXPECT_EQ(rowsOf(document.canvas())[11], "9999999999999997") << "in the whole image";
    document.Undo();
    view.SetSelection(Rect{9, 9, 9, 9}, true);
    press(middleOf({9, 9}));
    EXPECT_EQ(rowsOf(document.canvas())[9], ".........9......") << "where one is selected";
    EXPECT_EQ(rowsOf(document.canvas())[11], kImage[11]);
}

TEST_F(Selecting, PastesAtTheAnchorAsFarAsTheImageReaches) {
    ASSERT_TRUE(document.canvas().CopyToClipboard({2, 2, 4, 3}));
    const struct {
        Point anchor;
        Rect place;
    } cases[] = {{{5, 6}, {5, 6, 7, 7}}, {{15, 11}, {13, 10, 15, 11}}, {{0, 11}, {0, 10, 2, 11}}};
    for (const auto& [anchor, place] : cases) {
        setCurrentTool(anchor.x == 15 ? Tool::Pen : Tool::Pixel);
        press(middleOf(anchor));
        release(middleOf(anchor));
        document.Undo();
        // Scrolling leaves the anchor alone.
        press({9, 9}, Keys{true, false, false});
        release({2, 2});
        view.runCommand(ID_EDIT_PASTE);
        EXPECT_EQ(view.selection(), place);
        EXPECT_EQ(currentTool(), Tool::Select);
        EXPECT_EQ(image(), kImage);
        view.KeyPressed({Key::Escape});
        EXPECT_FALSE(view.hasFloatingPiece()) << "although the last press drew";
    }
    TextureCanvas large;
    ASSERT_TRUE(large.Create(20, 3, 1, 4) && large.CopyToClipboard({0, 0, 19, 2}));
    view.runCommand(ID_EDIT_PASTE);
    EXPECT_EQ(view.selection(), (Rect{0, 9, 19, 11})) << "never before the image";
}

TEST_F(Selecting, StoresNothingOutOfDepth) {
    TextureCanvas deep;
    ASSERT_TRUE(deep.Create(3, 2, 1, 24));
    deep.FillBox(0, 0, 2, 1, 0xABCDE5);
    ASSERT_TRUE(deep.CopyToClipboard({0, 0, 2, 1}));
    view.runCommand(ID_EDIT_PASTE);
    view.runCommand(ID_CANCEL_SELECTION);
    auto expected = kImage;
    expected[0] = expected[1] = "555.............";
    EXPECT_EQ(image(), expected);
    document.Undo();
    EXPECT_EQ(image(), kImage);
}

TEST_F(Selecting, WhatFloatsIsPartOfTheWork) {
    moveSelected();
    ASSERT_TRUE(document.save());
    TextureCanvas saved;
    ASSERT_TRUE(saved.LoadTmf(kPath));
    EXPECT_EQ(rowsOf(saved), kMoved);
    EXPECT_FALSE(view.hasFloatingPiece() || document.hasUnsavedChanges());

    ASSERT_TRUE(document.canvas().CopyToClipboard({2, 2, 4, 3}));
    view.runCommand(ID_EDIT_PASTE);
    EXPECT_EQ(document.title(), "a.tmf");
    EXPECT_FALSE(document.saveModified()) << "cancelled";
    EXPECT_EQ(platform.messages.shown.size(), 1U);
    EXPECT_TRUE(view.hasFloatingPiece());
}

TEST_F(Selecting, APieceShowsAlsoAfterAToolThatDraws) {
    openPalette();
    document.Attach();
    setCurrentTool(Tool::Pen);
    press(middleOf({9, 9}));
    release(middleOf({9, 9}));
    const auto shownAt = [&](Point texel) {
        std::uint32_t pixel = 0;
        const Point at = middleOf(texel);
        Surface surface{&pixel, 1, 1, 1, at.x, at.y};
        view.Paint(surface, {at.x, at.y, at.x + 1, at.y + 1}, 0);
        return pixel;
    };
    ASSERT_NE(shownAt({9, 9}), shownAt({12, 10}));
    ASSERT_TRUE(document.canvas().CopyToClipboard({7, 8, 11, 10}));
    press(middleOf({11, 8}));
    view.runCommand(ID_EDIT_PASTE);
    EXPECT_EQ(shownAt({13, 9}), shownAt({9, 9}));
}

TEST_F(Selecting, AWindowThatClosesPlacesItsPieceInTheImageThatStays) {
    FakeViewWindow otherWindow;
    CDyeworksView other(document, otherWindow);
    other.InitialUpdate();
    moveSelected();
    otherWindow.invalidated.clear();
    view.Closing();
    EXPECT_EQ(image(), kMoved);
    EXPECT_THAT(otherWindow.invalidated, testing::ElementsAre(Rect{3, 3, 6, 5}));
}

TEST_F(Selecting, FlipsAndClearsOnlyWhatIsSelected) {
    select();
    view.runCommand(ID_FLIP_X);
    EXPECT_EQ(image(), with("..321...........", "..654...........", kImage[0]));
    view.runCommand(ID_FLIP_Y);
    EXPECT_EQ(image(), with("..654...........", "..321...........", kImage[0]));
    view.runCommand(ID_EDIT_CUT);
    EXPECT_EQ(image(), kCut);
    EXPECT_EQ(document.history().count(), 3);
    EXPECT_EQ(rowsOf(*TextureCanvas::PasteFromClipboard()), (std::vector<std::string>{"654", "321"}));
}

TEST_F(Selecting, TheCursorTellsWhatAPressWouldDo) {
    drag({2, 2}, {5, 5});
    const struct {
        Tool tool;
        Point at;
        Keys keys;
        CursorShape shape;
    } cases[] = {{Tool::Select, {9, 9}, {}, CursorShape::SizeBackwardDiagonal},
                 {Tool::Select, {22, 9}, {}, CursorShape::SizeForwardDiagonal},
                 {Tool::Select, {15, 22}, {}, CursorShape::SizeVertical},
                 {Tool::Select, {9, 15}, {}, CursorShape::SizeHorizontal},
                 {Tool::Select, {16, 17}, {}, CursorShape::SizeAll},
                 {Tool::Select, {8, 9}, {}, CursorShape::Arrow},
                 {Tool::Select, {23, 15}, {}, CursorShape::Arrow},
                 {Tool::Select, {15, 23}, {}, CursorShape::Arrow},
                 {Tool::Select, {16, 17}, {true, false, false}, CursorShape::OpenHand},
                 {Tool::Select, {64, 17}, {}, CursorShape::OpenHand}, // beside the window
                 {Tool::Pen, {16, 17}, {}, CursorShape::Arrow},
                 {Tool::ZoomLens, {16, 17}, {true, false, false}, CursorShape::ZoomIn},
                 {Tool::ZoomLens, {16, 17}, kControl, CursorShape::ZoomOut}};
    for (const auto& [tool, at, keys, shape] : cases) {
        setCurrentTool(tool);
        move(at, keys);
        EXPECT_EQ(window.cursor, shape) << at.x << ", " << at.y;
    }
    window.pointer = {16, 17};
    view.KeyReleased({Key::Control});
    EXPECT_EQ(window.cursor, CursorShape::ZoomIn);
    view.KeyPressed({Key::Control, 1, false, true});
    EXPECT_EQ(window.cursor, CursorShape::ZoomOut);

    setCurrentTool(Tool::Select);
    move({22, 15});
    press({22, 15});
    move({50, 40});
    EXPECT_EQ(window.cursor, CursorShape::SizeHorizontal) << "as long as the side is dragged";
}

} // namespace
} // namespace dyeworks
