#include "ui/controls/SwatchGrid.h"

#include <QSignalSpy>
#include <QTest>

namespace dyeworks {
namespace {

std::vector<QRgb> greys(int count) {
    std::vector<QRgb> colours;
    for (int i = 0; i < count; ++i)
        colours.push_back(qRgb(i, i, i));
    return colours;
}

TEST(SwatchGrid, EveryCellIsFoundAtItsCornersAndPaintedInItsColour) {
    SwatchGrid grid;
    grid.setColours(greys(256), 16);
    grid.resize(317, 290);
    const QImage picture = grid.grab().toImage();
    for (int cell = 0; cell < 256; ++cell) {
        const QRect area = grid.cellRect(cell);
        ASSERT_EQ(area.width(), area.height());
        ASSERT_TRUE(grid.rect().contains(area)) << cell;
        ASSERT_EQ(grid.cellAt(area.topLeft()), cell);
        ASSERT_EQ(grid.cellAt(area.bottomRight()), cell);
        ASSERT_EQ(picture.pixel(area.center()), qRgb(cell, cell, cell));
    }
    EXPECT_EQ(grid.cellAt({0, 0}), SwatchGrid::kNone);
    EXPECT_EQ(grid.cellAt(grid.rect().bottomRight()), SwatchGrid::kNone);
}

TEST(SwatchGrid, KeysMoveInsideTheGridAndStopAtItsEdges) {
    struct Case {
        int from;
        Qt::Key key;
        Qt::KeyboardModifier modifier;
        int to;
    };
    const Case cases[] = {
        {5, Qt::Key_Left, Qt::NoModifier, 4},      {5, Qt::Key_Right, Qt::NoModifier, 6},
        {5, Qt::Key_Up, Qt::NoModifier, 1},        {5, Qt::Key_Down, Qt::NoModifier, 9},
        {5, Qt::Key_Home, Qt::NoModifier, 4},      {5, Qt::Key_End, Qt::NoModifier, 7},
        {5, Qt::Key_Home, Qt::ControlModifier, 0}, {5, Qt::Key_End, Qt::ControlModifier, 15},
        {0, Qt::Key_Left, Qt::NoModifier, 0},      {2, Qt::Key_Up, Qt::NoModifier, 2},
        {15, Qt::Key_Right, Qt::NoModifier, 15},   {13, Qt::Key_Down, Qt::NoModifier, 13},
    };
    for (const Case& c : cases) {
        SwatchGrid grid;
        grid.setColours(greys(16), 4);
        grid.setCurrentCell(c.from);
        QSignalSpy chosen(&grid, &SwatchGrid::cellChosen);
        QTest::keyClick(&grid, c.key, c.modifier);
        EXPECT_EQ(grid.currentCell(), c.to) << c.from << " " << c.key;
        EXPECT_EQ(chosen.count(), c.from == c.to ? 0 : 1) << c.from << " " << c.key;
    }
}

TEST(SwatchGrid, ACellBeyondTheNewColoursIsNoLongerCurrent) {
    SwatchGrid grid;
    grid.setColours(greys(256), 16);
    grid.setCurrentCell(200);
    grid.setColours(greys(16), 4);
    EXPECT_EQ(grid.currentCell(), SwatchGrid::kNone);
    grid.setColours({}, 0);
    EXPECT_EQ(grid.cellAt({5, 5}), SwatchGrid::kNone);
    grid.resize(40, 40);
    EXPECT_FALSE(grid.grab().isNull());
}

} // namespace
} // namespace dyeworks
