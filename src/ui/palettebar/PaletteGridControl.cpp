#include "ui/palettebar/PaletteGridControl.h"

#include "ui/controls/CSwatchGrid.h"

#include <algorithm>
#include <limits>

namespace dyeworks {

namespace {

/// The control counts in 16 bits.
std::int16_t shortOf(std::int32_t number) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<std::int32_t>(number, Limits::min(), Limits::max()));
}

} // namespace

void PaletteGridControl::setBankMode(bool on) {
    control_.setBankMode(on);
}

void PaletteGridControl::setSelectable(bool on) {
    control_.setSelectable(on ? 1 : 0);
}

void PaletteGridControl::setCellCount(std::int32_t count) {
    control_.setCellCount(shortOf(count));
}

void PaletteGridControl::setLayout(std::int32_t columns, std::int32_t rows) {
    control_.setCellLayout(shortOf(columns), shortOf(rows));
}

std::int32_t PaletteGridControl::cellCount() const {
    return control_.cellCount();
}

void PaletteGridControl::setValue(std::int32_t cell, std::uint32_t value) {
    control_.setCellValue(shortOf(cell), value);
}

std::uint32_t PaletteGridControl::value(std::int32_t cell) const {
    return control_.cellValue(shortOf(cell));
}

void PaletteGridControl::setColour(std::int32_t cell, std::uint32_t colour) {
    control_.setCellColour(shortOf(cell), colour);
}

void PaletteGridControl::setMarker(std::int32_t marker, std::int32_t cell) {
    control_.setMarker(shortOf(marker), shortOf(cell));
}

std::int32_t PaletteGridControl::marker(std::int32_t marker) const {
    return control_.marker(shortOf(marker));
}

std::optional<PaletteGrid::Cell> PaletteGridControl::selection() const {
    const auto range = control_.selectedRange();
    if (!range)
        return std::nullopt;
    return Cell{range->firstColumn, range->firstRow};
}

PaletteGrid::Selected PaletteGridControl::selectedCells() const {
    const CSwatchGrid::Selected selected = control_.selectedCells();
    return {selected.first, selected.last, selected.count};
}

bool PaletteGridControl::copy() {
    return control_.copySelected();
}

bool PaletteGridControl::hasCopiedCells() const {
    return control_.hasCopiedCells();
}

bool PaletteGridControl::paste(Cell cell) {
    return control_.paste(shortOf(cell.column), shortOf(cell.row));
}

void PaletteGridControl::redraw() {
    if (QWidget* window = control_.controlWindow())
        window->update();
}

} // namespace dyeworks
