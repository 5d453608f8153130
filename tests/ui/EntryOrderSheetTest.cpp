#include "Program.h"
#include "ui/controls/CSwatchGrid.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace dyeworks {
namespace {

/// A palette of 256 that goes from light to dark, an image of 8 bits, and in front one of 4 bits that shows
/// bank 0.
class EntryOrderSheets : public Program {
protected:
    EntryOrderSheets() {
        openAttached(pattern(4, 4), 8, 256);
        putImages(fake_, {"c:\\tex\\small.tmf"});
        EXPECT_TRUE(app_.OpenDocumentFile("c:\\tex\\small.tmf"));
        EXPECT_TRUE(run(ID_IMAGE_ATTACH));
        TextureLookupTable& palette = *app_.paletteSet()->lookup("");
        for (std::int32_t i = 0; i < 256; ++i)
            palette.setEntry(i, static_cast<std::uint16_t>((255 - i) / 8 * 0x842));
    }
};

TEST_F(EntryOrderSheets, SortAPaletteWithItsImagesUntilUndoInOneOfThem) {
    const TlutData before(app_.paletteSet()->lookup("")->table);
    const Texels texelsBefore = canvas();
    withNextDialog([](QDialog& sheet) {
        EXPECT_EQ(sheet.findChild<QListWidget*>("IDC_ORDER_IMAGES")->count(), 2);
        auto& banks = *sheet.findChild<QCheckBox*>("IDC_ORDER_BANKS");
        EXPECT_TRUE(banks.isChecked()) << "an image shows a bank alone";
        const auto& ok = *sheet.findChild<QPushButton*>("IDOK");
        auto& kept = *sheet.findChild<QLineEdit*>("IDC_ORDER_KEPT");
        kept.setText("0, 3-");
        EXPECT_FALSE(ok.isEnabled());
        kept.clear();
        banks.setChecked(false);
        EXPECT_FALSE(ok.isEnabled()) << "entry 1 would leave bank 0";
        banks.setChecked(true);
        sheet.accept();
    });
    ASSERT_TRUE(run(ID_PALETTE_SORT));
    EXPECT_FALSE(app_.paletteSet()->lookup("")->table == before);
    EXPECT_EQ(canvas()[0][0], 9U);
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    EXPECT_TRUE(app_.paletteSet()->lookup("")->table == before);
    EXPECT_EQ(canvas(), texelsBefore);
    ASSERT_TRUE(run(ID_PALETTE_REDO));
    EXPECT_EQ(canvas()[0][0], 9U);
}

TEST_F(EntryOrderSheets, ADragInTheGridMovesAndAsksOnlyWhereTexelsWouldLeave) {
    auto& grid = *frame().findChild<CSwatchGrid*>("IDC_PALETTE_GRID");
    const TlutData before(app_.paletteSet()->lookup("")->table);
    grid.selectRun(16, 17);
    Q_EMIT grid.runDropped(16, 17, 30);
    const TlutData& table = app_.paletteSet()->lookup("")->table;
    EXPECT_EQ(table.getEntry(30), before.getEntry(16));
    EXPECT_EQ(table.getEntry(16), before.getEntry(18));
    const auto selected = frame().paletteBar().state().cells().selectedRange();
    ASSERT_TRUE(selected);
    EXPECT_EQ(selected->first, 30);
    EXPECT_EQ(selected->last, 31);
    int asked = 0;
    withNextDialog([&asked](QDialog& sheet) {
        EXPECT_FALSE(sheet.findChild<QPushButton*>("IDOK")->isEnabled());
        ++asked;
        sheet.reject();
    });
    Q_EMIT grid.runDropped(1, 1, 20);
    EXPECT_EQ(asked, 1);
    ASSERT_TRUE(run(ID_PALETTE_UNDO));
    EXPECT_TRUE(table == before);
}

TEST_F(Program, PicturesThatAreNotOpenAreOpenedFirstAndFollow) {
    putImages(fake_, {"c:\\proj\\pic.tmf"});
    fake_.files.putFile("c:\\proj\\pic.tlf",
                        paletteFile(256, [](int i) { return static_cast<unsigned>(255 - i) / 8 * 0x842; }));
    openProject({"pic"});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\proj\\pic.tlf"));
    withNextDialog([](QDialog& sheet) {
        EXPECT_EQ(sheet.findChild<QListWidget*>("IDC_ORDER_IMAGES")->item(0)->text(),
                  "pic: is not open, and would show other colours");
        EXPECT_TRUE(sheet.findChild<QCheckBox*>("IDC_ORDER_OPEN")->isChecked());
        sheet.findChild<QCheckBox*>("IDC_ORDER_BANKS")->setChecked(true);
        sheet.accept();
    });
    ASSERT_TRUE(run(ID_PALETTE_SORT));
    EXPECT_EQ(image().paletteValue(), 32);
    EXPECT_NE(canvas()[0][0], 1U);
    const TextureLookupTable& palette = *app_.paletteSet()->lookup("");
    EXPECT_EQ(palette.table.getEntry(32 + static_cast<std::int32_t>(canvas()[0][0])), (255 - 33) / 8 * 0x842);
}

} // namespace
} // namespace dyeworks
