#include "ui/controls/swatchgrid/SwatchPainter.h"

#include <QPolygon>
#include <QtMath>

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

QColor shown(std::uint32_t colour) {
    return {static_cast<int>(colour & 255U), static_cast<int>(colour >> 8U & 255U),
            static_cast<int>(colour >> 16U & 255U)};
}

QRect grown(const QRect& area, int by) {
    return area.adjusted(-by, -by, by, by);
}

constexpr std::array kWays{QPoint(-1, -1), QPoint(0, -1), QPoint(1, -1), QPoint(-1, 0),
                           QPoint(1, 0),   QPoint(-1, 1), QPoint(0, 1),  QPoint(1, 1)};

/// `by` is less than the region is wide anywhere.
QRegion grown(const QRegion& region, int by) {
    QRegion result = region;
    for (const QPoint& way : kWays)
        result += region.translated(way * by);
    return result;
}

QRegion shrunk(const QRegion& region, int by) {
    QRegion result = region;
    for (const QPoint& way : kWays)
        result &= region.translated(way * by);
    return result;
}

} // namespace

SwatchPainter::SwatchPainter(QPainter& painter, const SwatchLook& look)
    : painter_(painter)
    , look_(look)
    , geometry_(look.geometry)
    , line_(geometry_.line()) {
    useDevicePixels();
}

void SwatchPainter::useDevicePixels() {
    // At a fractional scale the window's corner may fall between two pixels.
    const QPointF corner = painter_.deviceTransform().map(QPointF(0, 0));
    painter_.scale(1 / geometry_.scale(), 1 / geometry_.scale());
    painter_.translate(QPointF(corner.toPoint()) - corner);
}

void SwatchPainter::paint() {
    paintCells();
    for (int cell = 0; cell < geometry_.shownCells(); ++cell) {
        if (look_.cells.at(cell).glyphs != 0)
            paintGlyphs(cell);
    }
    for (int slot = 1; slot < SwatchCells::kSlots; ++slot)
        paintMark(slot);
    paintBank();
    paintSelection();
    paintCurrent();
    if (look_.hasFocus)
        paintFocus();
    if (look_.gap)
        paintGap();
}

void SwatchPainter::paintCells() {
    for (int cell = 0; cell < geometry_.shownCells(); ++cell)
        painter_.fillRect(geometry_.cell(cell), shown(look_.cells.at(cell).colour));
    if (!look_.isEnabled && !geometry_.isEmpty()) {
        // Greyed as other controls are, but the colours can still be told.
        QColor veil = look_.colours.color(QPalette::Window);
        veil.setAlphaF(0.6F);
        painter_.fillRect(geometry_.area(0, geometry_.shownCells() - 1), veil);
    }
}

void SwatchPainter::paintRing(const QRect& outer, int width, const QBrush& brush) {
    const QRect inner = grown(outer, -width);
    painter_.fillRect(QRect(outer.topLeft(), QSize(outer.width(), width)), brush);
    painter_.fillRect(QRect(outer.left(), inner.bottom() + 1, outer.width(), width), brush);
    painter_.fillRect(QRect(outer.left(), inner.top(), width, inner.height()), brush);
    painter_.fillRect(QRect(inner.right() + 1, inner.top(), width, inner.height()), brush);
}

void SwatchPainter::paintRings(const QRect& area, int outside, std::initializer_list<QColor> colours) {
    QRect outer = grown(area, outside * line_);
    for (const QColor& colour : colours) {
        paintRing(outer, line_, colour);
        outer = grown(outer, -line_);
    }
}

/// Each has dark and light in it, so that it can be told on a cell of any colour.
void SwatchPainter::paintGlyphs(int cell) {
    const QRect area = geometry_.cell(cell);
    const unsigned glyphs = look_.cells.at(cell).glyphs;
    const int unit = std::max(line_, area.width() / 10);
    if ((glyphs & SwatchCells::kUnusedGlyph) != 0) {
        const QPoint corner = area.bottomRight() + QPoint(1, 1);
        const auto fold = [&](int length) {
            return QPolygon({corner, corner - QPoint(length, 0), corner - QPoint(0, length)});
        };
        const int side = area.width() / 2;
        painter_.setPen(Qt::NoPen);
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setBrush(Qt::white);
        painter_.drawPolygon(fold(side));
        painter_.setBrush(Qt::black);
        painter_.drawPolygon(fold(side - 2 * unit));
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }
    if ((glyphs & SwatchCells::kTwinGlyph) != 0) {
        const QRect ground(area.right() + 1 - 5 * unit, area.top(), 5 * unit, 5 * unit);
        painter_.fillRect(ground, Qt::black);
        painter_.fillRect(QRect(ground.left() + unit, ground.top() + unit, 3 * unit, unit), Qt::white);
        painter_.fillRect(QRect(ground.left() + unit, ground.top() + 3 * unit, 3 * unit, unit), Qt::white);
    }
    if ((glyphs & SwatchCells::kClearGlyph) != 0) {
        const int half = 2 * unit;
        const QRect ground(area.left(), area.bottom() + 1 - 2 * half, 2 * half, 2 * half);
        painter_.fillRect(ground, Qt::white);
        painter_.fillRect(QRect(ground.topLeft(), QSize(half, half)), Qt::black);
        painter_.fillRect(QRect(ground.center() + QPoint(1, 1), QSize(half, half)), Qt::black);
    }
}

