#include "core/PaletteSet.h"
#include "palette/PaletteBarChange.h"
#include "palette/PaletteBarState.h"

namespace dyeworks {

/// One undoable edit of a palette, then everything shows it.
template <typename Write>
void PaletteBarState::edit(TextureLookupTable& palette, Write write) {
    const Change change(*this, Change::kValues);
    palette.beginEdit();
    write(palette);
    palette.commitEdit();
    palette.updateTitle();
    showStored();
}

void PaletteBarState::showStored() {
    RefreshFromPalette();
    host_.RefreshImagePalettes();
}

bool PaletteBarState::CanApply() const {
    return pending_ && currentEntry() && ParseEntryText();
}

void PaletteBarState::Apply() {
    if (!CanApply())
        return;
    edit(*currentPalette(), [index = *currentEntry(), value = entry_](TextureLookupTable& palette) {
        palette.setEntry(index, value);
    });
}

bool PaletteBarState::CanEditPalette() const {
    return currentEntry() && channelRow(Channel::Red).visible;
}

void PaletteBarState::EditPalette() {
    if (!CanEditPalette())
        return;
    const std::string key = host_.paletteSet()->currentKey;
    const std::int32_t index = *currentEntry();
    const ColourType type = colourType();
    const std::uint16_t start = pending_ ? entry_ : currentPalette()->table.getEntry(index);
    const auto chosen = view_.askEntry(type, start);
    if (!chosen)
        return;
    // Another file may have been handed to the program while the dialog was open.
    PaletteSet* const set = host_.paletteSet();
    const auto position = set == nullptr ? PaletteSet::Map::iterator{} : set->palettes.find(key);
    if (set == nullptr || position == set->palettes.end())
        return;
    edit(*position->second, [&](TextureLookupTable& palette) {
        if (type == ColourType::Ia)
            palette.setEntryAlias(index, *chosen);
        else
            palette.setEntry(index, *chosen);
    });
}

bool PaletteBarState::CanCopyPalette() const {
    return initialised() && hasPalette() && grid_->selection().has_value();
}

void PaletteBarState::CopyPalette() {
    if (!CanCopyPalette())
        return;
    const Change change(*this, Change::kValues);
    grid_->copy();
}

bool PaletteBarState::CanPastePalette() const {
    return CurrentCell() >= 0 && columns_ > 0 && grid_->hasCopiedCells();
}

void PaletteBarState::PastePalette() {
    if (!CanPastePalette())
        return;
    const Change change(*this, Change::kValues);
    const std::int32_t cell = CurrentCell();
    grid_->paste(grid_->selection().value_or(PaletteGrid::Cell{cell % columns_, cell / columns_}));
    SyncControls(Source::Palette);
}

void PaletteBarState::GridChanged() {
    if (!initialised() || !hasPalette())
        return;
    edit(*currentPalette(), [this, type = colourType()](TextureLookupTable& palette) {
        const std::int32_t cells = grid_->cellCount();
        for (std::int32_t i = 0; i < cells; ++i)
            writeCell(palette, type, i, grid_->value(i));
    });
}

bool PaletteBarState::CanUndo() const {
    const TextureLookupTable* const palette = currentPalette();
    return initialised() && palette != nullptr && palette->canUndo();
}

void PaletteBarState::Undo() {
    if (!CanUndo())
        return;
    const Change change(*this, Change::kValues);
    currentPalette()->undo();
    showStored();
}

bool PaletteBarState::CanRedo() const {
    const TextureLookupTable* const palette = currentPalette();
    return initialised() && palette != nullptr && palette->canRedo();
}

void PaletteBarState::Redo() {
    if (!CanRedo())
        return;
    const Change change(*this, Change::kValues);
    currentPalette()->redo();
    showStored();
}

} // namespace dyeworks
