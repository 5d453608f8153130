#include "palette/PaletteBarState.h"

#include "core/PaletteSet.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using Source = PaletteBarState::Source;

class GridOfCells : public PaletteGrid {
public:
    void setBankMode(bool on) override { bankMode = on; }
    void setSelectable(bool on) override { selectable = on; }
    void setCellCount(int count) override {
        values.resize(std::size_t(count));
        colours.resize(values.size());
    }
    void setLayout(int newColumns, int newRows) override {
        std::tie(columns, rows) = std::tie(newColumns, newRows);
    }
    int cellCount() const override { return static_cast<int>(values.size()); }
    void setValue(int cell, std::uint32_t value) override { values.at(std::size_t(cell)) = value; }
    std::uint32_t value(int cell) const override { return values.at(std::size_t(cell)); }
    void setColour(int cell, std::uint32_t colour) override { colours.at(std::size_t(cell)) = colour; }
    void setMarker(int marker, int cell) override { markers.at(std::size_t(marker)) = cell; }
    int marker(int marker) const override { return markers.at(std::size_t(marker)); }
    std::optional<Cell> selection() const override { return std::nullopt; }
    bool copy() override { return false; }
    bool hasCopiedCells() const override { return true; }
    bool paste(Cell) override { return false; }
    void redraw() override {}

    bool bankMode = false;
    bool selectable = false;
    int columns = 0;
    int rows = 0;
    std::vector<std::uint32_t> values;
    std::vector<std::uint32_t> colours;
    std::vector<int> markers{5, 5, 5, 5};
};

/// A bar over real palettes, and images of which only the entries that they show are kept.
class PaletteBar : public testing::Test, protected PaletteBarHost, protected PaletteBarView {
protected:
    PaletteBar() {
        setApplicationPaletteSet(&set_);
        bar_.Start(grid_, strip_);
        bar_.RebuildTabs({});
    }

    // What the application does when the palettes have changed.
    void palettesChanged() {
        std::vector<std::string> keys;
        set_.listKeys(keys);
        bar_.RebuildTabs(keys);
        bar_.RefreshFromPalette();
    }
    void open(std::int32_t count, ColourType type) {
        EXPECT_TRUE(set_.newPalette(count, type, 0));
        palettesChanged();
        RefreshImagePalettes();
    }
    TextureLookupTable& palette() { return *bar_.currentPalette(); }
    std::uint16_t stored(std::int32_t entry) { return palette().table.getEntry(entry); }
    /// What the images attached to the current palette show.
    std::uint16_t seen(std::int32_t entry) { return images_[set_.currentKey].at(std::size_t(entry)); }
    /// Palettes stand in the order of their names, which count on through a whole run.
    void choose(const std::string& key) {
        std::int32_t tab = 0;
        for (std::string found; set_.keyAt(tab, found) && found != key;)
            ++tab;
        bar_.TabChosen(tab);
    }
    void click(std::int32_t cell) {
        grid_.setMarker(0, cell);
        bar_.GridClicked();
    }

    // PaletteBarHost
    PaletteSet* paletteSet() override { return &set_; }
    std::optional<Image> activeImage() const override { return image_; }
    void setActivePaletteValue(std::int32_t firstEntry) override {
        EXPECT_EQ(bar_.GetFirstEntry(), firstEntry) << "the image asks the bar for its colours";
        image_->paletteValue = firstEntry;
        ++bankRedraws_;
    }
    void BroadcastPaletteChange(const std::string& key, const TextureLookupTable& shown) override {
        images_[key].assign(shown.table.entries, shown.table.entries + shown.table.count);
        ++broadcasts_;
    }
    void RefreshImagePalettes() override {
        if (bar_.hasPalette())
            BroadcastPaletteChange(set_.currentKey, palette());
    }

    void RefreshAllImages() override {
        for (const auto& [key, palette] : set_.palettes)
            BroadcastPaletteChange(key, *palette);
    }

