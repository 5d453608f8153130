#include "ui/CommandRowPainter.h"

#include "framework/widgets/ContrastStyle.h"
#include "ui/CommandSearchModel.h"

#include <QApplication>
#include <QPainter>

namespace dyeworks {

namespace {

constexpr double kSmaller = 0.88; ///< The second line, of the first.
constexpr double kFaint = 0.6;    ///< How much of its colour the name of a disabled command keeps.

QFont smallFont(const QFont& font) {
    QFont smaller(font);
    smaller.setPointSizeF(font.pointSizeF() * kSmaller);
    return smaller;
}

int gapOf(const QFontMetrics& metrics) {
    return metrics.height() / 3;
}

void drawLine(QPainter& painter, const QRect& place, const QString& text) {
    painter.drawText(place, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

} // namespace

void CommandRowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    // The keys are in the field above, whose list this is.
    row.state |= QStyle::State_Active;
    row.text.clear();
    const QStyle& style = row.widget == nullptr ? *QApplication::style() : *row.widget->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, row.widget);

    const bool chosen = (row.state & QStyle::State_Selected) != 0;
    const QString reason = index.data(CommandSearchModel::Reason).toString();
    const QString keys = index.data(CommandSearchModel::Keys).toString();
    const QColor ink =
        row.palette.color(QPalette::Active, chosen ? QPalette::HighlightedText : QPalette::Text);
    const int gap = gapOf(row.fontMetrics);
    const QRect room = row.rect.adjusted(gap, gap / 2, -gap, -gap / 2);
    QRect first(room.topLeft(), QSize(room.width(), row.fontMetrics.height()));

    painter->save();
    painter->setFont(row.font);
    painter->setPen(ink);
    const bool faint = !reason.isEmpty() && !chosen && !ContrastStyle::isWanted(row.palette);
    painter->setOpacity(faint ? kFaint : 1);
    painter->drawText(first, Qt::AlignTrailing | Qt::AlignVCenter | Qt::TextSingleLine, keys);
    first.setWidth(room.width() - row.fontMetrics.horizontalAdvance(keys) - (keys.isEmpty() ? 0 : gap));
    drawLine(*painter, first, index.data().toString());
    painter->setOpacity(1);
    painter->setFont(smallFont(row.font));
    const QRect second(room.left(), first.bottom() + 1, room.width(), painter->fontMetrics().height());
    const QString place = index.data(CommandSearchModel::Place).toString();
    drawLine(*painter, second, reason.isEmpty() ? place : place + QStringLiteral(" \u2013 ") + reason);
    painter->restore();
}

QSize CommandRowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    const int gap = gapOf(option.fontMetrics);
    const int height =
        option.fontMetrics.height() + QFontMetrics(smallFont(option.font)).height() + gap / 2 * 2;
    return {option.fontMetrics.averageCharWidth(), height};
}

} // namespace dyeworks
