#include "ui/controls/swatchgrid/SwatchDrag.h"

#include <QApplication>

namespace dyeworks {

void SwatchDrag::moveTo(const QPointF& point, const SwatchGeometry& geometry) {
    hasBegun_ = hasBegun_ || (point - pressed_).manhattanLength() >= QApplication::startDragDistance();
    gap_ = geometry.nearestGap(point);
}

std::optional<SwatchGeometry::Gap> SwatchDrag::gap() const {
    const bool staysThere = gap_.number() >= first_ && gap_.number() <= last_ + 1;
    return !hasBegun_ || gap_.cell == SwatchGeometry::kNone || staysThere ? std::nullopt
                                                                          : std::optional(gap_);
}

std::optional<int> SwatchDrag::place() const {
    const auto there = gap();
    if (!there)
        return std::nullopt;
    // Cells between move up to where these have been.
    return there->number() > last_ ? there->number() - (last_ - first_ + 1) : there->number();
}

} // namespace dyeworks
