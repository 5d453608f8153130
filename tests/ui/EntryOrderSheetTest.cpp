#include "Program.h"

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

} // namespace
} // namespace dyeworks
