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

void SwatchCells::select(int from, int to, Shape shape) {
    selection_ = {from, to, shape};
}

std::optional<SwatchCells::Corners> SwatchCells::selection() const {
    if (!selection_ || columns_ == 0)
        return std::nullopt;
    const auto [low, high] = std::minmax(selection_->from, selection_->to);
    const QPoint first(low % columns_, low / columns_);
    const QPoint last(high % columns_, high / columns_);
    if (selection_->shape == Shape::Run)
        return Corners{first, last};
    return Corners{{std::min(first.x(), last.x()), first.y()}, {std::max(first.x(), last.x()), last.y()}};
}

bool SwatchCells::isSelected(int cell) const {
    const std::optional<Corners> range = selection();
    if (!range || !has(cell))
        return false;
    const QPoint place(cell % columns_, cell / columns_);
    const bool inRows = place.y() >= range->first.y() && place.y() <= range->last.y();
    if (selection_->shape == Shape::Block)
        return inRows && place.x() >= range->first.x() && place.x() <= range->last.x();
    return inRows && (place.y() > range->first.y() || place.x() >= range->first.x()) &&
           (place.y() < range->last.y() || place.x() <= range->last.x());
}

std::optional<std::pair<int, int>> SwatchCells::selectedRun() const {
    if (!selection_ || selection_->shape != Shape::Run)
        return std::nullopt;
    return std::minmax(selection_->from, selection_->to);
}

std::vector<int> SwatchCells::selectedCells() const {
    std::vector<int> cells;
    for (int cell = 0; cell < count(); ++cell) {
        if (isSelected(cell))
            cells.push_back(cell);
    }
    return cells;
}

std::optional<CopiedCells> SwatchCells::selected() const {
    const std::optional<Corners> range = selection();
    if (!range)
        return std::nullopt;
    CopiedCells copied;
    if (selection_->shape == Shape::Run) {
        copied.isRun = true;
        for (const int cell : selectedCells())
            copied.values.push_back(at(cell).value);
        copied.columns = static_cast<int>(copied.values.size());
        return copied;
    }
    copied.columns = range->last.x() - range->first.x() + 1;
    for (int row = range->first.y(); row <= range->last.y(); ++row) {
        for (int column = range->first.x(); column <= range->last.x(); ++column) {
            // The last row may be shorter than the range is wide.
            const int cell = row * columns_ + column;
            copied.values.push_back(has(cell) ? at(cell).value : 0);
        }
    }
    return copied;
}

std::optional<std::pair<int, int>> SwatchCells::paste(const CopiedCells& copied, int column, int row) {
    std::optional<std::pair<int, int>> changed;
    const int first = row * columns_ + column;
    for (int i = 0; i < static_cast<int>(copied.values.size()); ++i) {
        const int across = i % copied.columns;
        const int down = i / copied.columns;
        const int cell = first + (copied.isRun ? i : down * columns_ + across);
        const bool isInside = copied.isRun || column + across < columns_;
        const std::uint32_t value = copied.values[static_cast<std::size_t>(i)];
        if (!isInside || cell >= rows_ * columns_ || !has(cell) || at(cell).value == value)
            continue;
        setValue(cell, value);
        changed = {changed ? changed->first : cell, cell};
    }
    return changed;
}

} // namespace dyeworks
