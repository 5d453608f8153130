#include "ui/controls/swatchgrid/SwatchCellAccessible.h"

#include "ui/controls/swatchgrid/SwatchGrid.h"

#include <QWindow>

namespace dyeworks {

SwatchCellAccessible::SwatchCellAccessible(SwatchGrid& grid, int cell)
    : grid_(&grid)
    , cell_(cell) {}

void* SwatchCellAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool SwatchCellAccessible::isValid() const {
    return grid_ != nullptr && cell_ < grid_->geometryOfCells().shownCells();
}

QWindow* SwatchCellAccessible::window() const {
    return isValid() ? grid_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* SwatchCellAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(grid_.data());
}

QString SwatchCellAccessible::text(QAccessible::Text kind) const {
    if (isValid() && kind == QAccessible::Name)
        return grid_->nameOf(cell_);
    return isSelected() && kind == QAccessible::Description ? grid_->selectionDescription() : QString();
}

QRect SwatchCellAccessible::rect() const {
    if (!isValid())
        return {};
    const QRect area = grid_->cellArea(cell_);
    return {grid_->mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::State SwatchCellAccessible::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (!isValid())
        return state;
    state.disabled = !grid_->isEnabled();
    state.invisible = !grid_->isVisible();
    state.focusable = true;
    state.focused = grid_->hasFocus() && grid_->activeCell() == cell_;
    state.selectable = grid_->isSelectable();
    state.selected = isSelected();
    return state;
}

bool SwatchCellAccessible::isSelected() const {
    return isValid() && grid_->cells().isSelected(cell_);
}

int SwatchCellAccessible::columnIndex() const {
    return isValid() ? cell_ % grid_->cells().columns() : -1;
}

int SwatchCellAccessible::rowIndex() const {
    return isValid() ? cell_ / grid_->cells().columns() : -1;
}

void SwatchCellAccessible::doAction(const QString& actionName) {
    if (isValid() && actionName == pressAction())
        grid_->choose(cell_);
}

} // namespace dyeworks