    // PaletteBarView
    void valuesChanged() override { ++read_[0]; }
    void layoutChanged() override { ++read_[1]; }
    void tabsChanged() override { ++read_[2]; }
    std::optional<std::uint16_t> askEntry(ColourType type, std::uint16_t start) override {
        asked_ = {type, start};
        whileAsking_();
        return answer_;
    }

    FakePlatform fake_;
    PaletteSet set_;
    std::optional<Image> image_;
    std::map<std::string, std::vector<std::uint16_t>> images_;
    int broadcasts_ = 0;
    int bankRedraws_ = 0;
    std::array<int, 3> read_{}; ///< How often values, layout and tabs were.
    std::optional<std::pair<ColourType, std::uint16_t>> asked_;
    std::optional<std::uint16_t> answer_;
    std::function<void()> whileAsking_ = [] {};
    GridOfCells grid_;
    GridOfCells strip_;
    PaletteBarState bar_{*this, *this};
};

struct Expected {
    ColourType type;
    std::uint16_t entry;
    ChannelValues channels;
    ColourRef rgbView;
    ColourRef alphaView;

    friend void PrintTo(const Expected& expected, std::ostream* out) { *out << expected.entry; }
};

constexpr Expected kExpected[] = {
    {ColourType::Rgba, 0x7FFF, {{15, 31, 31, 1}}, 0xF8F878, 0xFFFFFF},
    {ColourType::Rgba, 0xF804, {{31, 0, 2, 0}}, 0x1000F8, 0x000000},
    {ColourType::Ia, 0x7F03, {{127, 0, 0, 3}}, 0x7F7F7F, 0x030303},
};

class EverySource : public PaletteBar,
                    public testing::WithParamInterface<std::tuple<Source, Expected, ViewMode, bool>> {
protected:
    void change(Source source, const Expected& expected) {
        if (source == Source::Palette) {
            palette().table.setEntry(kCell, expected.entry);
            bar_.SyncControls(Source::Palette);
        } else if (source == Source::EntryText) {
            bar_.EntryTyped(expected.entry == 0x7FFF ? "7ffF" : dyeworks::entryText(expected.entry));
        }
        for (const Channel channel : kChannels) {
            const std::int32_t value = expected.channels[channel];
            const bool colourOnly = channel == Channel::Green || channel == Channel::Blue;
            EXPECT_EQ(bar_.channelRow(channel).visible, expected.type == ColourType::Rgba || !colourOnly);
            if (source == Source::ChannelEdits) {
                EXPECT_TRUE(bar_.ChannelTyped(channel, std::to_string(value)));
            } else if (source == Source::Sliders) {
                bar_.SliderMoved(channel, value);
            } else if (source == Source::Trackbars) {
                bar_.TrackbarScrolled(channel, 5, value);
                for (const int code : {0, 1, 4, 8})
                    bar_.TrackbarScrolled(channel, code, value == 0 ? 1 : 0);
            }
        }
    }

    static constexpr std::int32_t kCell = 37;
};

TEST_P(EverySource, BringsAllMirrorsIntoStep) {
    const auto& [source, expected, mode, banked] = GetParam();
    if (banked)
        image_ = Image{4, 32};
    open(256, expected.type);
    EXPECT_EQ(bar_.inBankMode(), banked);
    bar_.ViewModeChosen(mode);
    click(kCell);
    const std::uint16_t before = stored(kCell);
    ASSERT_NE(before, expected.entry);

    change(source, expected);
    EXPECT_EQ(bar_.channels(), expected.channels);
    EXPECT_EQ(bar_.ParseEntryText(), expected.entry);
    EXPECT_EQ(bar_.editColour(), mode == ViewMode::Rgb ? expected.rgbView : expected.alphaView);
    EXPECT_EQ(seen(kCell), expected.entry) << "previewed";
    EXPECT_EQ(bar_.pending(), source != Source::Palette);
    EXPECT_EQ(bar_.CanApply(), source != Source::Palette);
    EXPECT_FALSE(bar_.CanUndo()) << "a preview is no edit";
    EXPECT_EQ(bar_.GetFirstEntry(), banked ? 32 : 0);
    if (source == Source::Palette)
        return;

    EXPECT_EQ(stored(kCell), before);
    bar_.Apply();
    EXPECT_EQ(stored(kCell), expected.entry);
    EXPECT_EQ(grid_.value(kCell), cellValue(expected.type, expected.entry));
    EXPECT_FALSE(bar_.CanApply());
    ASSERT_TRUE(bar_.CanUndo());
    bar_.Undo();
    EXPECT_EQ(stored(kCell), before);
    EXPECT_EQ(seen(kCell), before);
    EXPECT_EQ(bar_.ParseEntryText(), before);
    bar_.Redo();
    EXPECT_EQ(stored(kCell), expected.entry);
    EXPECT_EQ(seen(kCell), expected.entry);
}

