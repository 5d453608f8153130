#pragma once

#include <QStyledItemDelegate>

namespace dyeworks {

/// Draws the rows of an `UndoListModel`: an arrowhead before the state that the document is in, and those
/// that were undone in grey.
class UndoListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace dyeworks