/// A triangle in a corner of its own for each slot, light in a dark one.
void SwatchPainter::paintMark(int slot) {
    const QRect cell = geometry_.cell(look_.cells.marker(slot));
    if (cell.isEmpty())
        return;
    const int side = std::max(3 * line_, cell.width() * 2 / 5);
    const auto triangle = [&](int length) {
        switch (slot) {
        case 1: {
            const QPoint corner = cell.topLeft();
            return QPolygon({corner, corner + QPoint(length, 0), corner + QPoint(0, length)});
        }
        case 2: {
            const QPoint corner = cell.topRight() + QPoint(1, 0);
            return QPolygon({corner, corner - QPoint(length, 0), corner + QPoint(0, length)});
        }
        default: {
            const QPoint corner = cell.bottomLeft() + QPoint(0, 1);
            return QPolygon({corner, corner + QPoint(length, 0), corner - QPoint(0, length)});
        }
        }
    };
    painter_.setPen(Qt::NoPen);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setBrush(Qt::black);
    painter_.drawPolygon(triangle(side));
    painter_.setBrush(Qt::white);
    painter_.drawPolygon(triangle(side - 2 * line_));
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void SwatchPainter::paintBank() {
    if (!look_.bankMode || geometry_.isEmpty())
        return;
    const int columns = geometry_.columns();
    const int current = look_.cells.current();
    const int row = look_.bankRow >= 0 ? look_.bankRow : current < 0 ? -1 : current / columns;
    if (row < 0 || row >= geometry_.shownRows())
        return;
    const int first = row * columns;
    const QRect area = geometry_.area(first, std::min(first + columns, geometry_.shownCells()) - 1);
    const QColor frame = look_.colours.color(QPalette::Highlight);
    paintRings(area, 2, {frame, frame});
    // The frame may look like a cell; the arrows beside it do not.
    const int half = geometry_.margin() / 2;
    const int middle = area.top() + area.height() / 2;
    const int left = area.left() - 3 * line_;
    const int right = area.right() + 1 + 3 * line_;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(look_.colours.color(QPalette::WindowText));
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.drawPolygon(QPolygon(
        {QPoint(left, middle), QPoint(left - half, middle - half), QPoint(left - half, middle + half)}));
    painter_.drawPolygon(QPolygon(
        {QPoint(right, middle), QPoint(right + half, middle - half), QPoint(right + half, middle + half)}));
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

QRegion SwatchPainter::selectedArea() const {
    QRegion area;
    QRect above;
    for (int row = 0; row < geometry_.shownRows(); ++row) {
        QRect inRow;
        const int first = row * geometry_.columns();
        for (int cell = first; cell < first + geometry_.columns(); ++cell) {
            if (look_.cells.isSelected(cell))
                inRow |= geometry_.cell(cell);
        }
        // A run may begin further to the right than it ends below: then the rows have nothing in common.
        const int left = std::max(above.left(), inRow.left());
        const int right = std::min(above.right(), inRow.right());
        if (!above.isEmpty() && !inRow.isEmpty() && left <= right)
            area += QRect(QPoint(left, above.bottom()), QPoint(right, inRow.top()));
        area += inRow;
        above = inRow;
    }
    return area;
}

void SwatchPainter::paintSelection() {
    const auto range = look_.cells.selection();
    // A single cell has the frame of the current one.
    if (!range || range->first == range->last)
        return;
    const QRegion area = selectedArea();
    const auto paint = [this](const QRegion& region, const QColor& colour) {
        for (const QRect& part : region)
            painter_.fillRect(part, colour);
    };
    const QRegion nearer = grown(area, line_);
    const QColor inside = look_.colours.color(QPalette::Highlight);
    paint(grown(area, 2 * line_) - nearer, Qt::black);
    paint(nearer - area, Qt::white);
    paint(area - shrunk(area, 2 * line_), inside);
}

/// Dark, light, dark: two neighbours of any colour, and the ground between them, differ from one of the
/// rings.
void SwatchPainter::paintCurrent() {
    const QRect cell = geometry_.cell(look_.cells.current());
    if (!cell.isEmpty())
        paintRings(cell, 2, {Qt::black, Qt::white, Qt::white, Qt::black});
}

/// A bar with ends across, as of a text cursor, light in a dark one.
void SwatchPainter::paintGap() {
    const QRect cell = geometry_.cell(look_.gap->cell);
    const int left = look_.gap->isBehind ? cell.right() + 1 : cell.left() - line_;
    const QRect middle = QRect(left, cell.top(), line_, cell.height());
    const QRect bar = middle.adjusted(-line_, -line_, line_, line_);
    const QRect end(bar.left() - 2 * line_, bar.top(), bar.width() + 4 * line_, line_);
    const std::array parts{bar, end, end.translated(0, bar.height() - line_)};
    for (const QRect& part : parts)
        painter_.fillRect(grown(part, line_), Qt::black);
    for (const QRect& part : parts)
        painter_.fillRect(part, Qt::white);
}

void SwatchPainter::paintFocus() {
    const QRect whole(0, 0, qFloor(look_.size.width() * geometry_.scale()),
                      qFloor(look_.size.height() * geometry_.scale()));
    const QRect around = geometry_.isEmpty()
                             ? whole
                             : grown(geometry_.area(0, geometry_.shownCells() - 1), geometry_.margin());
    paintRing(around & whole, 2 * line_, look_.colours.color(QPalette::Highlight));
    // Where nothing is current, the keyboard still is at a cell.
    if (look_.cells.current() == SwatchCells::kSwitchedOff)
        paintRings(geometry_.cell(look_.activeCell), 1, {Qt::white, Qt::black});
}

} // namespace dyeworks
