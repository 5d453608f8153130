#pragma once

#include "palette/EditedEntry.h"
#include "palette/EntryPreview.h"
#include "palette/PaletteBarChanges.h"
#include "palette/PaletteCells.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dyeworks {

/// Editing the entry of the current cell: what the user did to one of its mirrors, brought to the others and
/// to the images. Without a palette nothing can be edited.
class EntryEditor {
public:
    /// Where a change of the edited value came from.
    enum class Source { Palette = 0, ChannelEdits = 1, Trackbars = 2, EntryText = 3, Sliders = 4 };

    /// All must outlive the editor.
    EntryEditor(PaletteBarHost& host, const CurrentPalette& palette, const PaletteCells& cells,
                PaletteBarChanges& changes);

    // What the user did.
    /// A text was typed as a channel's value. False: it is out of range, which the user was told, and the
    /// field is to be selected.
    bool ChannelTyped(Channel channel, std::string_view text);
    void SliderMoved(Channel channel, std::int32_t value);
    /// `code` as a scroll message has it.
    void TrackbarScrolled(Channel channel, std::int32_t code, std::int32_t position);
    void EntryTyped(std::string text);
    void PreviewChecked(bool checked);

    /// From the palette, a value that was not applied is dropped.
    void SyncControls(Source source);
    /// The images have shown something else: they show the edited value again, if they did before.
    void ShowAgain();
    /// The bar appeared or was closed; a closed bar leaves no preview behind.
    void SetShown(bool shown);

    [[nodiscard]] const EditedEntry& entry() const noexcept { return entry_; }
    [[nodiscard]] bool preview() const noexcept { return preview_.isOn(); }
    /// The text is no entry and is to be marked. The other mirrors then keep the last value that was one.
    [[nodiscard]] bool textIsWrong() const { return palette_.exists() && !entry_.ParseEntryText(); }
    /// Fills the edit button.
    [[nodiscard]] ColourRef colour(ViewMode mode) const;
    /// The edited value can be written to the current cell.
    [[nodiscard]] bool CanApply() const;
    /// There is a dialog for the entry of the current cell.
    [[nodiscard]] bool canAsk() const;

private:
    void setChannel(Channel channel, std::int32_t value, Source source);

    const CurrentPalette& palette_;
    const PaletteCells& cells_;
    PaletteBarChanges& changes_;
    EditedEntry entry_;
    EntryPreview preview_;
};

} // namespace dyeworks