INSTANTIATE_TEST_SUITE_P(All, EverySource,
                         testing::Combine(testing::Values(Source::Palette, Source::ChannelEdits,
                                                          Source::Trackbars, Source::EntryText,
                                                          Source::Sliders),
                                          testing::ValuesIn(kExpected),
                                          testing::Values(ViewMode::Rgb, ViewMode::Alpha), testing::Bool()));

TEST_F(PaletteBar, StartsEmptyAndDoesNothingWithoutAPalette) {
    EXPECT_THAT(grid_.markers, ElementsAre(-1, -2, -2, -2));
    EXPECT_THAT(strip_.markers, ElementsAre(-2, -2, -2, -2));
    EXPECT_TRUE(grid_.selectable && !strip_.selectable);
    EXPECT_THAT((std::vector{strip_.columns, strip_.cellCount(), grid_.cellCount()}), ElementsAre(32, 32, 0));
    image_ = Image{4, 32};
    bar_.EntryTyped("1234");
    EXPECT_TRUE(bar_.ChannelTyped(Channel::Red, "99"));
    bar_.SliderMoved(Channel::Red, 3);
    bar_.SetPaletteNumber(3);
    bar_.Apply();
    bar_.EditPalette();
    bar_.PastePalette();
    bar_.GridChanged();
    bar_.GridClicked();
    bar_.StripClicked(3);
    bar_.TakeLeftEnd();
    bar_.Undo();
    bar_.TabChosen(0);
    bar_.ConfigureChannels();
    EXPECT_EQ(bar_.CurrentCell(), -1);
    EXPECT_EQ(bar_.GetFirstEntry(), 0);
    EXPECT_EQ(image_->paletteValue, 32);
    EXPECT_FALSE(bar_.pending() || bar_.entryTextIsWrong() || bar_.stripVisible() || asked_.has_value());
    EXPECT_EQ(broadcasts_, 0);
    EXPECT_EQ(bar_.cellTip(3), "Palette is not open yet.");
    EXPECT_EQ(bar_.tip("Copy"), "Palette is not open yet.");
    EXPECT_TRUE(fake_.messages.shown.empty());
}

TEST_F(PaletteBar, WritesNothingWhileTheTextIsNoEntry) {
    open(16, ColourType::Rgba);
    click(4);
    bar_.EntryTyped("7FF");
    for (const char* wrong : {"", "7FFFF", "7FG", "0x7F", " 7F", "-1"}) {
        bar_.EntryTyped(wrong);
        EXPECT_EQ(bar_.entryText(), wrong);
        EXPECT_TRUE(bar_.entryTextIsWrong()) << wrong;
        EXPECT_FALSE(bar_.CanApply()) << wrong;
        bar_.Apply();
        bar_.TakeLeftEnd();
        EXPECT_EQ(stored(4), 0x001E) << wrong;
        EXPECT_EQ(bar_.stripLeft(), 0) << wrong;
        EXPECT_EQ(bar_.channels(), channelsOf(ColourType::Rgba, 0x7FF)) << wrong;
        EXPECT_EQ(seen(4), 0x7FF) << "the mirrors and the images keep the last value that was one";
    }
    bar_.SliderMoved(Channel::Alpha, 0);
    EXPECT_EQ(bar_.entryText(), "07FE");
    EXPECT_TRUE(bar_.CanApply());
    bar_.EntryTyped("");
    click(4);
    EXPECT_FALSE(bar_.pending() || bar_.entryTextIsWrong());
    EXPECT_EQ(bar_.entryText(), "001E");
}

