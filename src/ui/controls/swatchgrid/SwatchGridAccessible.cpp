#include "ui/controls/swatchgrid/SwatchGridAccessible.h"

#include "ui/controls/swatchgrid/SwatchCellAccessible.h"

#include <memory>
#include <numeric>
#include <utility>

namespace dyeworks {

namespace {

QList<int> numbers(int first, int count) {
    QList<int> result(count);
    std::iota(result.begin(), result.end(), first);
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
    return cell == SwatchGrid::kNone ? QString() : grid_.description(cell);
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
    const QRect range = grid_.cells().selection().value_or(QRect());
    for (int row = range.top(); row <= range.bottom(); ++row) {
        for (int column = range.left(); column <= range.right(); ++column) {
            if (QAccessibleInterface* const cell = cellAt(row, column))
                cells.append(cell);
        }
    }
    return cells;
}

int SwatchGridAccessible::selectedCellCount() const {
    return static_cast<int>(selectedCells().size());
}

QList<int> SwatchGridAccessible::selectedColumns() const {
    const QRect range = grid_.cells().selection().value_or(QRect());
    return range.height() == rowCount() ? numbers(range.left(), range.width()) : QList<int>();
}

QList<int> SwatchGridAccessible::selectedRows() const {
    const QRect range = grid_.cells().selection().value_or(QRect());
    return range.width() == columnCount() ? numbers(range.top(), range.height()) : QList<int>();
}

int SwatchGridAccessible::selectedColumnCount() const {
    return static_cast<int>(selectedColumns().size());
}

int SwatchGridAccessible::selectedRowCount() const {
    return static_cast<int>(selectedRows().size());
}

bool SwatchGridAccessible::isColumnSelected(int column) const {
    return selectedColumns().contains(column);
}

bool SwatchGridAccessible::isRowSelected(int row) const {
    return selectedRows().contains(row);
}

void SwatchGridAccessible::modelChange(QAccessibleTableModelChangeEvent* /*event*/) {
    forgetCells();
}

QAccessibleInterface* makeSwatchGridAccessible(const QString& /*className*/, QObject* object) {
    auto* const grid = qobject_cast<SwatchGrid*>(object);
    return grid == nullptr ? nullptr : std::make_unique<SwatchGridAccessible>(*grid).release();
}

} // namespace dyeworks
