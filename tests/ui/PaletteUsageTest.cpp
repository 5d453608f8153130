#include "Program.h"
#include "core/EntryText.h"
#include "core/PaletteSet.h"
#include "ui/controls/CSwatchGrid.h"

#include <QAccessible>

namespace dyeworks {
namespace {

class Usage : public Program {
protected:
    /// What a screen reader says of a cell, without its colour.
    [[nodiscard]] std::string said(int cell) {
        QWidget* const grid =
            frame().paletteBar().findChild<CSwatchGrid*>("IDC_PALETTE_GRID")->controlWindow();
        const std::string name =
            QAccessible::queryAccessibleInterface(grid)->child(cell)->text(QAccessible::Name).toStdString();
        const std::string told = toldEntry(app_.paletteSet()->lookup("")->table, cell);
        EXPECT_TRUE(name.starts_with(told)) << name;
        return std::to_string(cell) + name.substr(std::min(told.size(), name.size()));
    }
    [[nodiscard]] QImage seen() { return view().viewport()->grab().toImage(); }
};

TEST_F(Usage, OfCellsIsSaidWhileItIsShownAndFollowsTheImages) {
    openAttached(texels(8, 8, [](int x, int) { return x < 2 ? 2U : 4U; }), 4, 256);
    EXPECT_EQ(said(2), "2");
    ASSERT_TRUE(run(ID_VIEW_USAGE));
    EXPECT_EQ(said(2), "2: 16 texels");
    drawPixel({1, 1}, 4);
    settle();
    EXPECT_EQ(said(4), "4: 49 texels");
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    settle();
    EXPECT_EQ(said(4), "4: 48 texels");
    frame().SetPaletteBarNumber(1);
    settle();
    EXPECT_EQ(said(4), "4: not used");
    EXPECT_EQ(said(20), "20: 48 texels");
    changePalette();
    app_.paletteSet()->lookup("")->setEntry(4, 0x1234);
    frame().RefreshPaletteBar();
    settle();
    EXPECT_EQ(said(3), "3: not used, same as entry 4");
    ASSERT_TRUE(run(ID_VIEW_USAGE));
    EXPECT_EQ(said(3), "3");
}

TEST_F(Usage, TexelsFlashWithoutBeingTouchedUntilAnEditEndsIt) {
    openAttached(pattern(8, 8), 4, 16);
    frame().show();
    app_.imageHost().selectPaletteBarCell(3);
    const QImage before = seen();
    const Texels held = canvas();
    ASSERT_TRUE(enabled(ID_PALETTE_SHOW_TEXELS));
    ASSERT_TRUE(run(ID_PALETTE_SHOW_TEXELS));
    EXPECT_NE(seen(), before);
    EXPECT_EQ(canvas(), held);
    QTRY_COMPARE(seen(), before);
    ASSERT_TRUE(run(ID_PALETTE_SHOW_TEXELS));
    drawPixel({1, 1}, canvas()[1][1] == 5 ? 6 : 5);
    const QImage after = seen();
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    EXPECT_EQ(seen(), before);
    EXPECT_NE(after, before);
}

} // namespace
} // namespace dyeworks
