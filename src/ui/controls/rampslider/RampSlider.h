#pragma once

#include <QColor>
#include <QWidget>

#include <functional>

namespace dyeworks {

/// A bar with a gradient from the colour of its minimum to that of its maximum, and a marker at its value. In
/// right-to-left layouts the minimum is at the right.
class RampSlider : public QWidget {
    Q_OBJECT

public:
    /// How the user changed the value.
    enum class Change { Dragging, Dragged, Stepped };

    explicit RampSlider(QWidget* parent = nullptr);

    /// Both inclusive, `minimum` not above `maximum`. The value is brought into the range.
    void setRange(int minimum, int maximum);
    void setValue(int value);
    void setLowColour(const QColor& colour);
    void setHighColour(const QColor& colour);
    void setMarkerColour(const QColor& colour);
    /// Hears what the user does, never what the operations above do.
    void setListener(std::function<void(Change)> listener) { listener_ = std::move(listener); }

    [[nodiscard]] int minimum() const noexcept { return minimum_; }
    [[nodiscard]] int maximum() const noexcept { return maximum_; }
    [[nodiscard]] int value() const noexcept { return value_; }
    [[nodiscard]] int pageStep() const;
    [[nodiscard]] const QColor& lowColour() const noexcept { return low_; }
    [[nodiscard]] const QColor& highColour() const noexcept { return high_; }
    [[nodiscard]] const QColor& markerColour() const noexcept { return marker_; }

    /// The user's way to a value: brings it into the range and tells the listener when it is another one.
    void stepTo(qint64 value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QRectF bar() const;
    [[nodiscard]] QRectF sharp(const QRectF& area) const;
    [[nodiscard]] qreal positionOf(int value) const;
    [[nodiscard]] int valueAt(qreal x) const;
    bool change(int value);
    void dragTo(qreal x);
    void drawMarker(QPainter& painter) const;

    int minimum_ = 0;
    int maximum_ = 255;
    int value_ = 0;
    QColor low_ = Qt::black;
    QColor high_ = Qt::white;
    QColor marker_ = QColor(192, 0, 0);
    bool isDragging_ = false;
    int wheelRest_ = 0; // Eighths of a degree that do not make a step yet.
    std::function<void(Change)> listener_;
};

} // namespace dyeworks
