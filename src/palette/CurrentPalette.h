#pragma once

#include "palette/EntryFormat.h"
#include "palette/PaletteBarHost.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

/// The palette that the bar shows and edits: the current one of the open palettes, if there is any.
class CurrentPalette {
public:
    /// `host` must outlive it.
    explicit CurrentPalette(PaletteBarHost& host)
        : host_(host) {}

    /// Null when there is none.
    [[nodiscard]] TextureLookupTable* get() const;
    [[nodiscard]] bool exists() const { return get() != nullptr; }
    /// Nothing without a palette.
    [[nodiscard]] std::optional<ColourType> colourType() const;
    /// The entry that the channels make in the palette's format; 0 without a palette.
    [[nodiscard]] std::uint16_t ComposeEntry(const ChannelValues& channels) const;

private:
    PaletteBarHost& host_;
};

} // namespace dyeworks
