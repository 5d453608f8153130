#include "palette/PaletteBarCommands.h"

#include "core/EntryText.h"
#include "core/PaletteSet.h"
#include "palette/PaletteBarState.h"
#include "platform/StringId.h"

namespace dyeworks {

PaletteBarCommands::PaletteBarCommands(PaletteBarState& state, PaletteBarHost& host, PaletteBarView& view)
    : state_(state)
    , host_(host)
    , view_(view) {
    using Self = PaletteBarCommands;
    on(ID_PALETTE_EDIT, &Self::OnEditPalette, &Self::OnUpdateEditPalette);
    on(ID_PALETTE_COPY, &Self::OnCopyPalette, &Self::OnUpdateCopyPalette);
    on(ID_PALETTE_PASTE, &Self::OnPastePalette, &Self::OnUpdatePastePalette);
    on(ID_PALETTE_UNDO, &Self::OnUndo, &Self::OnUpdateUndo);
    on(ID_PALETTE_REDO, &Self::OnRedo, &Self::OnUpdateRedo);
    onRange(ID_ENTRY_PREVIOUS, ID_ENTRY_ROW_DOWN, &Self::OnStep, &Self::OnUpdateStep);
}

void PaletteBarCommands::OnStep(CommandId id) {
    using Step = PaletteCells::Step;
    state_.StepCell(id == ID_ENTRY_PREVIOUS ? Step::Back
                    : id == ID_ENTRY_NEXT   ? Step::On
                    : id == ID_ENTRY_ROW_UP ? Step::Up
                                            : Step::Down);
    host_.showMessage(toldEntry(state_.palette().get()->table, state_.cells().current()));
}

/// What a command lacks that cannot be carried out: a palette first of all, or else this.
StringId PaletteBarCommands::without(StringId need) const {
    return state_.palette().exists() ? need : StringId::WhyNoPalette;
}

void PaletteBarCommands::OnUpdateStep(CommandUi& ui) {
    ui.require(state_.cells().current() >= 0, without(StringId::WhyNoEntry));
}

void PaletteBarCommands::OnEditPalette() {
    const std::string key = host_.paletteSet()->currentKey;
    const std::int32_t index = *state_.cells().currentEntry();
    const TlutData& table = state_.palette().get()->table;
    const ColourType type = table.colourType;
    const EditedEntry& entry = state_.entry();
    const auto chosen = view_.askEntry(type, entry.pending() ? entry.value() : table.getEntry(index));
    if (!chosen)
        return;
    // Another file may have been handed to the program while the dialog was open.
    const auto& palettes = host_.paletteSet()->palettes;
    const auto position = palettes.find(key);
    if (position == palettes.end())
        return;
    const auto write = [&](TextureLookupTable& palette) {
        if (type == ColourType::Ia)
            palette.setEntryAlias(index, *chosen);
        else
            palette.setEntry(index, *chosen);
    };
    state_.edit(*position->second, write, StringId::StepEditEntry);
}

void PaletteBarCommands::OnUpdateEditPalette(CommandUi& ui) {
    ui.require(state_.editor().canAsk(), without(StringId::WhyNoEntry));
}

void PaletteBarCommands::OnCopyPalette() {
    state_.cells().copy();
}

void PaletteBarCommands::OnUpdateCopyPalette(CommandUi& ui) {
    ui.require(state_.cells().canCopy(), without(StringId::WhyNoEntry));
}

void PaletteBarCommands::OnPastePalette() {
    state_.PasteCells();
}

void PaletteBarCommands::OnUpdatePastePalette(CommandUi& ui) {
    ui.require(state_.cells().canPaste(),
               without(state_.cells().current() < 0 ? StringId::WhyNoEntry : StringId::WhyNothingCopied));
}

void PaletteBarCommands::OnUndo() {
    state_.palette().get()->undo();
    state_.showStored();
}

void PaletteBarCommands::OnUpdateUndo(CommandUi& ui) {
    const TextureLookupTable* const palette = state_.palette().get();
    ui.require(palette != nullptr && palette->canUndo(), without(StringId::WhyNothingToUndo));
}

void PaletteBarCommands::OnRedo() {
    state_.palette().get()->redo();
    state_.showStored();
}

void PaletteBarCommands::OnUpdateRedo(CommandUi& ui) {
    const TextureLookupTable* const palette = state_.palette().get();
    ui.require(palette != nullptr && palette->canRedo(), without(StringId::WhyNothingToRedo));
}

} // namespace dyeworks