TEST_F(PaletteBar, RefusesChannelValuesOutOfRange) {
    open(16, ColourType::Rgba);
    click(4);
    const std::tuple<Channel, const char*, const char*> cases[] = {{Channel::Red, "32", "31"},
                                                                   {Channel::Blue, "-1", "31"},
                                                                   {Channel::Green, "4x", "31"},
                                                                   {Channel::Alpha, "2", "1"}};
    for (const auto& [channel, text, highest] : cases) {
        EXPECT_FALSE(bar_.ChannelTyped(channel, text));
        EXPECT_EQ(fake_.messages.lastText(),
                  std::string("Please enter an integer between 0 and ") + highest + ".");
        EXPECT_FALSE(bar_.pending());
    }
    EXPECT_TRUE(bar_.ChannelTyped(Channel::Red, "")) << "about to be filled";
    EXPECT_FALSE(bar_.pending());
    EXPECT_EQ(fake_.messages.shown.size(), std::size(cases));
    bar_.SliderMoved(Channel::Red, 99);
    EXPECT_EQ(bar_.channels()[Channel::Red], 31);
}

TEST_F(PaletteBar, ShowsCellsWidenedInBothViews) {
    open(16, ColourType::Rgba);
    palette().table.setEntry(0, 0xFFFF);
    palette().table.setEntry(1, 0x8421 & ~1);
    bar_.RefreshFromPalette();
    EXPECT_EQ(grid_.columns, 4);
    EXPECT_EQ(grid_.rows, 4);
    EXPECT_EQ(grid_.value(0), 0xFFFFFFFF);
    EXPECT_EQ(grid_.value(1), 0x00848484U);
    EXPECT_EQ(grid_.colours[0], 0xFFFFFFU);
    bar_.ViewModeChosen(ViewMode::Alpha);
    EXPECT_EQ(set_.alphaView, 1);
    EXPECT_EQ(grid_.colours[0], 0xFFFFFFU);
    EXPECT_EQ(grid_.colours[1], 0U);

    open(256, ColourType::Ia);
    palette().table.setEntry(255, 0x1203);
    bar_.RefreshFromPalette();
    EXPECT_EQ(grid_.columns, 16);
    EXPECT_EQ(grid_.value(255), 0x03121212U);
    EXPECT_EQ(grid_.colours[255], 0x030303U);
    bar_.ViewModeChosen(ViewMode::Rgb);
    EXPECT_EQ(grid_.colours[255], 0x121212U);
}

TEST_F(PaletteBar, KeepsTheCellInsideTheGrid) {
    bar_.SelectCell(255);
    open(16, ColourType::Rgba);
    EXPECT_EQ(bar_.CurrentCell(), 15) << "chosen before there was a palette";
    const std::string small = set_.currentKey;
    open(256, ColourType::Rgba);
    EXPECT_EQ(bar_.CurrentCell(), 15);
    click(200);
    choose(small);
    EXPECT_EQ(set_.currentKey, small);
    EXPECT_EQ(bar_.CurrentCell(), 15);
    EXPECT_EQ(bar_.entryText(), "FFFE");
    bar_.SelectCell(16);
    EXPECT_EQ(bar_.CurrentCell(), 15);
    while (bar_.hasPalette())
        set_.closePalette("", false);
    palettesChanged();
    EXPECT_EQ(bar_.CurrentCell(), -1);
    EXPECT_EQ(grid_.cellCount(), 0);
    open(16, ColourType::Rgba);
    EXPECT_EQ(bar_.CurrentCell(), 0);
}

TEST_F(PaletteBar, TakesPalettesOfOtherSizes) {
    TlutData five;
    ASSERT_TRUE(five.create(5, ColourType::Rgba));
    ASSERT_TRUE(set_.addCopy(five));
    palettesChanged();
    EXPECT_EQ(grid_.cellCount(), 16);
    click(5);
    EXPECT_FALSE(bar_.CanEditPalette()) << "a cell without entry";
    bar_.EntryTyped("1234");
    bar_.SliderMoved(Channel::Red, 3);
    bar_.Apply();
    EXPECT_FALSE(bar_.CanUndo());
    click(4);
    EXPECT_EQ(bar_.entryText(), "001E");
    bar_.GridChanged();
    EXPECT_EQ(stored(4), 0x001E);
}

