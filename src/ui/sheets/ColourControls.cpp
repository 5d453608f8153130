#include "ui/sheets/ColourControls.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>
#include <optional>

namespace dyeworks {

namespace {

void drawEdge(QPainter& painter, const QRect& area, const QColor& colour) {
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

/// Text colour thinned out: seen against light and dark windows alike, whatever it encloses.
QColor edgeColour(const QWidget& widget) {
    QColor colour = widget.palette().color(QPalette::WindowText);
    colour.setAlphaF(0.5F);
    return colour;
}

/// The way that a key goes along a row.
std::optional<int> target(int key, int from, int count) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return std::max(from - 1, 0);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return std::min(from + 1, count - 1);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return count - 1;
    default:
        return std::nullopt;
    }
}

} // namespace

QColor colourOf(ColourRef colour) {
    const auto byte = [colour](unsigned shift) { return static_cast<int>(colour >> shift & 255U); };
    return QColor(byte(0), byte(8), byte(16));
}

ColourPatch::ColourPatch(QWidget* parent)
    : QFrame(parent) {}

void ColourPatch::setColour(const QColor& colour) {
    colour_ = colour;
    setAccessibleDescription(colour.name().toUpper());
    update();
}

QSize ColourPatch::sizeHint() const {
    const int side = 5 * fontMetrics().height();
    return {side, side};
}

void ColourPatch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), colour_);
    drawEdge(painter, rect(), edgeColour(*this));
}

ColourScrollBar::ColourScrollBar(const QColor& trough, QWidget* parent)
    : QScrollBar(Qt::Horizontal, parent)
    , trough_(trough) {
    setFocusPolicy(Qt::StrongFocus);
    // Else the left arrow key steps to the right.
    setInvertedControls(false);
}

QSize ColourScrollBar::sizeHint() const {
    return {14 * fontMetrics().height(), QScrollBar::sizeHint().height()};
}

void ColourScrollBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    // Not below the arrows, whose buttons need not reach to the edge.
    painter.fillRect(style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarGroove, this),
                     trough_);
    drawEdge(painter, rect(), edgeColour(*this));
    option.subControls =
        QStyle::SC_ScrollBarAddLine | QStyle::SC_ScrollBarSubLine | QStyle::SC_ScrollBarSlider;
    style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, this);
    const QRect thumb =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    drawEdge(painter, thumb, edgeColour(*this));
    if (hasFocus())
        drawEdge(painter, rect(), palette().color(QPalette::Highlight));
}

ColourButton::ColourButton(QWidget* parent)
    : QAbstractButton(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ColourButton::setColour(const QColor& colour) {
    colour_ = colour;
    setAccessibleDescription(colour.name().toUpper());
    update();
}

QSize ColourButton::sizeHint() const {
    const int height = fontMetrics().height();
    return {3 * height / 4, 3 * height / 2};
}

void ColourButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), colour_);
    drawEdge(painter, rect(), edgeColour(*this));
    if (!hasFocus() && !isDown())
        return;
    // One ring in either brightness, so that it is seen on any colour.
    drawEdge(painter, rect(), isDown() ? palette().color(QPalette::Highlight) : QColor(Qt::black));
    drawEdge(painter, rect().adjusted(1, 1, -1, -1), Qt::white);
    drawEdge(painter, rect().adjusted(2, 2, -2, -2), Qt::black);
}

ColourButtonRow::ColourButtonRow(int count, QWidget* parent)
    : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int i = 0; i < count; ++i) {
        auto* button = new ColourButton;
        button->installEventFilter(this);
        connect(button, &ColourButton::clicked, this, [this, i] { Q_EMIT pressed(i); });
        layout->addWidget(button);
        buttons_.push_back(button);
    }
    offerToTab(0);
}

bool ColourButtonRow::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::find(buttons_.begin(), buttons_.end(), watched);
    if (found == buttons_.end())
        return QWidget::eventFilter(watched, event);
    const auto index = static_cast<int>(found - buttons_.begin());
    if (event->type() == QEvent::FocusIn) {
        offerToTab(index);
    } else if (event->type() == QEvent::KeyPress) {
        const auto next = target(static_cast<QKeyEvent*>(event)->key(), index, count());
        if (next) {
            button(*next).setFocus(Qt::OtherFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ColourButtonRow::offerToTab(int index) {
    for (int i = 0; i < count(); ++i)
        button(i).setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace dyeworks
