#include "palette/RangeCommands.h"

#include "PaletteBarFixture.h"
#include "palette/EntryOperations.h"
#include "palette/RangeAdjustment.h"

namespace dyeworks {
namespace {

class Ranges : public PaletteBar, private RangeView {
protected:
    bool askAdjustment(RangeAdjustment& adjustment) override { return adjust_(adjustment); }

    bool run(CommandId id) { return router_.run(id); }
    bool enabled(CommandId id) { return router_.state(id).enabled; }
    /// The cells of the grid, of which the images show the same.
    std::vector<std::uint32_t> shown() { return grid_.values; }
    void select(std::int32_t first, std::int32_t last) { grid_.cells = {first, last, last - first + 1}; }

    std::function<bool(RangeAdjustment&)> adjust_ = [](RangeAdjustment&) { return false; };
    RangeCommands ranges_{bar_, *this, *this};
    CommandRouter router_{[this] { return std::vector<CommandTarget*>{&commands_, &ranges_}; }};
};

constexpr CommandId kAll[] = {ID_RANGE_RAMP, ID_RANGE_ADJUST, ID_RANGE_INVERT, ID_RANGE_REVERSE,
                              ID_RANGE_FILL};

TEST_F(Ranges, EachCommandIsOneStepOnTheRangeOrThePaletteAndNoneWithoutAChange) {
    for (const CommandId id : kAll)
        EXPECT_FALSE(enabled(id)) << id;
    open(16, ColourType::Rgba);
    click(3);
    editor_.EntryTyped("1234");
    const TlutData before = palette().table;
    const std::function<void(TlutData&, EntryRange)> operations[] = {
        rampEntries, invertEntries, reverseEntries,
        [](TlutData& table, EntryRange range) { fillEntries(table, range, 0x1234); }};
    const CommandId ids[] = {ID_RANGE_RAMP, ID_RANGE_INVERT, ID_RANGE_REVERSE, ID_RANGE_FILL};
    for (const EntryRange range : {EntryRange{2, 9}, EntryRange{0, 15}}) {
        for (std::size_t i = 0; i < std::size(ids); ++i) {
            editor_.EntryTyped("1234");
            // The current cell alone is no range.
            range.last == 15 ? select(3, 3) : select(range.first, range.last);
            TlutData wanted = before;
            operations[i](wanted, range);
            ASSERT_TRUE(run(ids[i]));
            EXPECT_EQ(palette().table, wanted) << ids[i];
            EXPECT_EQ(seen(5), stored(5));
            ASSERT_TRUE(run(ID_PALETTE_UNDO));
            EXPECT_EQ(palette().table, before);
            EXPECT_FALSE(enabled(ID_PALETTE_UNDO)) << "more than one step";
        }
    }
    // Two entries have nothing between them; a block has entries between that are not meant.
    select(4, 5);
    EXPECT_FALSE(enabled(ID_RANGE_RAMP));
    EXPECT_TRUE(enabled(ID_RANGE_REVERSE));
    grid_.cells = {5, 10, 4};
    for (const CommandId id : kAll)
        EXPECT_FALSE(enabled(id)) << id;
    grid_.cells = {};
    EXPECT_TRUE(run(ID_RANGE_FILL));
    EXPECT_TRUE(run(ID_RANGE_FILL) && run(ID_RANGE_RAMP) && run(ID_RANGE_REVERSE));
    EXPECT_TRUE(run(ID_PALETTE_UNDO));
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO)) << "one entry everywhere is the same in every order";
}

TEST_F(Ranges, AnAdjustmentIsShownAtOnceAndCancelledWithoutATrace) {
    open(256, ColourType::Rgba);
    click(20);
    editor_.EntryTyped("F801");
    select(18, 40);
    const TlutData before = palette().table;
    const auto cells = shown();
    const auto images = images_;
    bool accepts = false;
    adjust_ = [&](RangeAdjustment& adjustment) {
        adjustment.choose({.brightness = -100, .alphaBy = 1});
        EXPECT_EQ(seen(30), 0x0001);
        EXPECT_EQ(grid_.values.at(30), 0xFF000000U);
        EXPECT_EQ(seen(41), before.getEntry(41));
        adjustment.choose({});
        EXPECT_EQ(grid_.values, cells) << "made of what was shown, not of what was there";
        adjustment.choose({.hue = 77});
        EXPECT_EQ(palette().table, before);
        return accepts;
    };
    ASSERT_TRUE(run(ID_RANGE_ADJUST));
    EXPECT_EQ(shown(), cells);
    EXPECT_EQ(images_, images) << "the edited entry included";
    EXPECT_EQ(bar_.entry().text(), "F801");
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO));
    accepts = true;
    ASSERT_TRUE(run(ID_RANGE_ADJUST));
    TlutData wanted = before;
    adjustEntries(wanted, {18, 40}, {.hue = 77});
    EXPECT_EQ(palette().table, wanted);
    ASSERT_TRUE(run(ID_PALETTE_UNDO));
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO));
    adjust_ = [&](RangeAdjustment& adjustment) {
        adjustment.choose({.hue = 77});
        adjustment.choose({});
        return true;
    };
    ASSERT_TRUE(run(ID_RANGE_ADJUST));
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO)) << "nothing was changed";
    // Files may be handed to the program, and palettes go, while the sheet is open.
    const std::string key = set_.currentKey;
    adjust_ = [&](RangeAdjustment& adjustment) {
        open(256, ColourType::Ia);
        const auto other = shown();
        adjustment.choose({.hue = 77});
        EXPECT_EQ(shown(), other);
        set_.closePalette(key, true);
        adjustment.choose({.hue = 78});
        return true;
    };
    ASSERT_TRUE(run(ID_RANGE_ADJUST));
    EXPECT_FALSE(enabled(ID_PALETTE_UNDO));
}

} // namespace
} // namespace dyeworks
