#pragma once

#include "framework/widgets/FrameView.h"
#include "framework/widgets/ScrollView.h"
#include "paint/CDyeworksView.h"
#include "paint/ViewWindow.h"

#include <QBasicTimer>
#include <QRegion>

#include <utility>

namespace dyeworks {

/// The widget of an image view. A client pixel is a pixel of the viewport in Qt's sense: where the scale
/// factor makes it several pixels of the device, these all have its colour.
class ImageView : public ScrollView, public FrameView, private ViewWindow {
    Q_OBJECT

public:
    /// The document must outlive the view.
    explicit ImageView(CDyeworksDoc& document, QWidget* parent = nullptr);
    ~ImageView() override;

    [[nodiscard]] CDyeworksView& view() noexcept { return view_; }

    CommandTarget& commandTarget() override { return view_; }
    DocumentView& documentView() override { return view_; }
    void initialUpdate(ChildFrame& frame) override;
    void activated(ChildFrame& frame) override;
    bool mayClose(ChildFrame& frame) override;
    void closing(ChildFrame& frame) override;

Q_SIGNALS:
    void contextMenuRequested(CDyeworksView::ContextMenu menu, const QPoint& global);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] Size clientSize() const override;
    [[nodiscard]] Point scrollPosition() const override;
    void scrollTo(Point position) override;
    void setContentSize(Size size) override;
    void invalidate(const Rect& clientArea) override;
    void invalidateAll() override;
    void repaintNow() override;
    void capturePointer() override { captured_ = true; }
    void releasePointer() override { captured_ = false; }
    void setCursor(CursorShape shape) override;
    void fitFrame() override;
    [[nodiscard]] std::optional<WindowPlacement> placement() const override;
    void setPlacement(const WindowPlacement& placement) override;
    void setDisplayPalette(const DisplayPalette* palette) override;
    void startTicking(int milliseconds) override;
    void stopTicking() override { ticks_.stop(); }
    void texelCursorChanged() override;
    [[nodiscard]] Point pointerPosition() const override;
    [[nodiscard]] bool shiftHeld() const override;

    void loseCapture();
    void paintPart(QPainter& painter, const QRect& part, std::uint32_t redrawRequest) const;
    [[nodiscard]] qreal wheelTurn(const QWheelEvent& event) const;
    void nameAfterDocument();

    // Qt sends all pointer events to the widget of the press until the release; what is left is to notice
    // when it stops doing so.
    bool captured_ = false;
    ChildFrame* frame_ = nullptr;
    QRegion stale_;       ///< Of the viewport: asked to be repainted and not painted yet.
    qreal wheelTurn_ = 0; ///< Of the wheel with Ctrl, too little for a step so far.
    QBasicTimer ticks_;
    std::pair<CursorShape, qreal> cursor_{CursorShape::Arrow,
                                          0}; ///< And the device pixel ratio it is drawn for.
    // Last: it talks to the rest of this object while it lives.
    CDyeworksView view_;
};

} // namespace dyeworks
