#include "ui/ThumbnailButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QtMath>

#include <algorithm>

namespace dyeworks {

ThumbnailButton::ThumbnailButton(QWidget* parent)
    : QAbstractButton(parent) {
    setCheckable(true);
    // A click leaves the keys with the image.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

int ThumbnailButton::margin() const {
    return std::max(3, fontMetrics().height() / 5);
}

QRect ThumbnailButton::pictureArea() const {
    const int beside = margin();
    return rect().adjusted(beside, beside, -beside, -beside - fontMetrics().height());
}

QSize ThumbnailButton::pictureRoom() const {
    const QSize room = pictureArea().size() * devicePixelRatioF();
    return room.expandedTo({0, 0});
}

QPointF ThumbnailButton::picturePlace() const {
    // On whole pixels of the device, so that the picture is sharp.
    const qreal scale = devicePixelRatioF();
    const QRect area = pictureArea();
    const QSizeF size = QSizeF(picture_.size()) / scale;
    const QPointF corner(area.left() + (area.width() - size.width()) / 2,
                         area.top() + (area.height() - size.height()) / 2);
    return {qFloor(corner.x() * scale) / scale, qFloor(corner.y() * scale) / scale};
}

void ThumbnailButton::updatePicture(const QRect& part) {
    const qreal scale = devicePixelRatioF();
    update(QRectF(picturePlace() + QPointF(part.topLeft()) / scale, QSizeF(part.size()) / scale)
               .toAlignedRect());
}

QSize ThumbnailButton::sizeFor(int letters) const {
    const int side = letters * fontMetrics().height();
    return {side + 2 * margin(), side + 2 * margin() + fontMetrics().height()};
}

QSize ThumbnailButton::sizeHint() const {
    return sizeFor(4);
}

void ThumbnailButton::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    if (!picture_.isNull()) {
        const QSizeF size = QSizeF(picture_.size()) / devicePixelRatioF();
        painter.drawImage(QRectF(picturePlace(), size), picture_);
    }
    // Painting alone costs nothing more than the part of the picture that has changed.
    if (pictureArea().contains(event->rect()))
        return;
    QFont font = painter.font();
    font.setBold(isChecked());
    painter.setFont(font);
    const QRect line(rect().left() + margin(), rect().bottom() + 1 - margin() / 2 - fontMetrics().height(),
                     rect().width() - 2 * margin(), fontMetrics().height());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(line, Qt::AlignCenter,
                     QFontMetrics(font).elidedText(text(), Qt::ElideMiddle, line.width()));
    if (isChecked() || isDown() || underMouse()) {
        const int width = isChecked() ? 2 : 1;
        painter.setPen(
            QPen(palette().color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(Qt::NoBrush);
        const qreal inset = width / 2.0;
        painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = line;
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ThumbnailButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        Q_EMIT walked(event->key());
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

} // namespace dyeworks
