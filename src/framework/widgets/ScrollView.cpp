#include "framework/widgets/ScrollView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace dyeworks {

namespace {

/// Angle that one notch of a wheel reports.
constexpr int kWheelNotch = 120;

} // namespace

ScrollView::ScrollView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    // Without this Qt would not move pixels but paint all of them anew.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void ScrollView::setContentSize(const QSize& size) {
    contentSize_ = size;
    updateScrollBars();
    viewport()->update();
}

QPoint ScrollView::scrollPosition() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void ScrollView::scrollTo(const QPoint& position) {
    horizontalScrollBar()->setValue(position.x());
    verticalScrollBar()->setValue(position.y());
}

void ScrollView::updateContent(const QRect& rect) {
    viewport()->update(rect.translated(-scrollPosition()));
}

void ScrollView::scrollContentsBy(int dx, int dy) {
    const qreal scale = devicePixelRatioF();
    // At a scale factor of, say, 1.25 a distance need not be whole device pixels.
    if (scale == std::floor(scale))
        viewport()->scroll(dx, dy);
    else
        viewport()->update();
}

void ScrollView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void ScrollView::wheelEvent(QWheelEvent* event) {
    QPoint distance = event->pixelDelta();
    if (distance.isNull()) {
        const int lines = QApplication::wheelScrollLines();
        const QPoint turned = event->angleDelta() * lines * verticalScrollBar()->singleStep() + wheelRest_;
        distance = {turned.x() / kWheelNotch, turned.y() / kWheelNotch};
        wheelRest_ = {turned.x() % kWheelNotch, turned.y() % kWheelNotch};
    }
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        distance = distance.transposed();
    scrollBy(-distance);
    event->accept();
}

void ScrollView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton) {
        event->ignore();
        return;
    }
    panning_ = true;
    panPoint_ = event->globalPosition().toPoint();
    cursorBeforePan_ = viewport()->cursor();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void ScrollView::mouseMoveEvent(QMouseEvent* event) {
    if (!panning_) {
        event->ignore();
        return;
    }
    const QPoint point = event->globalPosition().toPoint();
    scrollBy(panPoint_ - point);
    panPoint_ = point;
}

void ScrollView::mouseReleaseEvent(QMouseEvent* event) {
    if (!panning_ || event->button() != Qt::MiddleButton) {
        event->ignore();
        return;
    }
    panning_ = false;
    viewport()->setCursor(cursorBeforePan_);
}

void ScrollView::updateScrollBars() {
    // When everything fits without bars, neither bar may hold the other one in place.
    const QSize whole = maximumViewportSize();
    const bool fits = contentSize_.width() <= whole.width() && contentSize_.height() <= whole.height();
    const QSize room = viewport()->size();
    const int line = fontMetrics().height();
    const auto adjust = [&](QScrollBar& bar, int content, int page) {
        bar.setRange(0, fits ? 0 : std::max(0, content - page));
        bar.setPageStep(page);
        bar.setSingleStep(line);
    };
    adjust(*horizontalScrollBar(), contentSize_.width(), room.width());
    adjust(*verticalScrollBar(), contentSize_.height(), room.height());
}

} // namespace dyeworks
