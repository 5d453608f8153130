#pragma once

#include "core/PaletteSetListener.h"
#include "palette/EntryEditor.h"
#include "palette/GradientStrip.h"
#include "palette/PaletteTabs.h"
#include "platform/Text.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// What the palette bar shows and how it answers: the current palette as a grid, the entry that is being
/// edited, the tabs and the gradient strip, each a class of its own; here they are kept in step. The bar's
/// window reports what the user did and then shows what stands here.
class PaletteBarState : public PaletteSetListener {
public:
    using Source = EntryEditor::Source;

    /// Both must outlive the state.
    PaletteBarState(PaletteBarHost& host, PaletteBarView& view);

    /// The bar's window exists: sets up both grids, which must outlive their use. What happens before does
    /// nothing.
    void Start(PaletteGrid& grid, PaletteGrid& strip);

    // The palettes or the active image have changed.
    void tabsChanged() override;
    void currentPaletteChanged() override { RefreshFromPalette(); }
    void titlesChanged() override;
    void coloursChanged() override { host_.RefreshAllImages(); }
    /// Reads the current palette into grid and controls; a value that was not applied is dropped.
    void RefreshFromPalette();
    /// The active image may be attached otherwise now. As long as its bank is the one that is shown, a value
    /// that was not applied stays.
    void ImageChanged();
    void ConfigureChannels();
    void RebuildTabs(const std::vector<std::string>& keys);
    /// Selects a cell. One beyond the grid selects the last; without a palette, the cell is selected when one
    /// is opened.
    void SelectCell(std::int32_t cell);
    /// Selects a bank, brought into 0 to 15, for the active image, after taking up that image.
    void SetPaletteNumber(std::int32_t number);

    // What the user did; to the entry: see there.
    void NumberTyped(std::string_view text);
    void ViewModeChosen(ViewMode mode);
    void TabChosen(std::int32_t index);
    /// A cell of the grid was clicked; its current-cell marker stands there already.
    void GridClicked();
    /// A paste changed cells of the grid: all are written to the palette as one undoable edit.
    void GridChanged();
    void PasteCells();
    /// Selects the cell beside the current one and shows the bank that it is in.
    void StepCell(PaletteCells::Step step);
    void StripClicked(std::int32_t cell);
    void TakeLeftEnd();
    void TakeRightEnd();
    /// Writes the edited value to the palette, where that can be done.
    void Apply();

    /// One undoable edit of a palette, under a name for the user; then everything shows it.
    void edit(TextureLookupTable& palette, const std::function<void(TextureLookupTable&)>& write,
              StringId name);
    /// Steps of the current palette until its history stands at `position`, then everything shows it.
    void goTo(std::int32_t position);
    /// Lets the bar and the images show `shown` as the palette of that key, which stays what it is.
    void showPassing(const std::string& key, const TextureLookupTable& shown);
    /// After that: what they showed before, an edited value that was not applied included.
    void endPassing(const std::string& key);
    /// Lets the bar and the images take the stored entries of the palette.
    void showStored();

    [[nodiscard]] const CurrentPalette& palette() const noexcept { return palette_; }
    [[nodiscard]] PaletteCells& cells() noexcept { return cells_; }
    [[nodiscard]] EntryEditor& editor() noexcept { return editor_; }
    [[nodiscard]] const EditedEntry& entry() const noexcept { return editor_.entry(); }
    [[nodiscard]] const PaletteTabs& tabs() const noexcept { return tabs_; }
    [[nodiscard]] const PaletteTips& tips() const noexcept { return tips_; }
    [[nodiscard]] const GradientStrip& strip() const noexcept { return strip_; }
    [[nodiscard]] ViewMode viewMode() const noexcept { return viewMode_; }

private:
    PaletteBarHost& host_;
    CurrentPalette palette_;
    PaletteBarChanges changes_;
    PaletteCells cells_;
    EntryEditor editor_;
    PaletteTabs tabs_;
    PaletteTips tips_;
    GradientStrip strip_;
    ViewMode viewMode_ = ViewMode::Rgb;
    ColourType shownType_ = ColourType::Rgba; ///< That the controls are laid out for.
};

} // namespace dyeworks
