#pragma once

#include "palette/CurrentPalette.h"
#include "palette/PaletteGrid.h"

#include <cstdint>
#include <string>

namespace dyeworks {

/// The strip of colours between two chosen ones. An RGBA palette has it.
class GradientStrip {
public:
    /// `palette` must outlive the strip.
    explicit GradientStrip(const CurrentPalette& palette)
        : palette_(palette) {}

    /// Sets up the strip's cells, which must outlive their use.
    void start(PaletteGrid& cells);

    /// Also tells whether the buttons that set its ends show.
    [[nodiscard]] bool isVisible() const { return palette_.colourType() == ColourType::Rgba; }
    /// A cell's entry the way a click types it; empty where there is no cell to click.
    [[nodiscard]] std::string textAt(std::int32_t cell) const;

    void takeLeft(std::uint16_t entry);
    void takeRight(std::uint16_t entry);
    /// Alpha is that of the left end in every cell.
    void FillStrip();

private:
    const CurrentPalette& palette_;
    PaletteGrid* cells_ = nullptr;
    std::uint16_t stripLeft_ = 0x0000;
    std::uint16_t stripRight_ = 0xFFFF;
};

} // namespace dyeworks