TEST_F(PaletteBar, BanksFollowCellsAndNumbers) {
    image_ = Image{4, 0};
    open(256, ColourType::Rgba);
    EXPECT_TRUE(grid_.bankMode);
    click(5 * 16 + 3);
    EXPECT_EQ(image_->paletteValue, 80);
    EXPECT_EQ(bankRedraws_, 1);
    click(5 * 16 + 4);
    EXPECT_EQ(bankRedraws_, 1) << "same bank";
    bar_.RefreshFromPalette();
    EXPECT_EQ(bar_.paletteNumber(), 5);

    const std::pair<const char*, int> cases[] = {{"7", 7},  {"", 7},   {"16", 15}, {"99999999999", 15},
                                                 {"-3", 0}, {"12", 12}};
    for (const auto& [typed, bank] : cases) {
        bar_.NumberTyped(typed);
        EXPECT_EQ(bar_.paletteNumber(), bank) << typed;
        EXPECT_EQ(image_->paletteValue, 16 * bank) << typed;
        EXPECT_EQ(bar_.CurrentCell(), 16 * bank + 4) << typed;
    }
}

TEST_F(PaletteBar, TakesUpTheImageBeforeItsBankIsSet) {
    open(256, ColourType::Rgba);
    click(35);
    image_ = Image{8, 99};
    bar_.SetPaletteNumber(3);
    EXPECT_EQ(bar_.CurrentCell(), 3) << "row 0 outside bank mode";
    EXPECT_EQ(image_->paletteValue, 0);
    EXPECT_EQ(bar_.paletteNumber(), 0);

    image_ = Image{4, 0};
    bar_.SetPaletteNumber(6);
    EXPECT_EQ(image_->paletteValue, 96);
    EXPECT_EQ(bar_.GetFirstEntry(), 96);
    EXPECT_EQ(bar_.CurrentCell(), 99);

    image_.reset();
    bar_.SetPaletteNumber(6);
    EXPECT_EQ(bar_.GetFirstEntry(), 0);
}

TEST_F(PaletteBar, ChangedCellsAreCutToEntriesInOneEditAndTheOthersStay) {
    bar_.PreviewChecked(false);
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
        bar_.Undo();
        EXPECT_EQ(stored(8), before.getEntry(8));
        EXPECT_EQ(stored(12), before.getEntry(12));
        EXPECT_FALSE(bar_.CanUndo());
    }
}

TEST_F(PaletteBar, EditPaletteWritesIntoThePaletteThatItWasOpenedFor) {
    open(16, ColourType::Rgba);
    const std::string key = set_.currentKey;
    answer_ = std::uint16_t{0xABCD};
    whileAsking_ = [this] { open(16, ColourType::Ia); };
    bar_.EditPalette();
    EXPECT_EQ(set_.lookup(key)->table.getEntry(0), 0xABCD);
    EXPECT_FALSE(palette().canUndo());

    whileAsking_ = [this] {
        set_.closePalette("", false);
        palettesChanged();
    };
    bar_.EditPalette();
    EXPECT_EQ(set_.currentKey, key);
    EXPECT_NE(stored(0), 0x0F00);
}

