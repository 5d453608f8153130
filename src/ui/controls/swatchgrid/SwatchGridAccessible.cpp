#include "ui/controls/swatchgrid/SwatchGridAccessible.h"

#include "ui/controls/swatchgrid/SwatchCellAccessible.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace dyeworks {

namespace {

/// The numbers from 0 that are asked for.
template <typename Wanted>
QList<int> numbers(int count, Wanted wanted) {
    QList<int> result;
    for (int number = 0; number < count; ++number) {
        if (wanted(number))
            result.append(number);
    }
    return result;
}

} // namespace

SwatchGridAccessible::SwatchGridAccessible(SwatchGrid& grid)
    : AccessibleControl(&grid, QAccessible::Table)
    , grid_(grid) {}

SwatchGridAccessible::~SwatchGridAccessible() {
    forgetCells();
}

void SwatchGridAccessible::forgetCells() {
    for (const auto& [cell, id] : std::exchange(cells_, {}))
        QAccessible::deleteAccessibleInterface(id);
}

void* SwatchGridAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

QString SwatchGridAccessible::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Value)
        return AccessibleControl::text(kind);
    const int cell = grid_.activeCell();
    if (cell == SwatchGrid::kNone)
        return {};
    const QString selected = grid_.selectionDescription();
    return selected.isEmpty() ? grid_.nameOf(cell)
                              : QString::fromLatin1("%1, %2").arg(grid_.nameOf(cell), selected);
}

QAccessibleInterface* SwatchGridAccessible::focusChild() const {
    return grid_.hasFocus() ? child(grid_.activeCell()) : nullptr;
}

QAccessibleInterface* SwatchGridAccessible::childAt(int x, int y) const {
    return child(grid_.cellAt(grid_.mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* SwatchGridAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    const auto known = cells_.find(index);
    if (known != cells_.end())
        return QAccessible::accessibleInterface(known->second);
    QAccessibleInterface* const made = std::make_unique<SwatchCellAccessible>(grid_, index).release();
    cells_[index] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int SwatchGridAccessible::childCount() const {
    return grid_.geometryOfCells().shownCells();
}

int SwatchGridAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (const auto& [cell, id] : cells_) {
        if (QAccessible::accessibleInterface(id) == child)
            return cell;
    }
    return -1;
}

QAccessibleInterface* SwatchGridAccessible::cellAt(int row, int column) const {
    return column < 0 || column >= columnCount() || row < 0 ? nullptr : child(row * columnCount() + column);
}

int SwatchGridAccessible::columnCount() const {
    return grid_.cells().columns();
}

int SwatchGridAccessible::rowCount() const {
    return grid_.geometryOfCells().shownRows();
}

QList<QAccessibleInterface*> SwatchGridAccessible::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const int cell : grid_.cells().selectedCells()) {
        if (QAccessibleInterface* const found = child(cell))
            cells.append(found);
    }
    return cells;
}

int SwatchGridAccessible::selectedCellCount() const {
    return static_cast<int>(selectedCells().size());
}

/// Whether all cells are selected from one on, with so many numbers from each to the next, up to `end`.
bool SwatchGridAccessible::areSelected(int first, int step, int end) const {
    for (int cell = first; cell < end; cell += step) {
        if (!grid_.cells().isSelected(cell))
            return false;
    }
    return first < end;
}

bool SwatchGridAccessible::isColumnSelected(int column) const {
    return column >= 0 && column < columnCount() && areSelected(column, columnCount(), childCount());
}

bool SwatchGridAccessible::isRowSelected(int row) const {
    const int first = row * columnCount();
    return row >= 0 && areSelected(first, 1, std::min(first + columnCount(), childCount()));
}

QList<int> SwatchGridAccessible::selectedColumns() const {
    return numbers(columnCount(), [this](int column) { return isColumnSelected(column); });
}

QList<int> SwatchGridAccessible::selectedRows() const {
    return numbers(rowCount(), [this](int row) { return isRowSelected(row); });
}

int SwatchGridAccessible::selectedColumnCount() const {
    return static_cast<int>(selectedColumns().size());
}

int SwatchGridAccessible::selectedRowCount() const {
    return static_cast<int>(selectedRows().size());
}

void SwatchGridAccessible::modelChange(QAccessibleTableModelChangeEvent* /*event*/) {
    forgetCells();
}

QAccessibleInterface* makeSwatchGridAccessible(const QString& /*className*/, QObject* object) {
    auto* const grid = qobject_cast<SwatchGrid*>(object);
    return grid == nullptr ? nullptr : std::make_unique<SwatchGridAccessible>(*grid).release();
}

} // namespace dyeworks
