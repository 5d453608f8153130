#include "ui/UndoListDelegate.h"

#include "ui/UndoListModel.h"

#include <QApplication>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>

namespace dyeworks {

void UndoListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // Every row leaves room for the mark, so that the names stand below each other.
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(option->fontMetrics.height(), option->fontMetrics.height());
    if (index.data(UndoListModel::kStateRole).toInt() == UndoListModel::kUndone)
        option->palette.setBrush(QPalette::Text, option->palette.brush(QPalette::PlaceholderText));
}

void UndoListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (index.data(UndoListModel::kStateRole).toInt() != UndoListModel::kCurrent)
        return;
    QStyleOptionViewItem full = option;
    initStyleOption(&full, index);
    const QStyle* const style = full.widget != nullptr ? full.widget->style() : QApplication::style();
    const QRectF place = style->subElementRect(QStyle::SE_ItemViewItemDecoration, &full, full.widget);
    const qreal side = place.height() / 4;
    const QPointF middle = place.center();
    const qreal inwards = full.direction == Qt::RightToLeft ? -side : side;
    const bool isSelected = (full.state & QStyle::State_Selected) != 0;
    const auto group = (full.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(full.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawPolygon(QPolygonF({{middle.x() - inwards, middle.y() - side},
                                    {middle.x() + inwards, middle.y()},
                                    {middle.x() - inwards, middle.y() + side}}));
    painter->restore();
}

} // namespace dyeworks
