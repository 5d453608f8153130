#pragma once

namespace dyeworks {

/// Learns of changes in the palette set: the palette bar.
class PaletteSetListener {
public:
    virtual ~PaletteSetListener() = default;

    /// Palettes came, went or were renamed, or another one is current: the tabs are out of date.
    virtual void tabsChanged() = 0;
    /// The controls must show the current palette anew.
    virtual void currentPaletteChanged() = 0;
    /// A palette was saved or changed: its title, and whether it has unsaved changes, are to be read anew.
    virtual void titlesChanged() = 0;
    /// Images show colours of a palette, maybe not the current one, that it no longer has.
    virtual void coloursChanged() {}
};

} // namespace dyeworks
