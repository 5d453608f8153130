#pragma once

#include "ui/PalettePanelState.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

class PaletteSet;

/// What the palette panel asks of the application.
class PalettePanelHost {
public:
    virtual ~PalettePanelHost() = default;

    /// The open palettes, or null while there is no set.
    virtual PaletteSet* paletteSet() = 0;
    /// The active image, unless it is attached to another palette than the current one.
    [[nodiscard]] virtual std::optional<PalettePanelState::Image> panelImage() const = 0;
    /// The user chose the bank that begins at this entry for the active image.
    virtual void bankChosen(std::int32_t firstEntry) = 0;
};

} // namespace dyeworks
