#include "ui/controls/swatchgrid/SwatchGeometry.h"

#include <QtMath>

#include <algorithm>

namespace dyeworks {

namespace {

// In the window's pixels.
constexpr qreal kMargin = 8;
constexpr int kSmallestPitch = 8;

constexpr int kUnlimited = 1 << 24;

} // namespace

SwatchGeometry::SwatchGeometry(const Cells& cells, int preferredPitch, qreal scale)
    : cells_(cells)
    , preferredPitch_(preferredPitch)
    , scale_(scale)
    , shown_(static_cast<int>(std::min<qint64>(cells.count, qint64{cells.columns} * cells.rows)))
    , line_(std::max(1, device(1)))
    , margin_(device(kMargin)) {}

int SwatchGeometry::device(qreal length) const {
    return qRound(length * scale_);
}

int SwatchGeometry::shownRows() const {
    return shown_ == 0 ? 0 : (shown_ + cells_.columns - 1) / cells_.columns;
}

/// The pitch at which the cells fill a window of so many device pixels.
int SwatchGeometry::pitchFor(int across, int down) const {
    if (isEmpty())
        return 1;
    const int widest = (across - 2 * margin_ + line_) / cells_.columns;
    const int highest = (down - 2 * margin_ + line_) / shownRows();
    // A cell is never thinner than the line beside it.
    return std::max(2 * line_, std::min({widest, highest, device(2 * preferredPitch_)}));
}

void SwatchGeometry::fit(const QSize& size) {
    const int width = qFloor(size.width() * scale_);
    pitch_ = pitchFor(width, qFloor(size.height() * scale_));
    origin_ = {std::max(margin_, (width - cells_.columns * pitch_ + line_) / 2), margin_};
}

QRect SwatchGeometry::cell(int index) const {
    if (index < 0 || index >= shown_)
        return {};
    const int side = pitch_ - line_;
    return {origin_ + QPoint(index % cells_.columns * pitch_, index / cells_.columns * pitch_),
            QSize(side, side)};
}

int SwatchGeometry::cellAt(const QPointF& point) const {
    const int x = qFloor(point.x() * scale_) - origin_.x();
    const int y = qFloor(point.y() * scale_) - origin_.y();
    if (isEmpty() || x < 0 || y < 0 || x / pitch_ >= cells_.columns)
        return kNone;
    const int index = y / pitch_ * cells_.columns + x / pitch_;
    return index < shown_ ? index : kNone;
}

int SwatchGeometry::nearestCell(const QPointF& point) const {
    if (isEmpty())
        return kNone;
    const int column = qFloor((point.x() * scale_ - origin_.x()) / pitch_);
    const int row = qFloor((point.y() * scale_ - origin_.y()) / pitch_);
    const int index =
        std::clamp(row, 0, shownRows() - 1) * cells_.columns + std::clamp(column, 0, cells_.columns - 1);
    return std::min(index, shown_ - 1);
}

SwatchGeometry::Gap SwatchGeometry::nearestGap(const QPointF& point) const {
    const int nearest = nearestCell(point);
    if (nearest == kNone)
        return {};
    const QRect area = cell(nearest);
    return {nearest, point.x() * scale_ >= area.left() + area.width() / 2.0};
}

QSize SwatchGeometry::sizeFor(int pitch) const {
    const auto length = [&](int cells) {
        return qCeil((2 * margin_ + std::max(0, cells * pitch - line_)) / scale_);
    };
    return {length(isEmpty() ? 0 : cells_.columns), length(shownRows())};
}

QSize SwatchGeometry::smallestSize() const {
    return sizeFor(device(kSmallestPitch));
}

int SwatchGeometry::heightForWidth(int width) const {
    return sizeFor(pitchFor(qFloor(width * scale_), kUnlimited)).height();
}

} // namespace dyeworks
