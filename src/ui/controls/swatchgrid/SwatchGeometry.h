#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

namespace dyeworks {

/// Where the cells of a grid stand. Cells are square, as large as the window allows up to twice their
/// preferred size, and begin and end on whole device pixels, so that they are sharp at any scale.
class SwatchGeometry {
public:
    static constexpr int kNone = -1;

    /// A place between cells. At the end of a row it is the same by number as at the start of the next.
    struct Gap {
        int cell = kNone;
        bool isBehind = false; ///< Behind the cell, not before it.

        /// The number of the cell behind the gap.
        [[nodiscard]] int number() const noexcept { return cell + (isBehind ? 1 : 0); }
    };

    struct Cells {
        int columns = 0;
        int rows = 0;
        int count = 0; ///< Cells that exist; those beyond the last row are not shown.
    };

    /// `preferredPitch`, from one cell to the next, in the window's pixels; `scale`: device pixels to each of
    /// them.
    SwatchGeometry(const Cells& cells, int preferredPitch, qreal scale);

    /// The geometry in a window of this size, in the window's pixels.
    void fit(const QSize& size);

    [[nodiscard]] bool isEmpty() const noexcept { return shown_ == 0; }
    [[nodiscard]] int shownCells() const noexcept { return shown_; }
    /// Rows that hold a cell.
    [[nodiscard]] int shownRows() const;
    [[nodiscard]] int columns() const noexcept { return cells_.columns; }
    [[nodiscard]] qreal scale() const noexcept { return scale_; }
    /// Width of a fine line in device pixels.
    [[nodiscard]] int line() const noexcept { return line_; }
    /// Room beside the cells for what is drawn around them, in device pixels.
    [[nodiscard]] int margin() const noexcept { return margin_; }

    /// A cell's area in device pixels from the window's corner; empty when it is not shown.
    [[nodiscard]] QRect cell(int index) const;
    /// From the corner of one cell to the opposite corner of another.
    [[nodiscard]] QRect area(int first, int last) const { return cell(first).united(cell(last)); }

    // Points are in the window's pixels.
    /// The cell under a point, or kNone. The line between two cells belongs to the one before it.
    [[nodiscard]] int cellAt(const QPointF& point) const;
    /// The cell closest to a point; kNone in an empty grid.
    [[nodiscard]] int nearestCell(const QPointF& point) const;
    /// The gap beside that cell, kNone in an empty grid, which the point is closer to.
    [[nodiscard]] Gap nearestGap(const QPointF& point) const;

    // Sizes in the window's pixels.
    [[nodiscard]] QSize preferredSize() const { return sizeFor(device(preferredPitch_)); }
    [[nodiscard]] QSize smallestSize() const;
    [[nodiscard]] int heightForWidth(int width) const;

private:
    [[nodiscard]] int device(qreal length) const;
    [[nodiscard]] int pitchFor(int across, int down) const;
    [[nodiscard]] QSize sizeFor(int pitch) const;

    Cells cells_;
    int preferredPitch_;
    qreal scale_;
    int shown_;
    int line_;
    int margin_;
    // In device pixels.
    int pitch_ = 1;
    QPoint origin_;
};

} // namespace dyeworks
