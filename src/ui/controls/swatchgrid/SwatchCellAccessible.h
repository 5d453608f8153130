#pragma once

#include <QAccessible>
#include <QPointer>

namespace dyeworks {

class SwatchGrid;

/// One cell of a grid as assistive technology sees it.
class SwatchCellAccessible final : public QAccessibleInterface,
                                   public QAccessibleTableCellInterface,
                                   public QAccessibleActionInterface {
public:
    SwatchCellAccessible(SwatchGrid& grid, int cell);

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    /// The name is what the cell holds.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
    [[nodiscard]] QAccessible::State state() const override;

    [[nodiscard]] bool isSelected() const override;
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] int columnIndex() const override;
    [[nodiscard]] int rowIndex() const override;
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

    // To press a cell is to click it.
    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& actionName) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*actionName*/) const override {
        return {};
    }

    [[nodiscard]] int cell() const noexcept { return cell_; }

private:
    QPointer<SwatchGrid> grid_;
    int cell_;
};

} // namespace dyeworks
