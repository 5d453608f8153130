#include "PaletteBarFixture.h"

namespace dyeworks {
namespace {

class Cells : public PaletteBar {};

TEST_F(Cells, EntriesAreShownWidenedInBothViews) {
    const std::tuple<int, ColourType, int, std::uint16_t, std::uint32_t, std::uint32_t, std::uint32_t>
        cases[] = {{4, ColourType::Rgba, 0, 0xFFFF, 0xFFFFFFFF, 0xFFFFFF, 0xFFFFFF},
                   {4, ColourType::Rgba, 15, 0x8420, 0x00848484, 0x848484, 0},
                   {16, ColourType::Ia, 255, 0x1203, 0x03121212, 0x121212, 0x030303}};
    for (const auto& [side, type, cell, entry, value, rgbView, alphaView] : cases) {
        open(side * side, type);
        palette().table.setEntry(cell, entry);
        bar_.ViewModeChosen(ViewMode::Rgb);
        EXPECT_THAT((std::vector{grid_.columns, grid_.rows}), ElementsAre(side, side));
        EXPECT_EQ(grid_.value(cell), value);
        EXPECT_EQ(grid_.colours.at(std::size_t(cell)), rgbView);
        bar_.ViewModeChosen(ViewMode::Alpha);
        EXPECT_EQ(grid_.colours.at(std::size_t(cell)), alphaView);
    }
}

TEST_F(Cells, TheCurrentOneStaysInsideTheGrid) {
    bar_.SelectCell(255);
    open(16, ColourType::Rgba);
    EXPECT_EQ(cells_.current(), 15) << "chosen before there was a palette";
    const std::string small = set_.currentKey;
    open(256, ColourType::Rgba);
    click(200);
    choose(small);
    EXPECT_EQ(bar_.entry().text(), "FFFE") << "that of cell 15";
    bar_.SelectCell(16);
    EXPECT_EQ(cells_.current(), 15);
    while (bar_.palette().exists())
        set_.closePalette("", true);
    EXPECT_EQ(grid_.cellCount(), 0);
    open(16, ColourType::Rgba);
    EXPECT_EQ(cells_.current(), 0);
}

TEST_F(Cells, OneWithoutAnEntryIsNotEdited) {
    TlutData five;
    ASSERT_TRUE(five.create(5, ColourType::Rgba));
    ASSERT_TRUE(set_.addCopy(five));
    EXPECT_EQ(grid_.cellCount(), 16);
    click(5);
    editor_.EntryTyped("1234");
    editor_.SliderMoved(Channel::Red, 3);
    bar_.Apply();
    EXPECT_FALSE(enabled(ID_PALETTE_EDIT) || enabled(ID_PALETTE_UNDO));
    click(4);
    bar_.GridChanged();
    EXPECT_EQ(stored(4), 0x001E);
}

TEST_F(Cells, BanksFollowCellsAndNumbers) {
    image_ = Image{4, 0};
    open(256, ColourType::Rgba);
    EXPECT_TRUE(grid_.bankMode);
    for (const int cell : {5 * 16 + 3, 5 * 16 + 4})
        click(cell);
    EXPECT_EQ(image_->paletteValue, 80);
    EXPECT_EQ(bankRedraws_, 1) << "once for a bank";
    bar_.RefreshFromPalette();
    EXPECT_EQ(cells_.paletteNumber(), 5);
    const std::pair<const char*, int> cases[] = {{"7", 7},  {"", 7},   {"16", 15}, {"99999999999", 15},
                                                 {"-3", 0}, {"12", 12}};
    for (const auto& [typed, bank] : cases) {
        bar_.NumberTyped(typed);
        EXPECT_EQ(cells_.paletteNumber(), bank) << typed;
        EXPECT_EQ(image_->paletteValue, 16 * bank) << typed;
        EXPECT_EQ(cells_.current(), 16 * bank + 4) << typed;
    }
}

TEST_F(Cells, StepsEndAtTheGridAndAlongTheRowAtTheBankThatIsShown) {
    EXPECT_FALSE(enabled(ID_ENTRY_NEXT));
    open(256, ColourType::Ia);
    const struct {
        std::int32_t from;
        CommandId step;
        std::int32_t to;
        std::int32_t toInBank;
    } cases[] = {{0, ID_ENTRY_PREVIOUS, 0, 0},       {15, ID_ENTRY_NEXT, 16, 15},
                 {16, ID_ENTRY_PREVIOUS, 15, 16},    {9, ID_ENTRY_ROW_UP, 9, 9},
                 {25, ID_ENTRY_ROW_UP, 9, 9},        {9, ID_ENTRY_ROW_DOWN, 25, 25},
                 {250, ID_ENTRY_ROW_DOWN, 250, 250}, {255, ID_ENTRY_NEXT, 255, 255}};
    for (const std::int32_t bits : {8, 4}) {
        image_ = Image{bits, 0};
        bar_.ImageChanged();
        for (const auto& [from, step, to, toInBank] : cases) {
            click(from);
            ASSERT_TRUE(run(step));
            EXPECT_EQ(cells_.current(), bits == 4 ? toInBank : to) << from << ' ' << step;
            EXPECT_EQ(image_->paletteValue, bits == 4 ? toInBank / 16 * 16 : 0);
        }
    }
    EXPECT_EQ(message_, "Entry 255: intensity 255, alpha 0");
}

TEST_F(Cells, TheImageIsTakenUpBeforeItsBankIsSet) {
    open(256, ColourType::Rgba);
    click(35);
    image_ = Image{8, 99};
    bar_.SetPaletteNumber(3);
    EXPECT_EQ(cells_.current(), 3) << "row 0 outside bank mode";
    EXPECT_EQ(image_->paletteValue + cells_.paletteNumber(), 0);
    image_ = Image{4, 0};
    bar_.SetPaletteNumber(6);
    EXPECT_EQ(image_->paletteValue, 96);
    EXPECT_EQ(cells_.current(), 99);
    editor_.EntryTyped("1234");
    bar_.ImageChanged();
    EXPECT_TRUE(bar_.entry().pending()) << "the same bank";
    image_.reset();
    bar_.ImageChanged();
    EXPECT_EQ(cells_.GetFirstEntry(), 0);
}

TEST_F(Cells, ChangedOnesAreCutToEntriesInOneEditAndTheOthersStay) {
    editor_.PreviewChecked(false);
    for (const ColourType type : {ColourType::Ia, ColourType::Rgba}) {
        open(16, type);
        const TlutData before = palette().table;
        for (std::int32_t cell = 7; cell < 13; ++cell)
            grid_.setValue(cell, 0x80F81029);
        bar_.GridChanged();
        for (std::int32_t entry = 0; entry < 16; ++entry) {
            const int pasted = type == ColourType::Ia ? 0x2980 : 5 << 11 | 2 << 6 | 31 << 1;
            EXPECT_EQ(stored(entry), entry < 7 || entry > 12 ? before.getEntry(entry) : pasted) << entry;
            EXPECT_EQ(seen(entry), stored(entry)) << entry;
        }
        ASSERT_TRUE(run(ID_PALETTE_UNDO));
        EXPECT_EQ(stored(12), before.getEntry(12));
        EXPECT_FALSE(enabled(ID_PALETTE_UNDO));
    }
}

} // namespace
} // namespace dyeworks
