#pragma once

#include "core/TextureLookupTable.h"
#include "palette/EntryFormat.h"
#include "palette/Gradient.h"
#include "palette/PaletteBarHost.h"
#include "palette/PaletteGrid.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// What the palette bar shows and how it answers: the current palette as a grid, the entry that is being
/// edited with all its mirrors, the preview of it in the images, the bank of a 16-colour image, the tabs and
/// the gradient strip. The bar's window reports what the user did and then shows what stands here.
///
/// Without a current palette there is no cell, and nothing can be edited.
class PaletteBarState {
public:
    static constexpr std::int32_t kBankSize = 16;
    static constexpr std::int32_t kLastBank = 15;

    /// Where a change of the edited value came from.
    enum class Source { Palette = 0, ChannelEdits = 1, Trackbars = 2, EntryText = 3, Sliders = 4 };

    struct ChannelRow {
        bool visible = false;
        const char* label = "";   ///< "R", "G", "B", "A", or "I" for the intensity.
        std::int32_t highest = 0; ///< The lowest value is 0.
    };
    /// How the bar of the first channel is drawn (its properties 4, 5 and 6), each 0x00BBGGRR. The others
    /// keep the colours that they have by themselves.
    struct SliderColours {
        std::int32_t lowColour;
        std::int32_t highColour;
        std::int32_t markerColour;
    };
    struct Tab {
        std::string key;
        std::string title;
        bool unsaved = false; ///< Closing the palette would ask.

        bool operator==(const Tab&) const = default;
    };

    PaletteBarState(PaletteBarHost& host, PaletteBarView& view);

    /// The bar's window exists: sets up both grids, which must outlive their use. What happens before does
    /// nothing.
    void Start(PaletteGrid& grid, PaletteGrid& strip);
    [[nodiscard]] bool initialised() const noexcept { return grid_ != nullptr; }

    // Called when the palettes or the active image have changed.
    /// Reads the current palette into grid and controls; a value that was not applied is dropped.
    void RefreshFromPalette();
    /// The active image may be attached otherwise now. As long as its bank is the one that is shown, a value
    /// that was not applied stays.
    void ImageChanged();
    void ConfigureChannels();
    void RebuildTabs(const std::vector<std::string>& keys);
    /// Titles, and which palettes are unsaved, may be others now: an edit, its undoing and saving change
    /// them.
    void ReadTitles();
    /// Selects a cell. One beyond the grid selects the last; without a palette, the cell is selected when one
    /// is opened.
    void SelectCell(std::int32_t cell);
    /// Selects a bank, brought into 0 to 15, for the active image, after taking up that image.
    void SetPaletteNumber(std::int32_t number);
    /// The bar appeared or was closed; a closed bar leaves no preview behind.
    void SetShown(bool shown);

    // What the user did.
    /// A text was typed as a channel's value. False: it is out of range, which the user was told, and the
    /// field is to be selected.
    bool ChannelTyped(Channel channel, std::string_view text);
    void SliderMoved(Channel channel, std::int32_t value);
    /// `code` as a scroll message has it.
    void TrackbarScrolled(Channel channel, std::int32_t code, std::int32_t position);
    void EntryTyped(std::string text);
    void NumberTyped(std::string_view text);
    void PreviewChecked(bool checked);
    void ViewModeChosen(ViewMode mode);
    void TabChosen(std::int32_t index);
    /// A cell of the grid was clicked; its current-cell marker stands there already.
    void GridClicked();
    /// A paste changed cells of the grid: all are written to the palette as one undoable edit.
    void GridChanged();
    void StripClicked(std::int32_t cell);
    void TakeLeftEnd();
    void TakeRightEnd();

    // Commands, each with its enable rule.
    void Apply();
    [[nodiscard]] bool CanApply() const;
    void EditPalette();
    [[nodiscard]] bool CanEditPalette() const;
    void CopyPalette();
    [[nodiscard]] bool CanCopyPalette() const;
    void PastePalette();
    [[nodiscard]] bool CanPastePalette() const;
    void Undo();
    [[nodiscard]] bool CanUndo() const;
    void Redo();
    [[nodiscard]] bool CanRedo() const;