TEST_F(PaletteBar, PreviewNeverOutlivesItsCause) {
    open(16, ColourType::Ia);
    const std::string other = set_.currentKey;
    open(16, ColourType::Rgba);
    const std::string key = set_.currentKey;
    const auto slideUnseen = [this] {
        bar_.PreviewChecked(false);
        bar_.SliderMoved(Channel::Red, 9);
    };
    const auto undo = [this] {
        palette().beginEdit();
        palette().commitEdit();
        bar_.Undo();
    };
    const auto chooseElsewhere = [&] {
        set_.setCurrent(other);
        palettesChanged();
    };
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"another tab", [&] { choose(other); }},
        {"another palette", [this] { open(16, ColourType::Rgba); }},
        {"another document's palette", chooseElsewhere},
        {"another document", [this] { bar_.RefreshFromPalette(); }},
        {"another cell", [this] { click(3); }},
        {"preview off", slideUnseen},
        {"undo", undo},
        {"closing the bar", [this] { bar_.SetShown(false); }},
    };
    for (const auto& [cause, end] : cases) {
        SCOPED_TRACE(cause);
        set_.selectCurrent(key);
        bar_.SetShown(true);
        bar_.PreviewChecked(true);
        palettesChanged();
        click(4);
        bar_.EntryTyped("ABCD");
        ASSERT_EQ(seen(4), 0xABCD);
        end();
        EXPECT_EQ(images_[key][4], 0x001E);
        EXPECT_EQ(set_.lookup(key)->table.getEntry(4), 0x001E);
    }
    bar_.SetShown(true);
    EXPECT_EQ(seen(4), 0xABCD) << "the value still stands in the bar";
    bar_.PreviewChecked(false);
    EXPECT_EQ(seen(4), 0x001E);
    bar_.PreviewChecked(true);
    EXPECT_EQ(seen(4), 0xABCD);
}

TEST_F(PaletteBar, StripRunsBetweenItsEnds) {
    open(16, ColourType::Rgba);
    EXPECT_EQ(strip_.value(31), 0xFFFEU) << "alpha comes from the left end";
    EXPECT_EQ(strip_.colours[31], 0xF8F8F8U);
    EXPECT_EQ(strip_.value(1), 0U);
    click(2);
    bar_.StripClicked(16);
    EXPECT_EQ(bar_.entryText(), "7bde");
    bar_.StripClicked(2);
    EXPECT_EQ(bar_.entryText(), "842") << "without leading zero";
    EXPECT_EQ(bar_.channels(), (ChannelValues{{1, 1, 1, 0}}));
    EXPECT_TRUE(bar_.CanApply());
    bar_.EntryTyped("F801");
    bar_.TakeLeftEnd();
    bar_.EntryTyped("3e");
    bar_.TakeRightEnd();
    EXPECT_EQ(strip_.value(0), 0xF801U);
    EXPECT_EQ(strip_.value(31), 0x003FU);
    EXPECT_EQ(strip_.value(30), 1U << 11U | 29U << 1U | 1U);
    bar_.StripClicked(32);
    bar_.StripClicked(-1);
    EXPECT_EQ(bar_.entryText(), "3e");
}

TEST_F(PaletteBar, TipsAreCutBetweenCharacters) {
    open(16, ColourType::Rgba);
    EXPECT_EQ(bar_.cellTip(12), "12");
    std::string japanese;
    for (int i = 0; i < 127; ++i)
        japanese += "色";
    EXPECT_EQ(bar_.tip(japanese + "色"), japanese);
    EXPECT_EQ(bar_.tip(japanese), japanese);
}

TEST_F(PaletteBar, TellsTheViewOncePerAction) {
    open(16, ColourType::Rgba);
    open(256, ColourType::Ia);
    const auto count = [this](const std::function<void()>& action) {
        read_ = {};
        action();
        return read_;
    };
    EXPECT_THAT(count([this] { bar_.SliderMoved(Channel::Red, 9); }), ElementsAre(1, 0, 0));
    EXPECT_THAT(count([this] { bar_.Apply(); }), ElementsAre(1, 0, 1)) << "unsaved";
    EXPECT_THAT(count([this] { bar_.Undo(); }), ElementsAre(1, 0, 1));
    ASSERT_TRUE(palette().table.create(256, ColourType::Rgba));
    EXPECT_THAT(count([this] { bar_.RefreshFromPalette(); }), ElementsAre(1, 1, 0)) << "of another kind now";
    EXPECT_THAT(count([this] { bar_.TabChosen(0); }), ElementsAre(1, 1, 1));
}

} // namespace
} // namespace dyeworks
