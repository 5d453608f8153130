#include "ControlTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QPixmap>
#include <QToolTip>

#include <array>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kClick = -600;

class SwatchGridTest : public ControlTest {
protected:
    SwatchGridTest() { create("SwatchGrid"); }

    void layOut(int columns, int rows, int count) {
        callShort(5, {count});
        callShort(4, {columns, rows, 0});
        widget().resize(columns * 20 + 20, rows * 20 + 20);
        for (int cell = 0; cell < count; ++cell)
            call(7, {shortValue(cell), longValue(cell)});
    }
    int cellAt(QPoint point) { return number(call(19, {longValue(point.x()), longValue(point.y())})); }
    /// The middle of a cell, found by asking for every pixel.
    QPoint at(int cell) {
        QRect area;
        for (int y = 0; y < widget().height(); ++y) {
            for (int x = 0; x < widget().width(); ++x) {
                if (cellAt({x, y}) == cell)
                    area |= QRect(x, y, 1, 1);
            }
        }
        EXPECT_FALSE(area.isEmpty()) << cell;
        return area.center();
    }
    int marker(int slot) { return number(callShort(12, {slot})); }
    int value(int cell) { return number(callShort(6, {cell})); }
    /// Corners of the selection; empty without one.
    std::vector<int> range() {
        std::array<std::int16_t, 4> corners{};
        if (number(call(14, {&corners[0], &corners[1], &corners[2], &corners[3]})) == 0)
            return {};
        return {corners.begin(), corners.end()};
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&widget(), key, modifiers);
    }
    void click(int cell, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&widget(), Qt::LeftButton, modifiers, at(cell));
    }
    void drag(int from, QPoint to, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mousePress(&widget(), Qt::LeftButton, modifiers, at(from));
        QTest::mouseMove(&widget(), to);
        QTest::mouseRelease(&widget(), Qt::LeftButton, modifiers, to);
    }
    /// How many cells are selected, the first and the last of them; 0 alone without a selection.
    std::vector<int> selected() {
        std::array<std::int16_t, 2> ends{};
        const int count = number(call(111, {&ends[0], &ends[1]}));
        return count == 0 ? std::vector<int>{0} : std::vector<int>{count, ends[0], ends[1]};
    }
};

TEST_F(SwatchGridTest, KeysWalkWithinTheGridAndEveryStepIsAClick) {
    struct Case {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int from, to;
    };
    // Four columns; the third row has two cells only.
    const Case cases[] = {
        {Qt::Key_Right, {}, 3, 4},    {Qt::Key_Right, {}, 9, 9},
        {Qt::Key_Left, {}, 0, 0},     {Qt::Key_Left, {}, 4, 3},
        {Qt::Key_Up, {}, 2, 2},       {Qt::Key_Up, {}, 9, 5},
        {Qt::Key_Down, {}, 5, 9},     {Qt::Key_Down, {}, 6, 6},
        {Qt::Key_Home, {}, 6, 4},     {Qt::Key_Home, Qt::ControlModifier, 6, 0},
        {Qt::Key_End, {}, 4, 7},      {Qt::Key_End, {}, 8, 9},
        {Qt::Key_PageUp, {}, 9, 1},   {Qt::Key_End, Qt::ControlModifier, 1, 9},
        {Qt::Key_PageDown, {}, 1, 9}, {Qt::Key_PageDown, {}, 2, 6},
        {Qt::Key_Down, {}, -1, 0},    {Qt::Key_Left, {}, 40, 0},
    };
    layOut(4, 3, 10);
    for (const Case& c : cases) {
        callShort(11, {0, c.from});
        sink_.taken();
        press(c.key, c.modifiers);
        EXPECT_EQ(marker(0), c.to) << c.key << " from " << c.from;
        EXPECT_EQ(sink_.taken().size(), c.from == c.to ? 0U : 1U) << c.key << " from " << c.from;
    }
}

