#include "paint/widgets/ImageView.h"

#include "framework/widgets/DesktopMotion.h"
#include "framework/widgets/MenuBuilder.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/CChildFrame.h"
#include "paint/widgets/ImageViewAccessible.h"
#include "paint/widgets/LensCursor.h"
#include "platform/StringId.h"
#include "platform/Text.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>
#include <QtMath>

#include <utility>

namespace dyeworks {

namespace {

constexpr int kWheelNotch = 120; // Angle that one notch of a wheel reports.

PointerButton buttonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return PointerButton::Left;
    case Qt::RightButton:
        return PointerButton::Right;
    case Qt::MiddleButton:
        return PointerButton::Middle;
    default:
        return PointerButton::None;
    }
}

/// The client pixel that a position lies in: where a pixel is several of the device's, positions come in
/// fractions, and rounding them would reach into the next pixel.
Point pixelAt(const QPointF& position) {
    return {qFloor(position.x()), qFloor(position.y())};
}

PointerEvent pointerEvent(const QMouseEvent& event) {
    PointerEvent result;
    result.position = pixelAt(event.position());
    result.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    result.control = event.modifiers().testFlag(Qt::ControlModifier);
    result.alt = event.modifiers().testFlag(Qt::AltModifier);
    result.button = buttonOf(event.button());
    return result;
}

QCursor cursorOf(CursorShape shape, qreal devicePixelRatio) {
    switch (shape) {
    case CursorShape::OpenHand:
        return Qt::OpenHandCursor;
    case CursorShape::ZoomIn:
        return lensCursor(LensSign::Plus, devicePixelRatio);
    case CursorShape::ZoomOut:
        return lensCursor(LensSign::Minus, devicePixelRatio);
    case CursorShape::SizeBackwardDiagonal:
        return Qt::SizeFDiagCursor;
    case CursorShape::SizeForwardDiagonal:
        return Qt::SizeBDiagCursor;
    case CursorShape::SizeVertical:
        return Qt::SizeVerCursor;
    case CursorShape::SizeHorizontal:
        return Qt::SizeHorCursor;
    case CursorShape::SizeAll:
        return Qt::SizeAllCursor;
    case CursorShape::Arrow:
        break;
    }
    return Qt::ArrowCursor;
}

Key keyOf(const QKeyEvent& event) {
    const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    switch (event.key()) {
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Left:
        return Key::Left;
    case Qt::Key_Up:
        return Key::Up;
    case Qt::Key_Right:
        return Key::Right;
    case Qt::Key_Down:
        return Key::Down;
    case Qt::Key_Home:
        return Key::Home;
    case Qt::Key_End:
        return Key::End;
    case Qt::Key_PageUp:
        return Key::PageUp;
    case Qt::Key_PageDown:
        return Key::PageDown;
    case Qt::Key_Space:
        return Key::Space;
    case Qt::Key_Shift:
        return Key::Shift;
    case Qt::Key_Control:
        return Key::Control;
    case Qt::Key_I:
        return Key::I;
    case Qt::Key_O:
        return Key::O;
    case Qt::Key_9:
        return keypad ? Key::Numpad9 : Key::Other;
    case Qt::Key_Slash:
        return keypad ? Key::NumpadDivide : Key::Other;
    default:
        return Key::Other;
    }
}

/// Modifiers of a key event are those before it; the view is told those after it.
KeyEvent keyEvent(const QKeyEvent& event, bool pressed) {
    KeyEvent result;
    result.key = keyOf(event);
    result.repeatCount = event.count();
    result.shift = event.key() == Qt::Key_Shift ? pressed : event.modifiers().testFlag(Qt::ShiftModifier);
    result.control =
        event.key() == Qt::Key_Control ? pressed : event.modifiers().testFlag(Qt::ControlModifier);
    result.alt = event.modifiers().testFlag(Qt::AltModifier);
    result.repeated = event.isAutoRepeat();
    return result;
}

} // namespace

ImageView::ImageView(CDyeworksDoc& document, QWidget* parent)
    : ScrollView(parent)
    , view_(document, *this) {
    installImageViewAccessible();
    viewport()->setMouseTracking(true);
    nameAfterDocument();
}

ImageView::~ImageView() = default;

void ImageView::nameAfterDocument() {
    setAccessibleName(QStringLiteral("%1 %2").arg(QString::fromStdString(text(StringId::ImageViewName)),
                                                  QString::fromStdString(view_.document().title())));
}

void ImageView::initialUpdate(ChildFrame& frame) {
    frame_ = &frame;
    connect(&frame, &QWidget::windowTitleChanged, this, &ImageView::nameAfterDocument);
    view_.InitialUpdate();
}

void ImageView::activated(ChildFrame&) {
    view_.Activated();
}

bool ImageView::mayClose(ChildFrame&) {
    return view_.MayClose();
}

