#include "ui/BanksBar.h"

#include "Program.h"
#include "core/PaletteSet.h"
#include "ui/ThumbnailButton.h"

#include <QTabWidget>

namespace dyeworks {
namespace {

class Banks : public Program {
protected:
    void open(int bits, int entries) {
        openAttached(pattern(12, 12), bits, entries);
        frame().resize(1200, 800);
        frame().show();
        ASSERT_TRUE(run(ID_VIEW_BANKSBAR));
        settle();
    }
    [[nodiscard]] BanksBar& bar() { return *frame().findChild<BanksBar*>(); }
    [[nodiscard]] ThumbnailButton& button(const char* sheet, int index) {
        return *bar().findChild<QWidget*>(sheet)->findChildren<ThumbnailButton*>().at(index);
    }
    void showPalettes() {
        bar().findChild<QTabWidget*>()->setCurrentIndex(1);
        settle();
    }
    /// What the pixel of a texel shows is the entry of the palette, and every texel has one.
    void expectShows(ThumbnailButton& shown, const TextureLookupTable& palette, int first) {
        const QImage& picture = shown.picture();
        ASSERT_GE(picture.width(), 12);
        const Texels held = canvas();
        for (int y = 0; y < 12; ++y) {
            for (int x = 0; x < 12; ++x) {
                std::uint8_t b = 0, g = 0, r = 0, none = 0;
                const auto value = static_cast<int>(held.at(std::size_t(y)).at(std::size_t(x)));
                static_cast<void>(palette.toRgbQuad(first + value, b, g, r, none));
                const QPoint middle((2 * x + 1) * picture.width() / 24, (2 * y + 1) * picture.height() / 24);
                ASSERT_EQ(picture.pixel(middle), qRgb(r, g, b)) << x << ' ' << y;
            }
        }
    }
    void expectAllBanks(const TextureLookupTable& palette) {
        for (int bank = 0; bank < 16; ++bank)
            ASSERT_NO_FATAL_FAILURE(expectShows(button("IDC_BANKS", bank), palette, 16 * bank)) << bank;
    }
    [[nodiscard]] TextureLookupTable& palette() { return *image().GetAttachedPalette(); }
};

TEST_F(Banks, ShowTheImageWhileItIsDrawnAndItsColoursArePreviewed) {
    open(4, 256);
    expectAllBanks(palette());
    ASSERT_TRUE(run(ID_TOOL_PEN));
    app_.imageHost().selectPaletteBarCell(9);
    QTest::mousePress(view().viewport(), Qt::LeftButton, {}, at(1, 1));
    moveMouse(at(7, 5), Qt::LeftButton);
    settle();
    ASSERT_EQ(canvas()[5][7], 9U);
    expectAllBanks(palette());
    QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, at(7, 5));
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    settle();
    expectAllBanks(palette());

    TextureLookupTable passing(palette());
    passing.setEntry(35, 0x1235);
    app_.BroadcastPaletteChange(palette().path, passing);
    settle();
    expectAllBanks(passing);
    app_.RefreshImagePalettes();
    settle();
    expectAllBanks(palette());
    // Of another size.
    ASSERT_TRUE(run(ID_IMAGE_TURN_LEFT));
    settle();
    expectAllBanks(palette());
}

TEST_F(Banks, AreChosenByMouseAndKeyboardAndSayWhichIsChosen) {
    open(4, 256);
    QTest::mouseClick(&button("IDC_BANKS", 3), Qt::LeftButton);
    EXPECT_EQ(image().paletteValue(), 48);
    settle();
    ThumbnailButton& third = button("IDC_BANKS", 3);
    EXPECT_TRUE(third.isChecked() && !button("IDC_BANKS", 0).isChecked());
    EXPECT_EQ(third.accessibleName(), "Bank 3");
    frame().activateWindow();
    third.setFocus();
    QTest::keyClick(&third, Qt::Key_Down);
    QTest::keyClick(&button("IDC_BANKS", 7), Qt::Key_Return);
    EXPECT_EQ(image().paletteValue(), 112);
    // Also while the palette bar shows another palette.
    ASSERT_TRUE(app_.paletteSet()->newPalette(256, ColourType::Rgba, 1));
    settle();
    QTest::mouseClick(&button("IDC_BANKS", 5), Qt::LeftButton);
    EXPECT_EQ(image().paletteValue(), 80);
}

TEST_F(Banks, PalettesStandSideBySideAndAreAttachedByAClick) {
    open(8, 256);
    EXPECT_FALSE(bar().findChild<QWidget*>("IDC_BANKS")->isVisible()) << "8 bits have none";
    ASSERT_TRUE(app_.paletteSet()->newPalette(256, ColourType::Ia, 1));
    const std::string other = app_.paletteSet()->currentKey;
    showPalettes();
    expectShows(button("IDC_PALETTES", 0), *app_.paletteSet()->lookup(other), 0);
    expectShows(button("IDC_PALETTES", 1), palette(), 0);
    EXPECT_TRUE(button("IDC_PALETTES", 1).isChecked());
    QTest::mouseClick(&button("IDC_PALETTES", 0), Qt::LeftButton);
    EXPECT_EQ(image().attachedName(), other);
    settle();
    EXPECT_TRUE(button("IDC_PALETTES", 0).isChecked());
}

TEST_F(Banks, AreIdleWhileHidden) {
    open(4, 256);
    ASSERT_TRUE(run(ID_VIEW_BANKSBAR));
    const QImage before = button("IDC_BANKS", 0).picture().copy();
    drawPixel({2, 2}, 7);
    settle();
    EXPECT_EQ(button("IDC_BANKS", 0).picture(), before);
    ASSERT_TRUE(run(ID_VIEW_BANKSBAR));
    settle();
    expectAllBanks(palette());
}

} // namespace
} // namespace dyeworks
