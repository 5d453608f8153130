#include "Program.h"
#include "paint/DrawingOptions.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QSpinBox>

#include <algorithm>
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
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view(), key, modifiers); }
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
    run(ID_TOOL_PEN);
    run(ID_TOOL_SPUIT);
    EXPECT_THAT(contextMenu({3, 3}), IsEmpty());
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
    run(ID_TOOL_ZOOM_LENS);
    moveMouse(at(8, 8), Qt::NoButton);
    EXPECT_EQ(view().viewport()->cursor().hotSpot(), QPoint(8, 8));
}

TEST_F(Tools, BrushIsMadeLargerByKeysAndByItsBarAndKept) {
    QSpinBox& size = *frame().findChild<QSpinBox*>("IDC_BRUSH_SIZE");
    run(ID_VIEW_BRUSHBAR);
    key(Qt::Key_BracketRight);
    key(Qt::Key_BracketRight);
    EXPECT_EQ(size.value(), 3);
    key(Qt::Key_BracketLeft);
    QTest::keyClick(&size, Qt::Key_Up);
    QTest::keyClicks(&size, "]");
    EXPECT_EQ(size.value(), 3);
    run(ID_MIRROR_ACROSS);
    run(ID_TOOL_PIXEL);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, at(2, 2));
    EXPECT_EQ(canvas(), texels(kSide, kSide, [](int x, int y) {
                  const int fromEdge = std::min(x, kSide - 1 - x);
                  return fromEdge >= 1 && fromEdge <= 3 && y >= 1 && y <= 3 ? 200 : groundAt(x, y);
              }));
    restoreDrawingOptions();
    EXPECT_EQ(drawingOptions(), (DrawingOptions{{3, false}, true, false, false}));
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

using Drawing = Program;

TEST_F(Drawing, AHalfPixelOfAScaledDisplayBelongsToThePixelItLiesIn) {
    openBlank();
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.imageHost().selectPaletteBarCell(9);
    const QPointF position(5.75, 6.5);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, position, view().viewport()->mapToGlobal(position), Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
    EXPECT_EQ(canvas()[6][5], 9U);
}

} // namespace
} // namespace dyeworks