void ImageView::closing(ChildFrame&) {
    view_.Closing();
    frame_ = nullptr;
}

void ImageView::setDisplayPalette(const DisplayPalette* palette) {
    if (auto* frame = qobject_cast<CChildFrame*>(frame_))
        frame->SetPalette(palette);
}

Size ImageView::clientSize() const {
    return {viewport()->width(), viewport()->height()};
}

Point ImageView::scrollPosition() const {
    const QPoint position = ScrollView::scrollPosition();
    return {position.x(), position.y()};
}

void ImageView::scrollTo(Point position) {
    ScrollView::scrollTo(QPoint(position.x, position.y));
}

void ImageView::setContentSize(Size size) {
    ScrollView::setContentSize(QSize(size.width, size.height));
}

void ImageView::invalidate(const Rect& clientArea) {
    const QRect area =
        QRect(QPoint(clientArea.left, clientArea.top), QPoint(clientArea.right - 1, clientArea.bottom - 1)) &
        viewport()->rect();
    if (area.isEmpty())
        return;
    stale_ += area;
    viewport()->update(area);
}

void ImageView::invalidateAll() {
    invalidate({0, 0, viewport()->width(), viewport()->height()});
}

void ImageView::repaintNow() {
    if (!stale_.isEmpty())
        viewport()->repaint(stale_);
}

void ImageView::setCursor(CursorShape shape) {
    const auto wanted = std::pair(shape, devicePixelRatioF());
    if (isPanning() || std::exchange(cursor_, wanted) == wanted)
        return;
    viewport()->setCursor(cursorOf(shape, wanted.second));
}

void ImageView::fitFrame() {
    if (frame_ != nullptr)
        frame_->fitToContent(*this);
}

std::optional<WindowPlacement> ImageView::placement() const {
    return frame_ == nullptr ? std::nullopt : std::optional(frame_->placement());
}

void ImageView::setPlacement(const WindowPlacement& placement) {
    if (frame_ != nullptr)
        frame_->setPlacement(placement);
}

Point ImageView::pointerPosition() const {
    const QPoint position = viewport()->mapFromGlobal(QCursor::pos());
    return {position.x(), position.y()};
}

void ImageView::startTicking(int milliseconds) {
    if (motionIsWelcome())
        ticks_.start(milliseconds, this);
}

/// As a description it is read out by readers that do so when it changes, and as a value by the others.
void ImageView::texelCursorChanged() {
    const QString told = QString::fromStdString(view_.toldTexel());
    if (told == accessibleDescription())
        return;
    setAccessibleDescription(told);
    QAccessibleValueChangeEvent changed(this, told);
    QAccessible::updateAccessibility(&changed);
}

bool ImageView::shiftHeld() const {
    // Where "+" is typed with Shift, Ctrl and "+" is the shortcut and not a wish of its own.
    const Qt::KeyboardModifiers held = QApplication::keyboardModifiers();
    return held.testFlag(Qt::ShiftModifier) && !held.testFlag(Qt::ControlModifier);
}

void ImageView::paintEvent(QPaintEvent* event) {
    stale_ -= event->region();
    QPainter painter(viewport());
    const ImageSelection::RedrawRequest request = view_.BeginPaint();
    const Rect& area = request.clientArea;
    const QRegion requested =
        request.bits == 0 ? QRegion()
                          : event->region().intersected(
                                QRect(area.left, area.top, area.right - area.left, area.bottom - area.top));
    // What the window shows cannot be read back, so that the image is drawn beneath whatever was asked for.
    for (const QRect& part : requested)
        paintPart(painter, part, request.bits | ImageSelection::kRedrawImage);
    for (const QRect& part : event->region() - requested)
        paintPart(painter, part, 0);
    if (view_.showsNoPalette()) {
        const QRect client = viewport()->rect();
        const QRect line(0, client.height() / 2, client.width(), client.height());
        painter.setPen(palette().color(QPalette::ButtonText));
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("NO PALETTE"));
    }
}

void ImageView::paintPart(QPainter& painter, const QRect& part, std::uint32_t redrawRequest) const {
    QImage picture(part.size(), QImage::Format_RGB32);
    if (picture.isNull()) {
        // No memory for so large a piece; smaller ones may do.
        const int half = part.height() / 2;
        if (half == 0) {
            painter.fillRect(part, palette().color(QPalette::Button));
            return;
        }
        paintPart(painter, part.adjusted(0, 0, 0, half - part.height()), redrawRequest);
        paintPart(painter, part.adjusted(0, half, 0, 0), redrawRequest);
        return;
    }
    const QPoint origin = toContent(part.topLeft());
    Surface surface;
    surface.pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
    surface.width = part.width();
    surface.height = part.height();
    surface.stride = picture.bytesPerLine() / static_cast<int>(sizeof(std::uint32_t));
    surface.originX = origin.x();
    surface.originY = origin.y();
    view_.Paint(surface, {origin.x(), origin.y(), origin.x() + part.width(), origin.y() + part.height()},
                palette().color(QPalette::Button).rgb(), redrawRequest);
    view_.PaintBrush(surface);
    view_.PaintTexelCursor(surface);
    // Enlarged by the scale factor, texels keep their edges.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(part.topLeft(), picture);
}

