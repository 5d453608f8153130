#pragma once

#include "ui/controls/swatchgrid/SwatchGeometry.h"

#include <QColor>
#include <QPainter>

#include <initializer_list>

namespace dyeworks {

class SwatchGrid;

/// Paints a grid. Works in whole device pixels, so that every edge is sharp at any scale.
class SwatchPainter {
public:
    /// Leaves `painter` in another state.
    SwatchPainter(QPainter& painter, const SwatchGrid& grid);

    void paint();

private:
    void useDevicePixels();
    void paintCells();
    void paintMark(int slot);
    void paintBank();
    void paintSelection();
    void paintCurrent();
    void paintFocus();
    /// Rings of one line each around a rectangle, from the outside inwards; the first lies `outside` lines
    /// beyond it.
    void paintRings(const QRect& area, int outside, std::initializer_list<QColor> colours);
    void paintRing(const QRect& outer, int width, const QBrush& brush);

    QPainter& painter_;
    const SwatchGrid& grid_;
    SwatchGeometry geometry_;
    int line_;
};

} // namespace dyeworks