TEST_F(SwatchGridTest, DragAndShiftSelectRangesAroundTheCurrentCell) {
    layOut(4, 4, 16);
    set(3, shortValue(1));
    EXPECT_THAT(range(), IsEmpty());
    drag(9, at(6));
    EXPECT_THAT(sink_.taken(), ElementsAre("1(1,2,1,2)", "-600()", "1(1,1,2,2)"));
    EXPECT_EQ(marker(0), 9);
    EXPECT_THAT(range(), ElementsAre(1, 1, 2, 2));
    EXPECT_THAT(selected(), ElementsAre(4, 5, 10));
    // With Shift it becomes a run, over the ends of rows.
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_THAT(selected(), ElementsAre(7, 3, 9));
    EXPECT_THAT(range(), ElementsAre(3, 0, 1, 2));
    click(12, Qt::ShiftModifier);
    EXPECT_THAT(selected(), ElementsAre(4, 9, 12));
    EXPECT_EQ(marker(0), 9);
    sink_.taken();
    // Beyond the edge the nearest cell counts.
    drag(5, {widget().width() + 50, -50});
    EXPECT_THAT(range(), ElementsAre(1, 0, 3, 1));
    press(Qt::Key_Right);
    EXPECT_THAT(range(), ElementsAre(2, 1, 2, 1));
    std::int16_t* const unasked = nullptr;
    EXPECT_EQ(number(call(14, {unasked, unasked, unasked, unasked})), 1);
    // Only another current cell or another shape ends it.
    callShort(11, {0, 6});
    callShort(4, {4, 4, 0});
    callShort(5, {16});
    EXPECT_THAT(range(), ElementsAre(2, 1, 2, 1));
    callShort(11, {0, 7});
    EXPECT_THAT(range(), IsEmpty());
}

TEST_F(SwatchGridTest, ARunIsDraggedIntoAGapUntilEscapeAndAClickInItStaysOne) {
    layOut(4, 4, 16);
    set(3, shortValue(1));
    set(112, true);
    const struct {
        int from, to;
        bool behind;
        Qt::KeyboardModifiers modifiers;
        std::vector<std::string> told;
    } cases[] = {
        {5, 0, false, {}, {"112(5,9,0)"}},
        {9, 15, true, {}, {"112(5,9,11)"}},
        {6, 11, false, {}, {"112(5,9,6)"}},
        {8, 5, false, {}, {}},
        {5, 9, true, {}, {}},
        {2, 12, true, Qt::ControlModifier, {"112(2,2,12)"}},
        {12, 0, false, Qt::ControlModifier, {"112(12,12,0)"}},
        {2, 12, true, {}, {"1(2,0,2,0)", "-600()", "1(0,0,2,3)"}},
    };
    for (const auto& [from, to, behind, modifiers, told] : cases) {
        click(5);
        click(9, Qt::ShiftModifier);
        sink_.taken();
        drag(from, at(to) + QPoint(behind ? 4 : -4, 0), modifiers);
        EXPECT_EQ(sink_.taken(), told) << from << " to " << to;
    }
    callShort(113, {5, 9});
    const QImage before = widget().grab().toImage();
    QTest::mousePress(&widget(), Qt::LeftButton, {}, at(6));
    QTest::mouseMove(&widget(), at(14));
    EXPECT_NE(widget().grab().toImage(), before);
    press(Qt::Key_Escape);
    EXPECT_EQ(widget().grab().toImage(), before);
    QTest::mouseRelease(&widget(), Qt::LeftButton, {}, at(14));
    EXPECT_THAT(selected(), ElementsAre(5, 5, 9));
    sink_.taken();
    click(8);
    EXPECT_THAT(sink_.taken(), ElementsAre("1(0,2,0,2)", "-600()"));
}

