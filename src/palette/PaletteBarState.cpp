#include "palette/PaletteBarState.h"

#include "core/PaletteSet.h"
#include "palette/NumberText.h"
#include "platform/StringId.h"

#include <utility>

namespace dyeworks {

using Action = PaletteBarChanges::Action;

PaletteBarState::PaletteBarState(PaletteBarHost& host, PaletteBarView& view)
    : host_(host)
    , palette_(host)
    , changes_(view)
    , cells_(host, palette_)
    , editor_(host, palette_, cells_, changes_)
    , tabs_(host)
    , tips_(palette_)
    , strip_(palette_) {}

void PaletteBarState::Start(PaletteGrid& grid, PaletteGrid& strip) {
    const Action action(changes_, PaletteBarChanges::kTabs);
    cells_.start(grid);
    strip_.start(strip);
    RefreshFromPalette();
    ConfigureChannels();
}

void PaletteBarState::tabsChanged() {
    std::vector<std::string> keys;
    host_.paletteSet()->listKeys(keys);
    RebuildTabs(keys);
}

void PaletteBarState::RebuildTabs(const std::vector<std::string>& keys) {
    const Action action(changes_, PaletteBarChanges::kTabs);
    tabs_.rebuild(keys);
    ConfigureChannels();
}

void PaletteBarState::titlesChanged() {
    const Action action(changes_, tabs_.readTitles() ? PaletteBarChanges::kTabs : 0U);
}

void PaletteBarState::RefreshFromPalette() {
    if (!cells_.started())
        return;
    Action action(changes_, PaletteBarChanges::kValues);
    titlesChanged();
    const ColourType type = palette_.colourType().value_or(shownType_);
    // An import, and its undoing, may make another kind of a palette.
    const bool otherType = std::exchange(shownType_, type) != type;
    if (otherType)
        strip_.FillStrip();
    if (cells_.read(viewMode_) || otherType)
        action.add(PaletteBarChanges::kLayout);
    editor_.SyncControls(Source::Palette);
}

void PaletteBarState::ImageChanged() {
    if (!cells_.showBankOfImage())
        RefreshFromPalette();
}

void PaletteBarState::ConfigureChannels() {
    if (!cells_.started())
        return;
    const Action action(changes_, PaletteBarChanges::kLayout);
    strip_.FillStrip();
    cells_.correctCurrent();
    editor_.SyncControls(Source::Palette);
}

void PaletteBarState::SelectCell(std::int32_t cell) {
    if (cells_.select(cell))
        editor_.SyncControls(Source::Palette);
}

void PaletteBarState::SetPaletteNumber(std::int32_t number) {
    if (!cells_.started() || !palette_.exists())
        return;
    const Action action(changes_, PaletteBarChanges::kValues);
    // The image may have come to the front just now.
    RefreshFromPalette();
    cells_.chooseBank(number);
    RefreshFromPalette();
}

void PaletteBarState::NumberTyped(std::string_view text) {
    if (const auto number = parseNumber(text))
        SetPaletteNumber(*number);
}

void PaletteBarState::ViewModeChosen(ViewMode mode) {
    if (!cells_.started())
        return;
    viewMode_ = mode;
    RefreshFromPalette();
    host_.paletteSet()->alphaView = static_cast<std::int32_t>(mode);
    host_.RefreshAllImages();
}

void PaletteBarState::TabChosen(std::int32_t index) {
    PaletteSet& set = *host_.paletteSet();
    std::string key;
    if (!cells_.started() || !set.keyAt(index, key) || !set.selectCurrent(key))
        return;
    const Action action(changes_, PaletteBarChanges::kTabs);
    RefreshFromPalette();
    ConfigureChannels();
}

void PaletteBarState::GridClicked() {
    if (cells_.current() < 0)
        return;
    const Action action(changes_, PaletteBarChanges::kValues);
    editor_.SyncControls(Source::Palette);
    cells_.chooseBankOfCurrent();
}

void PaletteBarState::StepCell(PaletteCells::Step step) {
    if (cells_.current() < 0)
        return;
    cells_.select(cells_.besideCurrent(step));
    GridClicked();
}

void PaletteBarState::GridChanged() {
    if (cells_.started() && palette_.exists())
        edit(
            *palette_.get(), [this](TextureLookupTable& palette) { cells_.writeTo(palette); },
            StringId::StepPasteEntries);
}

void PaletteBarState::PasteCells() {
    const Action action(changes_, PaletteBarChanges::kValues);
    cells_.paste();
    editor_.SyncControls(Source::Palette);
}

void PaletteBarState::StripClicked(std::int32_t cell) {
    if (std::string text = strip_.textAt(cell); !text.empty())
        editor_.EntryTyped(std::move(text));
}

void PaletteBarState::TakeLeftEnd() {
    if (const auto typed = entry().ParseEntryText())
        strip_.takeLeft(*typed);
}

void PaletteBarState::TakeRightEnd() {
    if (const auto typed = entry().ParseEntryText())
        strip_.takeRight(*typed);
}

void PaletteBarState::Apply() {
    if (!editor_.CanApply())
        return;
    const auto write = [index = *cells_.currentEntry(), value = entry().value()](
                           TextureLookupTable& palette) { palette.setEntry(index, value); };
    edit(*palette_.get(), write, StringId::StepApplyEntry);
}

void PaletteBarState::edit(TextureLookupTable& palette, const std::function<void(TextureLookupTable&)>& write,
                           StringId name) {
    palette.beginEdit();
    write(palette);
    palette.commitEdit(name);
    palette.updateTitle();
    showStored();
}

void PaletteBarState::goTo(std::int32_t position) {
    if (TextureLookupTable* const palette = palette_.get()) {
        palette->goTo(position);
        showStored();
    }
}

void PaletteBarState::showPassing(const std::string& key, const TextureLookupTable& shown) {
    // Another palette may have become the current one meanwhile.
    if (key == host_.paletteSet()->currentKey && cells_.started())
        cells_.show(shown.table, viewMode_);
    host_.BroadcastPaletteChange(key, shown);
}

void PaletteBarState::endPassing(const std::string& key) {
    const auto& palettes = host_.paletteSet()->palettes;
    if (const auto position = palettes.find(key); position != palettes.end())
        showPassing(key, *position->second);
    editor_.ShowAgain();
}

void PaletteBarState::showStored() {
    const Action action(changes_, PaletteBarChanges::kValues);
    RefreshFromPalette();
    host_.RefreshImagePalettes();
}

} // namespace dyeworks
