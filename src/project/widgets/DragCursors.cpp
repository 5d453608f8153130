#include "project/widgets/DragCursors.h"

#include <QPainter>
#include <QPainterPath>

namespace dyeworks {

namespace {

// In pixels of a ratio of 1.
constexpr int kSide = 32;
constexpr QRectF kSheet(12.5, 12.5, 13, 15);
constexpr QRectF kSign(20.5, 20.5, 10, 10);
constexpr qreal kArm = 3;

QPainterPath pointer() {
    QPainterPath path;
    path.moveTo(1.5, 1.5);
    path.lineTo(1.5, 16.5);
    path.lineTo(5, 13);
    path.lineTo(7.5, 18.5);
    path.lineTo(10, 17.5);
    path.lineTo(7.5, 12);
    path.lineTo(12.5, 12);
    path.closeSubpath();
    return path;
}

void drawSign(QPainter& painter, Qt::DropAction action) {
    const QPointF middle = kSign.center();
    painter.setBrush(Qt::white);
    painter.drawRect(kSign);
    if (action == Qt::CopyAction) {
        painter.drawLine(middle - QPointF(kArm, 0), middle + QPointF(kArm, 0));
        painter.drawLine(middle - QPointF(0, kArm), middle + QPointF(0, kArm));
        return;
    }
    const QPointF tip = middle + QPointF(kArm, -kArm);
    painter.drawLine(middle + QPointF(-kArm, kArm), tip);
    painter.drawLine(tip, tip - QPointF(kArm, 0));
    painter.drawLine(tip, tip + QPointF(0, kArm));
}

} // namespace

QPixmap dragCursor(Qt::DropAction action, qreal devicePixelRatio) {
    QPixmap pixmap(QSize(kSide, kSide) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(QColor(255, 255, 255, 200));
    painter.drawRect(kSheet);
    painter.setBrush(Qt::white);
    painter.drawPath(pointer());
    if (action != Qt::MoveAction)
        drawSign(painter, action);
    return pixmap;
}

} // namespace dyeworks