    // What is shown.
    [[nodiscard]] TextureLookupTable* currentPalette() const;
    [[nodiscard]] bool hasPalette() const { return currentPalette() != nullptr; }
    [[nodiscard]] std::int32_t columns() const noexcept { return columns_; }
    [[nodiscard]] std::int32_t rows() const noexcept { return rows_; }
    /// Negative when there is none.
    [[nodiscard]] std::int32_t CurrentCell() const;
    [[nodiscard]] std::int32_t bankSize() const noexcept { return bankSize_; }
    [[nodiscard]] bool inBankMode() const noexcept { return bankSize_ != 0; }
    [[nodiscard]] std::int32_t paletteNumber() const noexcept { return paletteNumber_; }
    /// Entry that the value 0 of a 4-bit image shows: 16 times the bank, or 0 outside bank mode.
    [[nodiscard]] std::int32_t GetFirstEntry() const noexcept { return bankSize_ * paletteNumber_; }
    [[nodiscard]] ViewMode viewMode() const noexcept { return viewMode_; }
    [[nodiscard]] bool preview() const noexcept { return preview_; }
    /// The controls hold a value that has not been applied.
    [[nodiscard]] bool pending() const noexcept { return pending_; }
    [[nodiscard]] const ChannelValues& channels() const noexcept { return channels_; }
    [[nodiscard]] std::string readOut(Channel channel) const { return channelText(channels_[channel]); }
    [[nodiscard]] const std::string& entryText() const noexcept { return entryText_; }
    /// The entry text is no entry and is to be marked. The other mirrors then keep the last value that was
    /// one.
    [[nodiscard]] bool entryTextIsWrong() const { return hasPalette() && !ParseEntryText(); }
    /// Fills the edit button.
    [[nodiscard]] ColourRef editColour() const;
    [[nodiscard]] ChannelRow channelRow(Channel channel) const;
    [[nodiscard]] SliderColours sliderColours() const;
    /// Also tells whether the buttons that set its ends show.
    [[nodiscard]] bool stripVisible() const;
    [[nodiscard]] const std::vector<Tab>& tabs() const noexcept { return tabs_; }
    /// -1: none.
    [[nodiscard]] std::int32_t currentTab() const;
    [[nodiscard]] std::uint16_t stripLeft() const noexcept { return stripLeft_; }
    [[nodiscard]] std::uint16_t stripRight() const noexcept { return stripRight_; }

    // Tips, at most 127 characters long but for a second line. Without a palette each is a notice that none
    // is open.
    [[nodiscard]] std::string tip(std::string_view own) const;
    [[nodiscard]] std::string cellTip(std::int32_t cell) const;
    [[nodiscard]] std::string tabTip(std::int32_t index) const;

    // The rules by themselves.
    void SyncControls(Source source);
    /// In the current palette's format; 0 without a palette.
    [[nodiscard]] std::uint16_t ComposeEntry(const ChannelValues& channels) const;
    [[nodiscard]] std::optional<std::uint16_t> ParseEntryText() const { return parseEntry(entryText_); }
    void FillStrip();

private:
    /// Collects what an action changes and tells the view once, when the outermost action ends.
    class Change;

    [[nodiscard]] ColourType colourType() const;
    /// The current cell, if the palette has an entry there.
    [[nodiscard]] std::optional<std::int32_t> currentEntry() const;
    void readEntry();
    void setChannel(Channel channel, std::int32_t value, Source source);
    void layOut();
    [[nodiscard]] std::optional<std::int32_t> bankOfImage() const;
    void takeUpBank();
    void fillGrid();
    void keepCellInGrid();
    void storeBank();
    void takeEnd(std::uint16_t& end);
    void showPreview();
    void endPreview();
    template <typename Write>
    void edit(TextureLookupTable& palette, Write write);
    void showStored();

    PaletteBarHost& host_;
    PaletteBarView& view_;
    PaletteGrid* grid_ = nullptr;
    PaletteGrid* strip_ = nullptr;

    std::int32_t columns_ = 0;
    std::int32_t rows_ = 0;
    std::int32_t bankSize_ = 0;
    std::int32_t paletteNumber_ = 0;
    std::int32_t awaitedCell_ = PaletteGrid::kNowhere; ///< Selected while there was no palette.
    ColourType shownType_ = ColourType::Rgba;          ///< That the controls are laid out for.
    std::vector<Tab> tabs_;

    ViewMode viewMode_ = ViewMode::Rgb;
    ChannelValues channels_;
    std::string entryText_;
    std::uint16_t entry_ = 0; ///< The value that is edited: that of the text, as long as the text is one.
    bool pending_ = false;

    bool preview_ = true;
    bool shown_ = true;
    std::string previewedKey_; ///< The palette whose images show a value that is not stored; or empty.

    std::uint16_t stripLeft_ = 0x0000;
    std::uint16_t stripRight_ = 0xFFFF;

    int changeDepth_ = 0;
    unsigned changed_ = 0;
};

} // namespace dyeworks
