#include "ui/controls/SwatchGrid.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr int kGap = 1; // Between two swatches.
/// Around the grid: room for the frames, which stand outside their cells, and the arrows beside a marked row.
constexpr int kMargin = 8;
constexpr int kFewColumns = 4; // With no more than these, swatches are larger.
constexpr int kSmallestPitch = 8;

/// A frame around `cell`, readable on any colour: the outer line contrasts with the inner one.
void drawFrame(QPainter& painter, const QRect& cell, QColor outer, QColor inner) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(outer, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    // A pen of two pixels covers one pixel on either side of the line between pixels.
    painter.drawRect(QRect(cell.x() - 1, cell.y() - 1, cell.width() + 2, cell.height() + 2));
    painter.setPen(QPen(inner, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRect(cell.x(), cell.y(), cell.width() - 1, cell.height() - 1));
}

} // namespace

SwatchGrid::SwatchGrid(QWidget* parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SwatchGrid::setColours(std::vector<QRgb> colours, int columns) {
    const bool sameShape = colours.size() == colours_.size() && columns == columns_;
    colours_ = std::move(colours);
    columns_ = columns;
    if (current_ >= cellCount())
        current_ = kNone;
    if (!sameShape)
        updateGeometry();
    describeCurrent();
    update();
}

void SwatchGrid::setCurrentCell(int cell) {
    const int wanted = cell >= 0 && cell < cellCount() ? cell : kNone;
    if (wanted == current_)
        return;
    current_ = wanted;
    describeCurrent();
    update();
}

void SwatchGrid::setMarkedRow(int row) {
    if (row == markedRow_)
        return;
    markedRow_ = row;
    update();
}

void SwatchGrid::describeCurrent() {
    setAccessibleDescription(describer_ && current_ != kNone ? describer_(current_) : QString());
}

int SwatchGrid::rows() const {
    return columns_ == 0 ? 0 : (cellCount() + columns_ - 1) / columns_;
}

int SwatchGrid::preferredPitch() const {
    return columns_ > kFewColumns ? fontMetrics().height() : 2 * fontMetrics().height();
}

/// Pixels from one cell to the next. Cells are square and as large as the widget allows, but they do not grow
/// beyond what reads well.
int SwatchGrid::pitchFor(const QSize& size) const {
    if (columns_ == 0)
        return 0;
    const int across = (size.width() - 2 * kMargin + kGap) / columns_;
    const int down = (size.height() - 2 * kMargin + kGap) / rows();
    return std::max(1, std::min({across, down, 2 * preferredPitch()}));
}

int SwatchGrid::pitch() const {
    return pitchFor(size());
}

QPoint SwatchGrid::origin() const {
    return {std::max(kMargin, (width() - columns_ * pitch() + kGap) / 2), kMargin};
}

QRect SwatchGrid::cellRect(int cell) const {
    if (cell < 0 || cell >= cellCount())
        return {};
    const int side = std::max(1, pitch() - kGap);
    return {origin() + QPoint(cell % columns_ * pitch(), cell / columns_ * pitch()), QSize(side, side)};
}

int SwatchGrid::cellAt(QPoint point) const {
    const QPoint inside = point - origin();
    if (cellCount() == 0 || inside.x() < 0 || inside.y() < 0)
        return kNone;
    const int column = inside.x() / pitch();
    const int cell = inside.y() / pitch() * columns_ + column;
    return column < columns_ && cell < cellCount() ? cell : kNone;
}

QSize SwatchGrid::sizeForPitch(int cellPitch) const {
    return {columns_ * cellPitch - kGap + 2 * kMargin, rows() * cellPitch - kGap + 2 * kMargin};
}

QSize SwatchGrid::sizeHint() const {
    return columns_ == 0 ? minimumSizeHint() : sizeForPitch(preferredPitch());
}

QSize SwatchGrid::minimumSizeHint() const {
    return columns_ == 0 ? QSize(2 * kMargin, 2 * kMargin) : sizeForPitch(kSmallestPitch);
}

int SwatchGrid::heightForWidth(int width) const {
    return columns_ == 0 ? 2 * kMargin : sizeForPitch(pitchFor({width, QWIDGETSIZE_MAX})).height();
}

bool SwatchGrid::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const int cell = cellAt(help->pos());
    if (cell == kNone || !describer_) {
        QToolTip::hideText();
        event->ignore();
    } else {
        QToolTip::showText(help->globalPos(), describer_(cell), this, cellRect(cell));
    }
    return true;
}

void SwatchGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int cell = 0; cell < cellCount(); ++cell)
        painter.fillRect(cellRect(cell), QColor::fromRgb(colours_[static_cast<std::size_t>(cell)]));
    drawMarkedRow(painter);
    drawCurrentFrame(painter);
}

void SwatchGrid::drawMarkedRow(QPainter& painter) const {
    if (markedRow_ < 0 || markedRow_ >= rows())
        return;
    const int first = markedRow_ * columns_;
    const int last = std::min(first + columns_, cellCount()) - 1;
    const QRect row = cellRect(first).united(cellRect(last));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(palette().color(QPalette::Highlight), 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRect(row.x() - 1, row.y() - 1, row.width() + 2, row.height() + 2));
    // The frame may look like a swatch; the arrows beside it do not.
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::WindowText));
    const qreal middle = QRectF(row).center().y();
    const qreal half = kMargin / 2.0;
    const qreal left = row.x() - 3;
    const qreal right = row.x() + row.width() + 3;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPolygon(
        QPolygonF{{left, middle}, {left - half, middle - half}, {left - half, middle + half}});
    painter.drawPolygon(
        QPolygonF{{right, middle}, {right + half, middle - half}, {right + half, middle + half}});
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void SwatchGrid::drawCurrentFrame(QPainter& painter) const {
    if (current_ == kNone)
        return;
    drawFrame(painter, cellRect(current_), Qt::black, Qt::white);
    if (hasFocus()) {
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawRect(cellRect(current_).adjusted(2, 2, -3, -3));
    }
}

void SwatchGrid::choose(int cell) {
    if (cell == kNone)
        return;
    setCurrentCell(cell);
    Q_EMIT cellChosen(cell);
}

void SwatchGrid::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        choose(cellAt(event->position().toPoint()));
}

void SwatchGrid::mouseMoveEvent(QMouseEvent* event) {
    const int cell = cellAt(event->position().toPoint());
    if ((event->buttons() & Qt::LeftButton) && cell != current_)
        choose(cell);
}

void SwatchGrid::keyPressEvent(QKeyEvent* event) {
    if (cellCount() == 0)
        return QWidget::keyPressEvent(event);
    const int last = cellCount() - 1;
    const bool whole = event->modifiers() & Qt::ControlModifier;
    const int from = std::max(current_, 0);
    const int rowStart = from / columns_ * columns_;
    int target = kNone;
    switch (event->key()) {
    case Qt::Key_Left:
        target = from - 1;
        break;
    case Qt::Key_Right:
        target = from + 1;
        break;
    case Qt::Key_Up:
        target = from - columns_;
        break;
    case Qt::Key_Down:
        target = from + columns_;
        break;
    case Qt::Key_Home:
        target = whole ? 0 : rowStart;
        break;
    case Qt::Key_End:
        target = whole ? last : std::min(rowStart + columns_ - 1, last);
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    if (target >= 0 && target <= last && target != current_)
        choose(target);
}

} // namespace dyeworks