void ImageView::scrollContentsBy(int dx, int dy) {
    if (view_.showsNoPalette()) {
        // The words stay where they are in the window.
        viewport()->update();
    } else {
        stale_.translate(dx, dy);
        ScrollView::scrollContentsBy(dx, dy);
    }
    // Then, so that what it asks to be repainted does not move along.
    if (viewport()->underMouse())
        view_.Scrolled();
}

void ImageView::resizeEvent(QResizeEvent* event) {
    ScrollView::resizeEvent(event);
    view_.Resized();
}

void ImageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        ScrollView::wheelEvent(event);
        return;
    }
    const qreal turn = wheelTurn(*event);
    // Turned back, what was left over the other way is forgotten.
    if (turn * wheelTurn_ < 0)
        wheelTurn_ = 0;
    wheelTurn_ += turn;
    const Point position = pixelAt(event->position());
    for (; wheelTurn_ >= kWheelNotch; wheelTurn_ -= kWheelNotch)
        view_.ZoomAt(position, false);
    for (; wheelTurn_ <= -kWheelNotch; wheelTurn_ += kWheelNotch)
        view_.ZoomAt(position, true);
    event->accept();
}

/// Touchpads may report pixels alone; as many as a notch scrolls are a notch.
qreal ImageView::wheelTurn(const QWheelEvent& event) const {
    if (event.angleDelta().y() != 0)
        return event.angleDelta().y();
    const int notch = std::max(QApplication::wheelScrollLines() * verticalScrollBar()->singleStep(), 1);
    return qreal{kWheelNotch} * event.pixelDelta().y() / notch;
}

void ImageView::mousePressEvent(QMouseEvent* event) {
    if (isPanning() || (event->button() == Qt::MiddleButton && !captured_))
        ScrollView::mousePressEvent(event);
    else
        view_.PointerPressed(pointerEvent(*event));
}

void ImageView::mouseMoveEvent(QMouseEvent* event) {
    // A screen lock, for one, can keep the release to itself.
    if (!event->buttons().testFlag(Qt::LeftButton) && !view_.dragsByKeys())
        loseCapture();
    if (isPanning())
        ScrollView::mouseMoveEvent(event);
    else
        view_.PointerMoved(pointerEvent(*event));
}

void ImageView::mouseReleaseEvent(QMouseEvent* event) {
    if (isPanning())
        ScrollView::mouseReleaseEvent(event);
    else
        view_.PointerReleased(pointerEvent(*event));
}

void ImageView::mouseDoubleClickEvent(QMouseEvent* event) {
    // Two quick clicks are two clicks: each of them draws.
    mousePressEvent(event);
}

bool ImageView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave)
        view_.PointerLeft();
    else if (event->type() == QEvent::Enter)
        view_.PointerEntered(pixelAt(static_cast<const QEnterEvent*>(event)->position()));
    return ScrollView::viewportEvent(event);
}

void ImageView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        view_.ContextMenuKeyPressed();
    const CDyeworksView::ContextMenu menu = view_.contextMenu();
    if (menu == CDyeworksView::ContextMenu::None)
        return;
    Q_EMIT contextMenuRequested(menu, contextMenuPlace(*event, *viewport()));
}

void ImageView::keyPressEvent(QKeyEvent* event) {
    if (!view_.KeyPressed(keyEvent(*event, true)))
        ScrollView::keyPressEvent(event);
}

void ImageView::keyReleaseEvent(QKeyEvent* event) {
    view_.KeyReleased(keyEvent(*event, false));
    if (keyOf(*event) == Key::Other)
        ScrollView::keyReleaseEvent(event);
}

void ImageView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != ticks_.timerId())
        return ScrollView::timerEvent(event);
    // The desktop may have asked for less since.
    if (motionIsWelcome())
        view_.Tick();
}

void ImageView::loseCapture() {
    if (!captured_)
        return;
    captured_ = false;
    view_.PointerCaptureLost();
}

bool ImageView::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate)
        loseCapture();
    return ScrollView::event(event);
}

void ImageView::focusInEvent(QFocusEvent* event) {
    view_.FocusChanged(true);
    ScrollView::focusInEvent(event);
}

void ImageView::focusOutEvent(QFocusEvent* event) {
    loseCapture();
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason)
        view_.FocusChanged(false);
    ScrollView::focusOutEvent(event);
}

void ImageView::hideEvent(QHideEvent* event) {
    loseCapture();
    ScrollView::hideEvent(event);
}

} // namespace dyeworks
