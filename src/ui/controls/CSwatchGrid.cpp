#include "ui/controls/CSwatchGrid.h"

namespace dyeworks {

namespace {

/// Argument `index` of an event; 0 when it is not there.
int shortOf(DispatchArguments arguments, std::size_t index) {
    const std::int16_t* value =
        index < arguments.size() ? std::get_if<std::int16_t>(&arguments[index]) : nullptr;
    return value == nullptr ? 0 : *value;
}

} // namespace

CSwatchGrid::CSwatchGrid(QWidget* parent)
    : ControlFrame("SwatchGrid", parent) {}

CSwatchGrid::~CSwatchGrid() = default;

void CSwatchGrid::setBankMode(bool on) {
    control().set(2, on);
}

void CSwatchGrid::setSelectable(std::int16_t value) {
    control().set(3, value);
}

void CSwatchGrid::setCellLayout(std::int16_t columns, std::int16_t rows) {
    control().call(4, {columns, rows, std::int16_t{0}});
}

bool CSwatchGrid::setCellCount(std::int16_t count) {
    return control().call(5, {count}, false);
}

std::uint32_t CSwatchGrid::cellValue(std::int16_t cell) const {
    return static_cast<std::uint32_t>(control().call(6, {cell}, std::int32_t{0}));
}

void CSwatchGrid::setCellValue(std::int16_t cell, std::uint32_t value) {
    control().call(7, {cell, static_cast<std::int32_t>(value)});
}

std::int16_t CSwatchGrid::cellCount() const {
    return control().call(9, {}, std::int16_t{0});
}

bool CSwatchGrid::setMarker(std::int16_t slot, std::int16_t cell) {
    return control().call(11, {slot, cell}, false);
}

std::int16_t CSwatchGrid::marker(std::int16_t slot) const {
    return control().call(12, {slot}, kNone);
}

std::optional<CSwatchGrid::Range> CSwatchGrid::selectedRange() const {
    Range range;
    if (!control().call(14, {&range.firstColumn, &range.firstRow, &range.lastColumn, &range.lastRow}, false))
        return std::nullopt;
    return range;
}

bool CSwatchGrid::hasSelectedRange() const {
    std::int16_t* const unasked = nullptr;
    return control().call(14, {unasked, unasked, unasked, unasked}, false);
}

bool CSwatchGrid::copySelected() {
    return control().call(15, {}, false);
}

bool CSwatchGrid::hasCopiedCells() const {
    return control().call(16, {}, false);
}

bool CSwatchGrid::paste(std::int16_t column, std::int16_t row) {
    return control().call(17, {column, row}, false);
}

std::int16_t CSwatchGrid::cellAt(std::int32_t x, std::int32_t y) const {
    return control().call(19, {x, y}, kNone);
}

void CSwatchGrid::setCellColour(std::int16_t cell, std::uint32_t colour) {
    control().call(26, {cell, static_cast<std::int32_t>(colour)});
}

void CSwatchGrid::setBankRow(std::int16_t row) {
    control().set(101, row);
}

std::int16_t CSwatchGrid::clickedCell() const {
    return control().call(102, {}, kNone);
}

void CSwatchGrid::setCellGlyphs(std::int16_t cell, std::int16_t glyphs) {
    control().call(110, {cell, glyphs});
}

void CSwatchGrid::describeAgain() {
    control().call(103, {});
}

CSwatchGrid::Selected CSwatchGrid::selectedCells() const {
    Selected selected;
    selected.count = control().call(111, {&selected.first, &selected.last}, std::int16_t{0});
    return selected;
}

void CSwatchGrid::setMovable(bool on) {
    control().set(112, on);
}

void CSwatchGrid::selectRun(std::int16_t first, std::int16_t last) {
    control().call(113, {first, last});
}

void CSwatchGrid::hearEvent(DispatchId event, DispatchArguments arguments) {
    switch (event) {
    case -600:
        Q_EMIT clicked();
        break;
    case -601:
        Q_EMIT doubleClicked();
        break;
    case 1:
        Q_EMIT rangeSelected(shortOf(arguments, 0), shortOf(arguments, 1), shortOf(arguments, 2),
                             shortOf(arguments, 3));
        break;
    case 2:
        Q_EMIT cellsPasted(shortOf(arguments, 0), shortOf(arguments, 1));
        break;
    case 101:
    case 114:
        if (const auto& describe = event == 101 ? describer_ : namer_; arguments.size() == 2 && describe) {
            if (std::string* const* text = std::get_if<std::string*>(&arguments[1]))
                **text = describe(shortOf(arguments, 0)).toStdString();
        }
        break;
    case 111:
        if (arguments.size() == 4 && selectionDescriber_) {
            const auto number = [&](std::size_t i) {
                return static_cast<std::int16_t>(shortOf(arguments, i));
            };
            if (std::string* const* text = std::get_if<std::string*>(&arguments[3]))
                **text = selectionDescriber_({number(0), number(1), number(2)}).toStdString();
        }
        break;
    case 112:
        Q_EMIT runDropped(shortOf(arguments, 0), shortOf(arguments, 1), shortOf(arguments, 2));
        break;
    default:
        break;
    }
}

} // namespace dyeworks
