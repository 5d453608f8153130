#pragma once

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "palette/PaletteBarCommands.h"
#include "palette/PaletteBarState.h"
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

using testing::ElementsAre;

class GridOfCells : public PaletteGrid {
public:
    void setBankMode(bool on) override { bankMode = on; }
    void setSelectable(bool on) override { selectable = on; }
    void setCellCount(int count) override {
        values.resize(std::size_t(count));
        colours.resize(values.size());
    }
    void setLayout(int across, int down) override { std::tie(columns, rows) = std::tie(across, down); }
    int cellCount() const override { return static_cast<int>(values.size()); }
    void setValue(int cell, std::uint32_t value) override { values.at(std::size_t(cell)) = value; }
    std::uint32_t value(int cell) const override { return values.at(std::size_t(cell)); }
    void setColour(int cell, std::uint32_t colour) override { colours.at(std::size_t(cell)) = colour; }
    void setMarker(int marker, int cell) override { markers.at(std::size_t(marker)) = cell; }
    int marker(int marker) const override { return markers.at(std::size_t(marker)); }
    std::optional<Cell> selection() const override { return selected; }
    Selected selectedCells() const override { return cells; }
    bool copy() override { return copied = true; }
    bool hasCopiedCells() const override { return copied; }
    bool paste(Cell at) override { return (pastedAt = at.row * columns + at.column) >= 0; }
    void redraw() override {}

    bool bankMode = false, selectable = false, copied = false;
    int columns = 0, rows = 0, pastedAt = -1;
    std::vector<std::uint32_t> values, colours;
    std::vector<int> markers{5, 5, 5, 5};
    std::optional<Cell> selected;
    Selected cells;
};

/// A bar over real palettes, and images of which only the entries that they show are kept.
class PaletteBar : public testing::Test, protected PaletteBarHost, protected PaletteBarView {
protected:
    using Source = EntryEditor::Source;

    PaletteBar() {
        setApplicationPaletteSet(&set_);
        bar_.Start(grid_, strip_);
        set_.setListener(&bar_);
    }

    void open(std::int32_t count, ColourType type) {
        EXPECT_TRUE(set_.newPalette(count, type, 0));
        RefreshImagePalettes();
    }
    TextureLookupTable& palette() { return *bar_.palette().get(); }
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
    bool run(CommandId id) { return router_.run(id); }
    bool enabled(CommandId id) { return router_.state(id).enabled; }

    // PaletteBarHost
    PaletteSet* paletteSet() override { return &set_; }
    std::optional<Image> activeImage() const override { return image_; }
    void setActivePaletteValue(std::int32_t firstEntry) override {
        EXPECT_EQ(cells_.GetFirstEntry(), firstEntry) << "the image asks the bar for its colours";
        image_->paletteValue = firstEntry;
        ++bankRedraws_;
    }
    void BroadcastPaletteChange(const std::string& key, const TextureLookupTable& shown) override {
        images_[key].assign(shown.table.entries, shown.table.entries + shown.table.count);
    }
    void RefreshImagePalettes() override {
        if (bar_.palette().exists())
            BroadcastPaletteChange(set_.currentKey, palette());
    }
    void RefreshAllImages() override {
        for (const auto& [key, palette] : set_.palettes)
            BroadcastPaletteChange(key, *palette);
    }
    void showMessage(const std::string& text) override { message_ = text; }

    // PaletteBarView
    void valuesChanged() override { ++read_[0]; }
    void layoutChanged() override { ++read_[1]; }
    void tabsChanged() override { ++read_[2]; }
    std::optional<std::uint16_t> askEntry(ColourType, std::uint16_t) override {
        whileAsking_();
        return answer_;
    }

    FakePlatform fake_;
    PaletteSet set_;
    std::optional<Image> image_;
    std::map<std::string, std::vector<std::uint16_t>> images_;
    int bankRedraws_ = 0;
    std::string message_;
    std::array<int, 3> read_{}; ///< How often values, layout and tabs were.
    std::optional<std::uint16_t> answer_;
    std::function<void()> whileAsking_ = [] {};
    GridOfCells grid_;
    GridOfCells strip_;
    PaletteBarState bar_{*this, *this};
    PaletteCells& cells_ = bar_.cells();
    EntryEditor& editor_ = bar_.editor();
    PaletteBarCommands commands_{bar_, *this, *this};
    CommandRouter router_{[this] { return std::vector<CommandTarget*>{&commands_}; }};
};

} // namespace dyeworks
