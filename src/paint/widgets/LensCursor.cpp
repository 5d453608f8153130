#include "paint/widgets/LensCursor.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace dyeworks {

namespace {

// In pixels of a ratio of 1.
constexpr int kSide = 24;
constexpr int kHotSpot = 8;
constexpr QPointF kMiddle(8.5, 8.5);
constexpr qreal kRadius = 6.5;
constexpr qreal kSignArm = 3;
constexpr QPointF kHandleFrom(13.5, 13.5);
constexpr QPointF kHandleTo(20.5, 20.5);

QPainterPath outline(LensSign sign) {
    QPainterPath path;
    path.addEllipse(kMiddle, kRadius, kRadius);
    path.moveTo(kHandleFrom);
    path.lineTo(kHandleTo);
    path.moveTo(kMiddle - QPointF(kSignArm, 0));
    path.lineTo(kMiddle + QPointF(kSignArm, 0));
    if (sign == LensSign::Plus) {
        path.moveTo(kMiddle - QPointF(0, kSignArm));
        path.lineTo(kMiddle + QPointF(0, kSignArm));
    }
    return path;
}

QPixmap picture(LensSign sign, qreal devicePixelRatio) {
    QPixmap pixmap(QSize(kSide, kSide) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    // Black on white, to be seen on any image.
    const QPainterPath lens = outline(sign);
    painter.strokePath(lens, QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
    painter.strokePath(lens, QPen(Qt::black, 1.8, Qt::SolidLine, Qt::RoundCap));
    return pixmap;
}

} // namespace

QCursor lensCursor(LensSign sign, qreal devicePixelRatio) {
    return QCursor(picture(sign, devicePixelRatio), kHotSpot, kHotSpot);
}

} // namespace dyeworks
