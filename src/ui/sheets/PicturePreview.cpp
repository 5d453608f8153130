#include "ui/sheets/PicturePreview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace dyeworks {

namespace {

/// In heights of a letter.
constexpr int kPreferredSide = 20;
constexpr int kLeastSide = 5;

/// A square of two by two fields, in neither of the desktop's colours: it is a part of the picture.
QPixmap checkerboard(int field, qreal ratio) {
    const int side = std::max(1, qRound(field * ratio));
    QPixmap board(2 * side, 2 * side);
    board.fill(QColor(0xCC, 0xCC, 0xCC));
    QPainter painter(&board);
    const QColor dark(0x99, 0x99, 0x99);
    painter.fillRect(0, 0, side, side, dark);
    painter.fillRect(side, side, side, side, dark);
    painter.end();
    board.setDevicePixelRatio(ratio);
    return board;
}

QImage fitted(const QImage& image, const QSize& room) {
    const int factor = std::min(room.width() / image.width(), room.height() / image.height());
    if (factor >= 1)
        return image.scaled(image.size() * factor);
    // An image of a colour table would be brought back to it, with a dither of Qt's.
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .scaled(image.size().scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation);
}

void follow(const QScrollBar& leader, QScrollBar& follower) {
    QObject::connect(&leader, &QScrollBar::valueChanged, &follower, &QScrollBar::setValue);
}

} // namespace

PicturePreview::PicturePreview(const QString& name, QWidget* parent)
    : QAbstractScrollArea(parent) {
    setAccessibleName(name);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // White around it would pass for a part of the picture.
    viewport()->setBackgroundRole(QPalette::Window);
    // Fitting must not come and go with the room that bars take.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize PicturePreview::sizeHint() const {
    const int side = kPreferredSide * fontMetrics().height();
    return {side, side};
}

QSize PicturePreview::minimumSizeHint() const {
    const int side = kLeastSide * fontMetrics().height();
    return {side, side};
}

void PicturePreview::setImage(const QImage& image) {
    image_ = image;
    layOut();
}

void PicturePreview::setActualSize(bool actual) {
    actualSize_ = actual;
    const auto policy = actual ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setHorizontalScrollBarPolicy(policy);
    setVerticalScrollBarPolicy(policy);
    layOut();
}

void PicturePreview::linkWith(PicturePreview& other) {
    follow(*horizontalScrollBar(), *other.horizontalScrollBar());
    follow(*verticalScrollBar(), *other.verticalScrollBar());
    follow(*other.horizontalScrollBar(), *horizontalScrollBar());
    follow(*other.verticalScrollBar(), *verticalScrollBar());
}

QSize PicturePreview::roomInPixels() const {
    return (QSizeF(viewport()->size()) * devicePixelRatioF()).toSize();
}

void PicturePreview::layOut() {
    const QSize room = roomInPixels();
    fitted_ = {};
    QSize beyond;
    if (!image_.isNull() && actualSize_)
        beyond = (image_.size() - room).expandedTo(QSize(0, 0));
    else if (!image_.isNull() && !room.isEmpty())
        fitted_ = fitted(image_, room);
    horizontalScrollBar()->setRange(0, std::max(beyond.width(), 0));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setRange(0, std::max(beyond.height(), 0));
    verticalScrollBar()->setPageStep(room.height());
    viewport()->update();
}

void PicturePreview::resizeEvent(QResizeEvent* /*event*/) {
    layOut();
}

void PicturePreview::paintEvent(QPaintEvent* /*event*/) {
    const QImage& shown = actualSize_ ? image_ : fitted_;
    if (shown.isNull())
        return;
    const QSize room = roomInPixels();
    const QSize visible = shown.size().boundedTo(room);
    const QPoint from =
        actualSize_ ? QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()) : QPoint();
    const qreal ratio = devicePixelRatioF();
    const QRectF place(QPointF((room.width() - visible.width()) / 2, (room.height() - visible.height()) / 2) /
                           ratio,
                       QSizeF(visible) / ratio);
    QPainter painter(viewport());
    if (shown.hasAlphaChannel()) {
        painter.drawTiledPixmap(place, checkerboard(std::max(fontMetrics().height() / 2, 1), ratio));
    }
    painter.drawImage(place, shown, QRect(from, visible));
}

void PicturePreview::mousePressEvent(QMouseEvent* event) {
    dragged_ = event->position().toPoint();
}

void PicturePreview::mouseMoveEvent(QMouseEvent* event) {
    const QPoint now = event->position().toPoint();
    const QPointF step = QPointF(dragged_ - now) * devicePixelRatioF();
    dragged_ = now;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(step.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(step.y()));
}

} // namespace dyeworks
