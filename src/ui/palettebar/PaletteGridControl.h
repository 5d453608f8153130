#pragma once

#include "palette/PaletteGrid.h"

namespace dyeworks {

class CSwatchGrid;

/// The palette bar's way to a grid of swatches on the screen. The control must outlive it.
class PaletteGridControl final : public PaletteGrid {
public:
    explicit PaletteGridControl(CSwatchGrid& control)
        : control_(control) {}

    void setBankMode(bool on) override;
    void setSelectable(bool on) override;
    void setCellCount(std::int32_t count) override;
    void setLayout(std::int32_t columns, std::int32_t rows) override;
    [[nodiscard]] std::int32_t cellCount() const override;
    void setValue(std::int32_t cell, std::uint32_t value) override;
    [[nodiscard]] std::uint32_t value(std::int32_t cell) const override;
    void setColour(std::int32_t cell, std::uint32_t colour) override;
    void setMarker(std::int32_t marker, std::int32_t cell) override;
    [[nodiscard]] std::int32_t marker(std::int32_t marker) const override;
    [[nodiscard]] std::optional<Cell> selection() const override;
    [[nodiscard]] Selected selectedCells() const override;
    bool copy() override;
    [[nodiscard]] bool hasCopiedCells() const override;
    bool paste(Cell cell) override;
    void redraw() override;

private:
    CSwatchGrid& control_;
};

} // namespace dyeworks
