#include "Program.h"

#include <QContextMenuEvent>
#include <QMenu>

#include <tuple>

namespace dyeworks {
namespace {

constexpr int kSide = 24;

unsigned groundAt(int x, int y) {
    return static_cast<unsigned>(1 + (x + 5 * y) % 14);
}

Texels ground() {
    return texels(kSide, kSide, groundAt);
}

/// The program with an image of 24 by 24 texels at zoom 4.
class Tools : public Program {
protected:
    void SetUp() override {
        openAttached(ground(), 8, 256);
        run(ID_ZOOM_X4);
        run(ID_TOOL_SELECT);
        app_.imageHost().selectPaletteBarCell(200);
    }
    Rect selection() { return view().view().selection().texels().value_or(Rect{}); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view(), key, modifiers); }
    void click(QPoint texel, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(view().viewport(), button, modifiers, at(texel.x(), texel.y()));
    }
    /// What the context menu at a texel offers; empty when there is none.
    QStringList contextMenu(QPoint texel) {
        const QPoint place = at(texel.x(), texel.y());
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view().viewport(), &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QStringList items;
        if (menu == nullptr)
            return items;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator())
                items += action->text().section('\t', 0, 0);
        }
        menu->close();
        return items;
    }
};

TEST_F(Tools, ASelectionIsMovedAndPlaced) {
    drag({{2, 2}, {5, 5}});
    EXPECT_EQ(selection(), (Rect{2, 2, 5, 5}));
    drag({{3, 4}, {6, 6}, {10, 9}}); // between the handles
    key(Qt::Key_Left);
    EXPECT_EQ(selection(), (Rect{8, 7, 11, 10}));
    key(Qt::Key_Return);
    EXPECT_EQ(canvas(), texels(kSide, kSide, [&](int x, int y) {
                  if (x >= 8 && x <= 11 && y >= 7 && y <= 10)
                      return groundAt(x - 6, y - 5);
                  const bool cut = x >= 2 && x <= 5 && y >= 2 && y <= 5;
                  return cut ? 0U : groundAt(x, y);
              }));
}

TEST_F(Tools, ColoursArePickedAndTheLensDrawsNothing) {
    run(ID_TOOL_PEN);
    click({5, 6}, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(app_.imageHost().paletteBarCell(), static_cast<int>(groundAt(5, 6)));
    click({7, 7}, Qt::RightButton);
    EXPECT_EQ(app_.imageHost().paletteBarCell(), static_cast<int>(groundAt(5, 6))) << "not before it is on";
    run(ID_TOOL_SPUIT);
    click({7, 7}, Qt::RightButton);
    EXPECT_EQ(app_.imageHost().paletteBarCell(), static_cast<int>(groundAt(7, 7)));
    EXPECT_THAT(contextMenu({7, 7}), IsEmpty());
    run(ID_TOOL_ZOOM_LENS);
    click({10, 10});
    EXPECT_EQ(view().viewport()->cursor().hotSpot(), QPoint(8, 8));
    EXPECT_EQ(canvas(), ground());
}

TEST_F(Tools, ContextMenusFollowTheTool) {
    const std::tuple<CommandId, int, const char*, const char*> cases[] = {
        {ID_TOOL_SELECT, 8, "Cu&t", "&Add to Project"},
        {ID_TOOL_PEN, 11, "&Select", "&Replacer"},
        {ID_TOOL_ZOOM_LENS, 9, "x1", "&Specify..."},
        {ID_TOOL_REPLACER, 10, "&Select", "&Paint"}};
    for (const auto& [tool, count, first, last] : cases) {
        run(tool);
        const QStringList items = contextMenu({3, 3});
        ASSERT_EQ(items.size(), count) << tool;
        EXPECT_EQ(items.first(), first);
        EXPECT_EQ(items.last(), last);
    }
}

TEST_F(Tools, LettersChooseToolsAndLeaveTheZoomKeysAlone) {
    QCursor::setPos(view().viewport()->mapToGlobal(at(8, 8)));
    key(Qt::Key_N);
    EXPECT_EQ(currentTool(), Tool::Pen);
    key(Qt::Key_I);
    EXPECT_EQ(view().view().zoom(), 6);
    key(Qt::Key_Slash, Qt::KeypadModifier);
    EXPECT_EQ(view().view().zoom(), 4);
    EXPECT_EQ(currentTool(), Tool::Pen);
}

TEST_F(Tools, LosingTheFocusOrTheReleaseTakesADragBack) {
    run(ID_TOOL_LINE);
    for (const bool focus : {true, false}) {
        QTest::mousePress(view().viewport(), Qt::LeftButton, {}, at(2, 2));
        moveMouse(at(9, 4), Qt::LeftButton);
        EXPECT_NE(canvas(), ground());
        QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        if (focus)
            QCoreApplication::sendEvent(&view(), &away);
        else
            moveMouse(at(9, 5), Qt::NoButton);
        EXPECT_EQ(canvas(), ground());
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, at(9, 4));
        EXPECT_EQ(canvas(), ground());
        EXPECT_EQ(image().title(), "pic.tmf [pic]");
    }
}

} // namespace
} // namespace dyeworks
