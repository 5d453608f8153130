#include "palette/CurrentPalette.h"

#include "core/PaletteSet.h"

namespace dyeworks {

TextureLookupTable* CurrentPalette::get() const {
    const PaletteSet& set = *host_.paletteSet();
    const auto position = set.palettes.find(set.currentKey);
    return position == set.palettes.end() ? nullptr : position->second.get();
}

std::optional<ColourType> CurrentPalette::colourType() const {
    const TextureLookupTable* const palette = get();
    return palette == nullptr ? std::nullopt : std::optional(palette->table.colourType);
}

std::uint16_t CurrentPalette::ComposeEntry(const ChannelValues& channels) const {
    const auto type = colourType();
    return type ? composeEntry(*type, channels) : std::uint16_t{0};
}

} // namespace dyeworks