TEST_F(SwatchGridTest, CellsAreOnlyClickedWhereNothingIsCurrent) {
    layOut(8, 1, 8);
    for (int slot = 0; slot < 4; ++slot)
        EXPECT_EQ(number(callShort(11, {slot, -2})), 1);
    click(3);
    EXPECT_EQ(number(call(102, {})), 3);
    EXPECT_EQ(marker(0), -2);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_THAT(sink_.taken(), ElementsAre("-600()"));
    press(Qt::Key_Space);
    EXPECT_EQ(number(call(102, {})), 5);
    QTest::mouseDClick(&widget(), Qt::LeftButton, {}, at(1));
    EXPECT_THAT(sink_.taken(), ElementsAre("-600()", "-600()", "-601()"));
    QTest::mouseClick(&widget(), Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseClick(&widget(), Qt::RightButton, {}, at(2));
    EXPECT_THAT(sink_.taken(), IsEmpty());
}

TEST_F(SwatchGridTest, MarkersKeepWhatTheyAreGiven) {
    layOut(2, 2, 4);
    struct Case {
        int slot, cell, accepted, kept;
    };
    const Case cases[] = {{1, 3, 1, 3}, {1, -1, 1, -1}, {3, -2, 1, -2}, {3, -3, 0, -2},
                          {2, 9, 1, 9}, {4, 0, 0, -1},  {-1, 0, 0, -1}, {3, 0, 1, 0}};
    for (const Case& c : cases) {
        EXPECT_EQ(number(callShort(11, {c.slot, c.cell})), c.accepted) << c.slot;
        EXPECT_EQ(marker(c.slot), c.kept) << c.slot << " " << c.cell;
    }
}

TEST_F(SwatchGridTest, PasteIsCutAtTheEdgesAndNamesTheChangedCells) {
    QGuiApplication::clipboard()->clear();
    layOut(4, 4, 16);
    set(3, shortValue(1));
    EXPECT_EQ(number(call(15, {})), 0);
    EXPECT_EQ(number(call(16, {})), 0);
    EXPECT_EQ(number(callShort(17, {0, 0})), 0);
    drag(0, at(6)); // 0 1 2, 4 5 6
    EXPECT_EQ(number(call(15, {})), 1);
    EXPECT_EQ(number(call(16, {})), 1);
    sink_.taken();
    struct Case {
        int column, row, pasted;
        const char* event;
    };
    const Case cases[] = {{2, 3, 1, "2(14,15)"}, // 0 1 on 14 15
                          {0, 0, 1, ""},         // the same cells again
                          {1, 2, 1, "2(9,15)"},  // 0 1 2 on 9 10 11; 4 5 6 on 13 14 15
                          {4, 0, 0, ""},         {0, 4, 0, ""}, {-1, 0, 0, ""}};
    for (const Case& c : cases) {
        EXPECT_EQ(number(callShort(17, {c.column, c.row})), c.pasted);
        const std::vector<std::string> events = sink_.taken();
        EXPECT_EQ(events.empty() ? "" : events.front(), c.event) << c.column << " " << c.row;
    }
    std::vector<int> values;
    for (int cell = 8; cell < 16; ++cell)
        values.push_back(value(cell));
    EXPECT_THAT(values, ElementsAre(8, 0, 1, 2, 12, 4, 5, 6));
    // Another grid, and other programs, can have them as well.
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("#000000\t#010000\t#020000\n#040000\t#050000\t#060000\n"));
    create("SwatchGrid");
    layOut(2, 2, 3);
    EXPECT_EQ(number(callShort(17, {0, 0})), 1);
    EXPECT_THAT(sink_.taken(), ElementsAre("2(2,2)"));
    EXPECT_EQ(value(2), 4);
}

TEST_F(SwatchGridTest, ARunIsCopiedPastedFramedAndToldAcrossTheEndsOfRows) {
    layOut(4, 4, 16);
    set(3, shortValue(1));
    EXPECT_THAT(selected(), ElementsAre(0));
    click(6);
    const QImage plain = widget().grab().toImage();
    drag(8, at(11), Qt::ShiftModifier);
    EXPECT_THAT(selected(), ElementsAre(6, 6, 11));
    EXPECT_EQ(marker(0), 6);
    const QImage framed = widget().grab().toImage();
    // Cells whose second pixel from the left or from above has changed: there the frame runs inside of them.
    std::vector<int> left, top;
    const auto changes = [&](int cell, QPoint step) {
        QPoint edge = at(cell);
        while (cellAt(edge + step) == cell)
            edge += step;
        return framed.pixelColor(edge - step) != plain.pixelColor(edge - step);
    };
    for (int cell = 0; cell < 16; ++cell) {
        if (changes(cell, {-1, 0}))
            left.push_back(cell);
        if (changes(cell, {0, -1}))
            top.push_back(cell);
    }
    EXPECT_THAT(left, ElementsAre(8));
    EXPECT_THAT(top, ElementsAre(7, 8, 9));
    QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(&widget());
    EXPECT_TRUE(table->text(QAccessible::Value).endsWith(QStringLiteral("6-11")));
    EXPECT_EQ(table->tableInterface()->selectedCellCount(), 6);
    EXPECT_THAT(table->tableInterface()->selectedRows(), ElementsAre(2));
    EXPECT_THAT(table->tableInterface()->selectedColumns(), IsEmpty());
    EXPECT_EQ(number(call(15, {})), 1);
    sink_.taken();
    EXPECT_EQ(number(callShort(17, {2, 3})), 1);
    EXPECT_THAT(sink_.taken(), ElementsAre("2(14,15)"));
    EXPECT_EQ(number(callShort(17, {3, 0})), 1); // 6 to 11 on 3 to 8
    EXPECT_THAT((std::vector{value(3), value(4), value(8), value(9), value(14)}),
                ElementsAre(6, 7, 11, 9, 6));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(selected(), ElementsAre(16, 0, 15));
    press(Qt::Key_Escape);
    EXPECT_THAT(selected(), ElementsAre(1, 6, 6));
}

