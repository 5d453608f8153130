#pragma once

#include "core/ColourType.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

class PaletteSet;
class TextureLookupTable;

/// What the palette bar asks of the application.
class PaletteBarHost {
public:
    struct Image {
        std::int32_t bits = 0;         ///< Per texel, 4 or 8.
        std::int32_t paletteValue = 0; ///< First entry of the bank that the image keeps.
    };

    virtual ~PaletteBarHost() = default;

    /// The open palettes; never null.
    virtual PaletteSet* paletteSet() = 0;
    /// The image of the active window, as long as it is attached to the current palette.
    [[nodiscard]] virtual std::optional<Image> activeImage() const = 0;
    /// Stores the palette value in that image and lets it take the colours of the bank.
    virtual void setActivePaletteValue(std::int32_t firstEntry) = 0;
    /// Recolours the images that are attached to `key` with `palette`, which may be a passing copy.
    virtual void BroadcastPaletteChange(const std::string& key, const TextureLookupTable& palette) = 0;
    /// Lets every image of the current palette take its stored colours.
    virtual void RefreshImagePalettes() = 0;
    /// Lets every image take the stored colours of its palette: the view mode is that of all of them.
    virtual void RefreshAllImages() = 0;
    /// Says something in the pane for messages.
    virtual void showMessage(const std::string& text) = 0;
};

/// Shows what `PaletteBarState` says. It is told once per action what to read anew.
class PaletteBarView {
public:
    virtual ~PaletteBarView() = default;

    /// Channel values, texts, marks, enabled states, the bank, the colour of the edit button.
    virtual void valuesChanged() = 0;
    /// Which controls show, channel names and ranges, the grid's columns and rows. Comes before
    /// `valuesChanged`.
    virtual void layoutChanged() = 0;
    /// Number, titles or choice of the tabs.
    virtual void tabsChanged() = 0;
    /// Opens the dialog for an entry of that type. Nothing when the user cancelled.
    virtual std::optional<std::uint16_t> askEntry(ColourType type, std::uint16_t start) = 0;
};

} // namespace dyeworks
