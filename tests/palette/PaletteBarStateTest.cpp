#include "PaletteBarFixture.h"

namespace dyeworks {
namespace {

TEST_F(PaletteBar, StartsEmptyAndDoesNothingWithoutAPalette) {
    EXPECT_THAT(grid_.markers, ElementsAre(-1, -2, -2, -2));
    EXPECT_THAT(strip_.markers, ElementsAre(-2, -2, -2, -2));
    EXPECT_TRUE(grid_.selectable && !strip_.selectable);
    EXPECT_EQ(strip_.columns, 32);
    image_ = Image{4, 32};
    grid_.copied = true;
    grid_.selected = {{0, 0}};
    editor_.EntryTyped("1234");
    EXPECT_TRUE(editor_.ChannelTyped(Channel::Red, "99"));
    bar_.SetPaletteNumber(3);
    for (const CommandId id :
         {ID_PALETTE_EDIT, ID_PALETTE_COPY, ID_PALETTE_PASTE, ID_PALETTE_UNDO, ID_PALETTE_REDO})
        EXPECT_FALSE(run(id)) << id;
    bar_.GridChanged();
    bar_.GridClicked();
    bar_.StripClicked(3);
    bar_.TakeLeftEnd();
    bar_.TabChosen(0);
    bar_.ConfigureChannels();
    EXPECT_EQ(image_->paletteValue, 32);
    EXPECT_FALSE(bar_.entry().pending() || editor_.textIsWrong() || bar_.strip().isVisible());
    EXPECT_TRUE(images_.empty() && fake_.messages.shown.empty());
    EXPECT_EQ(bar_.tips().ofCell(3), "Palette is not open yet.");
}

TEST_F(PaletteBar, CommandsWriteIntoThePaletteThatTheyWereRunFor) {
    open(16, ColourType::Rgba);
    const std::string key = set_.currentKey;
    ASSERT_TRUE(run(ID_PALETTE_EDIT));
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO)) << "cancelled";
    answer_ = std::uint16_t{0xABCD};
    whileAsking_ = [this] { open(16, ColourType::Ia); };
    ASSERT_TRUE(run(ID_PALETTE_EDIT));
    EXPECT_EQ(set_.lookup(key)->table.getEntry(0), 0xABCD);
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO));

    whileAsking_ = [this] { set_.closePalette("", true); };
    ASSERT_TRUE(run(ID_PALETTE_EDIT));
    EXPECT_EQ(set_.currentKey, key);
    EXPECT_EQ(stored(0), 0xABCD);
}

TEST_F(PaletteBar, CellsArePastedAtTheSelectionOrTheCurrentCell) {
    open(16, ColourType::Rgba);
    click(6);
    EXPECT_FALSE(enabled(ID_PALETTE_COPY) || enabled(ID_PALETTE_PASTE));
    grid_.selected = {{3, 2}};
    ASSERT_TRUE(run(ID_PALETTE_COPY) && run(ID_PALETTE_PASTE));
    EXPECT_EQ(grid_.pastedAt, 11);
    grid_.selected.reset();
    ASSERT_TRUE(run(ID_PALETTE_PASTE));
    EXPECT_EQ(grid_.pastedAt, 6);
}

TEST_F(PaletteBar, TheStripRunsBetweenItsEnds) {
    open(16, ColourType::Rgba);
    EXPECT_EQ(strip_.value(31), 0xFFFEU) << "alpha comes from the left end";
    EXPECT_EQ(strip_.colours[31], 0xF8F8F8U);
    bar_.StripClicked(2);
    EXPECT_EQ(bar_.entry().text(), "842") << "lower case, without leading zero";
    EXPECT_EQ(bar_.entry().channels(), (ChannelValues{{1, 1, 1, 0}}));
    editor_.EntryTyped("F801");
    bar_.TakeLeftEnd();
    editor_.EntryTyped("3e");
    bar_.TakeRightEnd();
    EXPECT_EQ(strip_.value(0), 0xF801U);
    EXPECT_EQ(strip_.value(31), 0x003FU);
    EXPECT_EQ(strip_.value(30), 1U << 11U | 29U << 1U | 1U);
    for (const int cell : {31, 32, -1})
        bar_.StripClicked(cell);
    EXPECT_EQ(bar_.entry().text(), "3f");
}

TEST_F(PaletteBar, TipsAreCutBetweenCharacters) {
    open(16, ColourType::Rgba);
    std::string japanese;
    for (int i = 0; i < 127; ++i)
        japanese += "色";
    EXPECT_EQ(bar_.tips().of(japanese + "色"), japanese);
}

TEST_F(PaletteBar, TellsTheViewOncePerAction) {
    open(256, ColourType::Ia);
    open(256, ColourType::Ia);
    // The last tab is the one that stays as it is.
    bar_.TabChosen(0);
    const auto count = [this](const std::function<void()>& action) {
        read_ = {};
        action();
        return read_;
    };
    EXPECT_THAT(count([this] { editor_.SliderMoved(Channel::Red, 9); }), ElementsAre(1, 0, 0));
    EXPECT_THAT(count([this] { bar_.Apply(); }), ElementsAre(1, 0, 1)) << "unsaved";
    EXPECT_THAT(count([this] { run(ID_PALETTE_UNDO); }), ElementsAre(1, 0, 1));
    ASSERT_TRUE(palette().table.create(256, ColourType::Rgba));
    EXPECT_THAT(count([this] { bar_.RefreshFromPalette(); }), ElementsAre(1, 1, 0)) << "of another kind now";
    EXPECT_THAT(count([this] { bar_.TabChosen(1); }), ElementsAre(1, 1, 1));
}

} // namespace
} // namespace dyeworks
