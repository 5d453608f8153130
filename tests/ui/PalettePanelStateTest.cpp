#include "ui/PalettePanelState.h"

#include "platform/fake/FakePlatform.h"

namespace dyeworks {
namespace {

using Image = PalettePanelState::Image;

class PalettePanelStateTest : public testing::Test {
protected:
    TextureLookupTable* palette(std::int32_t count, ColourType type = ColourType::Rgba) {
        EXPECT_TRUE(palette_.table.create(count, type));
        return &palette_;
    }

    FakePlatform fake_;
    PalettePanelState state_;

private:
    TextureLookupTable palette_;
};

TEST_F(PalettePanelStateTest, BringsTheCellIntoThePalette) {
    state_.show(nullptr, {});
    EXPECT_EQ(state_.cell(), -1);
    state_.show(palette(256), {});
    EXPECT_EQ(state_.cell(), 0);
    EXPECT_EQ(state_.columns(), 16);
    state_.selectCell(200);
    state_.show(palette(16), {});
    EXPECT_EQ(state_.cell(), 15);
    EXPECT_EQ(state_.columns(), 4);
}

TEST_F(PalettePanelStateTest, HasBanksOnlyForAnImageOfSixteenColoursAndAPaletteOf256) {
    struct Case {
        std::int32_t entries;
        std::optional<Image> image;
        bool banks;
    };
    const Case cases[] = {{256, Image{4, 80}, true},
                          {256, Image{8, 80}, false},
                          {256, std::nullopt, false},
                          {16, Image{4, 80}, false}};
    for (const Case& c : cases) {
        state_.show(palette(c.entries), c.image);
        EXPECT_EQ(state_.inBankMode(), c.banks) << c.entries;
        EXPECT_EQ(state_.firstEntry(), c.banks ? 80 : 0) << c.entries;
    }
}

TEST_F(PalettePanelStateTest, ACellOfAnotherRowSelectsItsBank) {
    state_.show(palette(256), Image{4, 0});
    EXPECT_TRUE(state_.chooseCell(5 * 16 + 3));
    EXPECT_EQ(state_.firstEntry(), 80);
    EXPECT_FALSE(state_.chooseCell(5 * 16 + 15)) << "the bank stays";
    EXPECT_EQ(state_.cell(), 95);
}

TEST_F(PalettePanelStateTest, ABankKeepsTheColumnAndStaysInRange) {
    state_.show(palette(256), Image{4, 0});
    state_.chooseCell(7);
    EXPECT_TRUE(state_.chooseBank(99));
    EXPECT_EQ(state_.bank(), 15);
    EXPECT_EQ(state_.cell(), 15 * 16 + 7);
    EXPECT_TRUE(state_.chooseBank(-1));
    EXPECT_EQ(state_.cell(), 7);
}

TEST_F(PalettePanelStateTest, OutsideBankModeACellSelectsNoBank) {
    state_.show(palette(256), Image{8, 0});
    EXPECT_FALSE(state_.chooseCell(200));
    EXPECT_FALSE(state_.chooseBank(3));
    EXPECT_EQ(state_.cell(), 200);
    EXPECT_EQ(state_.firstEntry(), 0);
}

TEST_F(PalettePanelStateTest, TellsAnEntryByItsColourType) {
    TextureLookupTable* rgba = palette(16);
    rgba->table.setEntry(12, 0x7BDE);
    EXPECT_EQ(PalettePanelState::describe(*rgba, 12), "12  #7BDE  R15 G15 B15 A0");
    EXPECT_EQ(PalettePanelState::describe(*rgba, 16), "");
    EXPECT_EQ(PalettePanelState::describe(*rgba, -1), "");
    TextureLookupTable* ia = palette(16, ColourType::Ia);
    ia->table.setEntry(3, 0x7BDE);
    EXPECT_EQ(PalettePanelState::describe(*ia, 3), "3  #7BDE  I123 A222");
}

TEST_F(PalettePanelStateTest, ShowsDisplayColoursInTheirByteOrder) {
    TextureLookupTable* rgba = palette(16);
    rgba->table.setEntry(1, 31 << 11 | 16 << 6 | 1 << 1);
    EXPECT_EQ(PalettePanelState::colours(*rgba).at(1), 0xfff88008U);
}

} // namespace
} // namespace dyeworks
