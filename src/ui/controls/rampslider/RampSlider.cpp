#include "ui/controls/rampslider/RampSlider.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace dyeworks {

namespace {

constexpr int kPages = 8; // Steps of a page from one end to the other.
constexpr int kWheelStep = 120;
constexpr qreal kMarkerWidth = 7;
constexpr qreal kOverhang = 2; // Of the marker above and below the bar.
constexpr qreal kFocusWidth = 2;

} // namespace

RampSlider::RampSlider(QWidget* parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::WheelFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RampSlider::setRange(int minimum, int maximum) {
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    change(value_);
    update();
}

void RampSlider::setValue(int value) {
    change(value);
}

void RampSlider::setLowColour(const QColor& colour) {
    low_ = colour;
    update();
}

void RampSlider::setHighColour(const QColor& colour) {
    high_ = colour;
    update();
}

void RampSlider::setMarkerColour(const QColor& colour) {
    marker_ = colour;
    update();
}

int RampSlider::pageStep() const {
    const qint64 span = qint64{maximum_} - minimum_;
    return static_cast<int>(std::max<qint64>(1, (span + 1) / kPages));
}

/// False when the value stays what it was.
bool RampSlider::change(int value) {
    const int fitting = std::clamp(value, minimum_, maximum_);
    if (fitting == value_)
        return false;
    value_ = fitting;
    update();
    QAccessibleValueChangeEvent told(this, value_);
    QAccessible::updateAccessibility(&told);
    return true;
}

void RampSlider::stepTo(qint64 value) {
    const auto fitting = static_cast<int>(std::clamp<qint64>(value, minimum_, maximum_));
    if (change(fitting) && listener_)
        listener_(Change::Stepped);
}

QSize RampSlider::sizeHint() const {
    return {12 * fontMetrics().height(), minimumSizeHint().height()};
}

QSize RampSlider::minimumSizeHint() const {
    return {4 * fontMetrics().height(),
            fontMetrics().height() + static_cast<int>(2 * (kOverhang + kFocusWidth))};
}

/// The gradient. The marker stands on it and reaches half its width beyond it at either end.
QRectF RampSlider::bar() const {
    return QRectF(rect()).adjusted(kMarkerWidth, kFocusWidth + 1 + kOverhang, -kMarkerWidth,
                                   -kFocusWidth - 1 - kOverhang);
}

qreal RampSlider::positionOf(int value) const {
    const qreal span = qreal(maximum_) - minimum_;
    const qreal share = span == 0 ? 0 : (qreal(value) - minimum_) / span;
    const QRectF area = bar();
    return area.left() + area.width() * (isRightToLeft() ? 1 - share : share);
}

int RampSlider::valueAt(qreal x) const {
    const QRectF area = bar();
    if (area.width() <= 0)
        return value_;
    const qreal along = std::clamp((x - area.left()) / area.width(), 0.0, 1.0);
    const qreal share = isRightToLeft() ? 1 - along : along;
    return static_cast<int>(minimum_ + std::llround(share * (qreal(maximum_) - minimum_)));
}

/// The nearest area whose edges fall on device pixels, so that they are sharp at any scale.
QRectF RampSlider::sharp(const QRectF& area) const {
    const qreal scale = devicePixelRatioF();
    const auto edge = [scale](qreal place) { return qRound(place * scale) / scale; };
    return {QPointF(edge(area.left()), edge(area.top())), QPointF(edge(area.right()), edge(area.bottom()))};
}

void RampSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // At a fractional scale the window's corner may fall between two pixels.
    const QPointF corner = painter.deviceTransform().map(QPointF(0, 0));
    painter.translate((QPointF(corner.toPoint()) - corner) / devicePixelRatioF());
    const QRectF area = sharp(bar());
    QLinearGradient gradient(area.topLeft(), area.topRight());
    gradient.setColorAt(0, isRightToLeft() ? high_ : low_);
    gradient.setColorAt(1, isRightToLeft() ? low_ : high_);
    painter.fillRect(sharp(area.adjusted(-1, -1, 1, 1)), palette().color(QPalette::Mid));
    painter.fillRect(area, gradient);
    if (!isEnabled()) {
        // Greyed as other controls are, but the colours can still be told.
        QColor veil = palette().color(QPalette::Window);
        veil.setAlphaF(0.6F);
        painter.fillRect(area, veil);
    }
    drawMarker(painter);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), kFocusWidth));
        const qreal inside = kFocusWidth / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inside, inside, -inside, -inside), 3, 3);
    }
}

/// Dark around light around the marker's own colour, so that it is seen on any ramp.
void RampSlider::drawMarker(QPainter& painter) const {
    const QRectF area = bar();
    const qreal left = sharp({positionOf(value_) - kMarkerWidth / 2, 0, 0, 0}).left();
    const QRectF handle(left, area.top() - kOverhang, kMarkerWidth, area.height() + 2 * kOverhang);
    painter.fillRect(sharp(handle), Qt::black);
    painter.fillRect(sharp(handle.adjusted(1, 1, -1, -1)), Qt::white);
    painter.fillRect(sharp(handle.adjusted(2, 2, -2, -2)),
                     isEnabled() ? marker_ : palette().color(QPalette::Mid));
}

void RampSlider::dragTo(qreal x) {
    if (change(valueAt(x)) && listener_)
        listener_(Change::Dragging);
}

void RampSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    isDragging_ = true;
    dragTo(event->position().x());
}

void RampSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isDragging_)
        dragTo(event->position().x());
}

void RampSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !isDragging_)
        return QWidget::mouseReleaseEvent(event);
    isDragging_ = false;
    if (listener_)
        listener_(Change::Dragged);
}

void RampSlider::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    wheelRest_ += std::abs(turned.x()) > std::abs(turned.y()) ? -turned.x() : turned.y();
    const int steps = wheelRest_ / kWheelStep;
    wheelRest_ -= steps * kWheelStep;
    stepTo(qint64{value_} + steps);
    event->accept();
}

void RampSlider::keyPressEvent(QKeyEvent* event) {
    const int right = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Right:
        return stepTo(qint64{value_} + right);
    case Qt::Key_Left:
        return stepTo(qint64{value_} - right);
    case Qt::Key_Up:
        return stepTo(qint64{value_} + 1);
    case Qt::Key_Down:
        return stepTo(qint64{value_} - 1);
    case Qt::Key_PageUp:
        return stepTo(qint64{value_} + pageStep());
    case Qt::Key_PageDown:
        return stepTo(qint64{value_} - pageStep());
    case Qt::Key_Home:
        return stepTo(minimum_);
    case Qt::Key_End:
        return stepTo(maximum_);
    default:
        QWidget::keyPressEvent(event);
    }
}

void RampSlider::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::LayoutDirectionChange)
        update();
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

} // namespace dyeworks
