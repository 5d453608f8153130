#include "ui/controls/swatchgrid/SwatchCells.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::uint32_t kColourBits = 0x00ffffff;

} // namespace

void SwatchCells::setShape(int columns, int rows) {
    if (columns == columns_ && rows == rows_)
        return;
    columns_ = columns;
    rows_ = rows;
    selection_.reset();
}

void SwatchCells::setCount(int newCount) {
    if (newCount == count())
        return;
    cells_.resize(static_cast<std::size_t>(newCount));
    selection_.reset();
}

void SwatchCells::setValue(int cell, std::uint32_t value) {
    Cell& changed = cells_[static_cast<std::size_t>(cell)];
    changed.value = value;
    changed.colour = value & kColourBits;
}

void SwatchCells::setColour(int cell, std::uint32_t colour) {
    cells_[static_cast<std::size_t>(cell)].colour = colour & kColourBits;
}

void SwatchCells::setGlyphs(int cell, unsigned glyphs) {
    cells_[static_cast<std::size_t>(cell)].glyphs = glyphs;
}

bool SwatchCells::setMarker(int slot, int cell) {
    if (slot < 0 || slot >= kSlots || cell < kSwitchedOff)
        return false;
    int& marked = markers_[static_cast<std::size_t>(slot)];
    if (slot == kCurrentSlot && marked != cell)
        selection_.reset();
    marked = cell;
    return true;
}

int SwatchCells::marker(int slot) const {
    return slot < 0 || slot >= kSlots ? kNone : markers_[static_cast<std::size_t>(slot)];
}

void SwatchCells::select(int from, int to) {
    selection_ = {from, to};
}

std::optional<QRect> SwatchCells::selection() const {
    if (!selection_ || columns_ == 0)
        return std::nullopt;
    const QPoint from(selection_->first % columns_, selection_->first / columns_);
    const QPoint to(selection_->second % columns_, selection_->second / columns_);
    return QRect(QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
                 QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y())));
}

std::optional<CopiedCells> SwatchCells::selected() const {
    const std::optional<QRect> range = selection();
    if (!range)
        return std::nullopt;
    CopiedCells copied{range->width(), {}};
    for (int row = range->top(); row <= range->bottom(); ++row) {
        for (int column = range->left(); column <= range->right(); ++column) {
            // The last row may be shorter than the range is wide.
            const int cell = row * columns_ + column;
            copied.values.push_back(has(cell) ? at(cell).value : 0);
        }
    }
    return copied;
}

std::optional<std::pair<int, int>> SwatchCells::paste(const CopiedCells& copied, int column, int row) {
    std::optional<std::pair<int, int>> changed;
    const int copiedRows = static_cast<int>(copied.values.size()) / copied.columns;
    const int endRow = std::min(row + copiedRows, rows_);
    const int endColumn = std::min(column + copied.columns, columns_);
    for (int toRow = row; toRow < endRow; ++toRow) {
        for (int toColumn = column; toColumn < endColumn; ++toColumn) {
            const int cell = toRow * columns_ + toColumn;
            const std::uint32_t value =
                copied.values[static_cast<std::size_t>((toRow - row) * copied.columns + toColumn - column)];
            if (!has(cell) || at(cell).value == value)
                continue;
            setValue(cell, value);
            changed = {changed ? changed->first : cell, cell};
        }
    }
    return changed;
}

} // namespace dyeworks
