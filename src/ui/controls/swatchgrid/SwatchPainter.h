#pragma once

#include "ui/controls/swatchgrid/SwatchCells.h"
#include "ui/controls/swatchgrid/SwatchGeometry.h"

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRegion>

#include <initializer_list>
#include <optional>

namespace dyeworks {

/// What a grid looks like at a moment.
struct SwatchLook {
    const SwatchCells& cells;
    SwatchGeometry geometry;
    QPalette colours; ///< Those of the window.
    QSize size;       ///< The window's, in its pixels.
    bool isEnabled = true;
    bool hasFocus = false;
    int activeCell = SwatchCells::kNone;                   ///< Where the keyboard is.
    bool bankMode = false;                                 ///< A row of cells is framed:
    int bankRow = SwatchCells::kNone;                      ///< this one; kNone: that of the current cell.
    std::optional<SwatchGeometry::Gap> gap = std::nullopt; ///< Where dragged cells would be put in.
};

/// Paints a grid. Works in whole device pixels, so that every edge is sharp at any scale.
class SwatchPainter {
public:
    /// Leaves `painter` in another state. `look` must outlive the painting.
    SwatchPainter(QPainter& painter, const SwatchLook& look);

    void paint();

private:
    void useDevicePixels();
    void paintCells();
    void paintGlyphs(int cell);
    void paintMark(int slot);
    void paintBank();
    void paintSelection();
    void paintCurrent();
    void paintFocus();
    void paintGap();
    /// Rings of one line each around a rectangle, from the outside inwards; the first lies `outside` lines
    /// beyond it.
    void paintRings(const QRect& area, int outside, std::initializer_list<QColor> colours);
    void paintRing(const QRect& outer, int width, const QBrush& brush);
    /// The selected cells and the lines between them, in device pixels.
    [[nodiscard]] QRegion selectedArea() const;

    QPainter& painter_;
    const SwatchLook& look_;
    const SwatchGeometry& geometry_;
    int line_;
};

} // namespace dyeworks