TEST_F(SwatchGridTest, PaintsTheDisplayedColourUpToTheLastPixelOfEveryCell) {
    layOut(4, 4, 16);
    for (int cell = 0; cell < 16; ++cell)
        call(7, {shortValue(cell), longValue(static_cast<int>(0xff000000U) | cell * 0x0a0b0c)});
    call(26, {shortValue(6), longValue(0x0000ff)});
    EXPECT_EQ(value(6), static_cast<int>(0xff000000U) | 6 * 0x0a0b0c);
    for (const qreal scale : {1.0, 1.25, 2.0}) {
        QImage image((QSizeF(widget().size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        widget().render(&image);
        for (int cell = 0; cell < 16; ++cell) {
            const int bgr = cell == 6 ? 0x0000ff : cell * 0x0a0b0c;
            const QColor wanted(bgr & 255, bgr >> 8 & 255, bgr >> 16 & 255);
            EXPECT_EQ(image.pixelColor((QPointF(at(cell)) * scale).toPoint()), wanted) << cell;
        }
    }
    // The line that parts two cells belongs to the first.
    const QPoint middle = at(5);
    QPoint edge = middle;
    while (cellAt(edge + QPoint(1, 0)) == 5)
        edge.rx()++;
    const QImage image = widget().grab().toImage();
    EXPECT_NE(image.pixelColor(edge), image.pixelColor(middle));
    EXPECT_EQ(image.pixelColor(edge - QPoint(1, 0)), image.pixelColor(middle));
}

TEST_F(SwatchGridTest, TheCurrentCellAndTheBankStandOutOnAnyColour) {
    layOut(16, 16, 256);
    const QPoint current = at(85);
    for (const std::uint32_t colour : {0x000000U, 0xffffffU, 0x808080U, 0xff0000U}) {
        for (int cell = 0; cell < 256; ++cell)
            call(7, {shortValue(cell), longValue(static_cast<int>(colour))});
        callShort(11, {0, -1});
        set(2, false);
        const QImage plain = widget().grab().toImage();
        set(2, true);
        EXPECT_EQ(widget().grab().toImage(), plain);
        callShort(11, {0, 85});
        const QImage banked = widget().grab().toImage();
        EXPECT_NE(banked, plain);
        // Frames stay clear of the colour in the middle of the cells.
        EXPECT_EQ(banked.pixelColor(current), plain.pixelColor(current));
        bool light = false;
        bool dark = false;
        for (int x = current.x() - 12; x < current.x(); ++x) {
            light = light || banked.pixelColor(x, current.y()) == Qt::white;
            dark = dark || banked.pixelColor(x, current.y()) == Qt::black;
        }
        EXPECT_TRUE(light && dark) << colour;
        set(101, shortValue(2));
        EXPECT_NE(widget().grab().toImage(), banked);
        set(101, shortValue(-1));
    }
}

TEST_F(SwatchGridTest, TipsAndReadersGetTheTextOfTheHostOrTheValue) {
    layOut(4, 4, 16);
    call(7, {shortValue(6), longValue(0x7fabcdef)});
    callShort(11, {0, 6});
    QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(&widget());
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->role(), QAccessible::Table);
    EXPECT_EQ(table->text(QAccessible::Value), QStringLiteral("6  #7FABCDEF"));
    sink_.description = "Sky";
    EXPECT_EQ(table->text(QAccessible::Value), QStringLiteral("Sky"));
    ASSERT_NE(table->tableInterface(), nullptr);
    QAccessibleInterface* const cell = table->tableInterface()->cellAt(1, 2);
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->text(QAccessible::Name), QStringLiteral("Sky"));
    EXPECT_EQ(table->indexOfChild(cell), 6);
    EXPECT_EQ(table->focusChild(), cell);
    EXPECT_TRUE(cell->rect().contains(widget().mapToGlobal(at(6))));
    EXPECT_EQ(table->tableInterface()->cellAt(0, 4), nullptr);
    cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(sink_.taken(), ElementsAre(std::to_string(kClick) + "()"));
    QHelpEvent help(QEvent::ToolTip, at(9), widget().mapToGlobal(at(9)));
    QApplication::sendEvent(&widget(), &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Sky"));
    // A cell that goes takes what was known of it along.
    callShort(5, {2});
    EXPECT_EQ(table->tableInterface()->cellAt(1, 2), nullptr);
    EXPECT_EQ(table->childCount(), 2);
}

TEST_F(SwatchGridTest, CellsStaySquareAndFillTheWindow) {
    layOut(16, 16, 256);
    for (const QSize size : {QSize(400, 200), QSize(150, 600), QSize(271, 283)}) {
        widget().resize(size);
        const QPoint step = at(17) - at(0);
        EXPECT_EQ(step.x(), step.y());
        EXPECT_EQ(cellAt({size.width() - 1, size.height() - 1}), -1);
        EXPECT_LE(widget().heightForWidth(size.width()), size.width() + 1);
    }
    callShort(4, {0, 0, 0});
    EXPECT_EQ(cellAt({10, 10}), -1);
    press(Qt::Key_Right);
    EXPECT_FALSE(widget().grab().isNull());
}

} // namespace
} // namespace dyeworks
