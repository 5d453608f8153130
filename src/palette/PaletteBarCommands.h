#pragma once

#include "framework/CommandTarget.h"
#include "palette/PaletteBarHost.h"

namespace dyeworks {

class PaletteBarState;

/// The commands that act on the entries of the current palette.
class PaletteBarCommands : public CommandTarget {
public:
    /// All must outlive it.
    PaletteBarCommands(PaletteBarState& state, PaletteBarHost& host, PaletteBarView& view);

private:
    void OnEditPalette();
    void OnUpdateEditPalette(CommandUi& ui);
    void OnCopyPalette();
    void OnUpdateCopyPalette(CommandUi& ui);
    void OnPastePalette();
    void OnUpdatePastePalette(CommandUi& ui);
    void OnUndo();
    void OnUpdateUndo(CommandUi& ui);
    void OnStep(CommandId id);
    void OnUpdateStep(CommandUi& ui);
    [[nodiscard]] StringId without(StringId need) const;
    void OnRedo();
    void OnUpdateRedo(CommandUi& ui);

    PaletteBarState& state_;
    PaletteBarHost& host_;
    PaletteBarView& view_;
};

} // namespace dyeworks
