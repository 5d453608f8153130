#pragma once

#include <QAbstractScrollArea>
#include <QPoint>
#include <QSize>

namespace dyeworks {

/// A window onto contents that may be larger than it. Positions are in pixels of the contents; its top left
/// corner is (0, 0) and stands in the viewport's top left corner when nothing is scrolled.
///
/// Scrolling moves what is on the screen and asks for the exposed strips alone, so the subclass's paintEvent
/// must paint every pixel of its region, that outside the contents included.
class ScrollView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit ScrollView(QWidget* parent = nullptr);

    [[nodiscard]] QSize contentSize() const noexcept { return contentSize_; }
    /// Repaints everything; the scroll position is moved as far as the new size demands.
    void setContentSize(const QSize& size);

    [[nodiscard]] QPoint scrollPosition() const;
    /// Scrolls to `position` or to the nearest one that there is.
    void scrollTo(const QPoint& position);
    void scrollBy(const QPoint& distance) { scrollTo(scrollPosition() + distance); }

    [[nodiscard]] QPoint toContent(const QPoint& viewportPoint) const {
        return viewportPoint + scrollPosition();
    }

    /// Asks for a repaint of a rectangle of the contents.
    void updateContent(const QRect& rect);

    /// Whether a drag with the middle button is scrolling the contents.
    [[nodiscard]] bool isPanning() const noexcept { return panning_; }

protected:
    // Subclasses that override these call them for what they do not take themselves.
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void updateScrollBars();

    QSize contentSize_;
    QPoint panPoint_;  // Where the pointer last was, on the screen, because the contents move under it.
    QPoint wheelRest_; // Turns of the wheel, in 1/120 pixel, that were too small for a whole pixel.
    QCursor cursorBeforePan_;
    bool panning_ = false;
};

} // namespace dyeworks
