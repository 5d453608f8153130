#pragma once

#include "core/TlutData.h"
#include "palette/EntryAdjustment.h"
#include "palette/EntryRange.h"

#include <string>

namespace dyeworks {

class PaletteBarHost;
class PaletteBarState;
class TextureLookupTable;

/// An adjustment that is being chosen, for a range of a palette. The bar and the images show every choice at
/// once; the palette stays as it is. Each is made of the entries as they were, never of what was shown, so
/// that going back to no adjustment shows exactly those.
class RangeAdjustment {
public:
    /// For the palette of that key, which is open; both references must outlive the adjustment.
    RangeAdjustment(PaletteBarState& state, PaletteBarHost& host, std::string key, EntryRange range);
    /// Ends what is shown.
    ~RangeAdjustment();
    RangeAdjustment(const RangeAdjustment&) = delete;
    RangeAdjustment& operator=(const RangeAdjustment&) = delete;

    [[nodiscard]] ColourType colourType() const noexcept { return before_.colourType; }
    [[nodiscard]] EntryRange range() const noexcept { return range_; }
    /// Shows that one. A palette that is closed meanwhile is not shown any more.
    void choose(const EntryAdjustment& adjustment);
    /// The palette that is adjusted; null when it was closed or got other entries meanwhile.
    [[nodiscard]] TextureLookupTable* palette() const;
    /// Its entries with what was chosen.
    [[nodiscard]] TlutData result() const;

private:
    PaletteBarState& state_;
    PaletteBarHost& host_;
    std::string key_;
    EntryRange range_;
    TlutData before_;
    EntryAdjustment chosen_;
    bool isShown_ = false;
};

} // namespace dyeworks
