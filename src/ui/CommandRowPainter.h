#pragma once

#include <QStyledItemDelegate>

namespace dyeworks {

/// Draws a row of the command search: the name with the keys at the end of the line, below it, smaller, the
/// menus around it and why it cannot be used.
class CommandRowPainter : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace dyeworks
