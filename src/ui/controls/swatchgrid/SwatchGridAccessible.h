#pragma once

#include "ui/controls/dispatch/AccessibleControl.h"
#include "ui/controls/swatchgrid/SwatchGrid.h"

#include <map>

namespace dyeworks {

/// A grid as assistive technology sees it: a table of cells, the active one with the focus. The value of the
/// whole is what the active cell holds.
class SwatchGridAccessible final : public AccessibleControl, public QAccessibleTableInterface {
public:
    explicit SwatchGridAccessible(SwatchGrid& grid);
    ~SwatchGridAccessible() override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
    [[nodiscard]] int columnCount() const override;
    [[nodiscard]] int rowCount() const override;
    [[nodiscard]] int selectedCellCount() const override;
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
    [[nodiscard]] QString columnDescription(int column) const override { return QString::number(column); }
    [[nodiscard]] QString rowDescription(int row) const override { return QString::number(row); }
    [[nodiscard]] int selectedColumnCount() const override;
    [[nodiscard]] int selectedRowCount() const override;
    [[nodiscard]] QList<int> selectedColumns() const override;
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int column) const override;
    [[nodiscard]] bool isRowSelected(int row) const override;
    // Ranges are selected by the user alone.
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    void forgetCells();
    [[nodiscard]] bool areSelected(int first, int step, int end) const;

    SwatchGrid& grid_;
    // Interfaces of cells are made when asked for and are owned by Qt.
    mutable std::map<int, QAccessible::Id> cells_;
};

/// The accessible interface of a SwatchGrid; null for other objects. Qt owns it.
QAccessibleInterface* makeSwatchGridAccessible(const QString& className, QObject* object);

} // namespace dyeworks
