#include "viewer/ViewerView.h"

#include "viewer/TileRenderer.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace dyeworks::plugins {

namespace {

constexpr int kSquareSide = 8;
constexpr QSize kFirstSize(384, 384);

QRect toPixels(const QRect& area, qreal ratio) {
    const QRectF scaled(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio);
    return scaled.toAlignedRect();
}

QRect fromPixels(const QRect& area, qreal ratio) {
    return toPixels(area, 1 / ratio);
}

/// Where a stretch of `size` begins that is in the middle of `room`, or scrolled when that is too small.
int beginOf(int size, int room, qreal scrolled) {
    return size <= room ? (room - size) / 2 : std::max(-qRound(scrolled), room - size);
}

void setRange(QScrollBar& bar, int content, int room) {
    bar.setPageStep(room);
    bar.setSingleStep(std::max(1, room / 20));
    bar.setRange(0, std::max(0, content - room));
}

} // namespace

ViewerView::ViewerView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

bool ViewerView::show(const PlugInPicture& picture) {
    const QSize before(picture_.width(), picture_.height());
    const std::optional<ViewerPicture::Rows> changed = picture_.take(picture);
    if (!changed)
        return false;
    if (before != QSize(picture_.width(), picture_.height())) {
        updateScrollBars();
        viewport()->update();
    } else {
        repaintRows(*changed);
    }
    return true;
}

int ViewerView::pixelStep() const {
    return std::max(1, qRound(devicePixelRatioF()));
}

int ViewerView::effectiveZoom() const {
    if (zoom_ != kAutomatic || picture_.width() == 0)
        return std::max(1, zoom_);
    const QSizeF room = QSizeF(maximumViewportSize()) * devicePixelRatioF();
    const int unit = tiles_ * pixelStep();
    return std::max(1, std::min(static_cast<int>(room.width()) / (picture_.width() * unit),
                                static_cast<int>(room.height()) / (picture_.height() * unit)));
}

QSize ViewerView::contentSize() const {
    return QSize(picture_.width(), picture_.height()) * (tiles_ * effectiveZoom() * pixelStep());
}

QRect ViewerView::contentRect() const {
    const qreal ratio = devicePixelRatioF();
    const QSize content = contentSize();
    const QSize room = toPixels(viewport()->rect(), ratio).size();
    return {QPoint(beginOf(content.width(), room.width(), horizontalScrollBar()->value() * ratio),
                   beginOf(content.height(), room.height(), verticalScrollBar()->value() * ratio)),
            content};
}

void ViewerView::updateScrollBars() {
    const QSize content = fromPixels(QRect(QPoint(), contentSize()), devicePixelRatioF()).size();
    // Bars that are in the way of a content that fits without them are not needed because of each other.
    const QSize all = maximumViewportSize();
    const bool fits = content.width() <= all.width() && content.height() <= all.height();
    const QSize room = fits ? all : viewport()->size();
    setRange(*horizontalScrollBar(), content.width(), room.width());
    setRange(*verticalScrollBar(), content.height(), room.height());
}

void ViewerView::repaintRows(const ViewerPicture::Rows& rows) {
    if (rows.last < rows.first)
        return;
    const QRect content = contentRect();
    const int pixels = effectiveZoom() * pixelStep();
    for (int tile = 0; tile < tiles_; ++tile) {
        const int top = (tile * picture_.height() + rows.first) * pixels;
        const int height = (rows.last - rows.first + 1) * pixels;
        viewport()->update(
            fromPixels({content.left(), content.top() + top, content.width(), height}, devicePixelRatioF()));
    }
}

void ViewerView::setTiles(int tiles) {
    tiles_ = tiles;
    updateScrollBars();
    viewport()->update();
}

void ViewerView::setZoom(int zoom) {
    if (zoom == zoom_)
        return;
    zoom_ = zoom;
    updateScrollBars();
    viewport()->update();
    if (zoomChanged)
        zoomChanged();
}

void ViewerView::setShowsAlpha(bool on) {
    alpha_ = on;
    viewport()->update();
}

void ViewerView::zoomIn() {
    if (effectiveZoom() < kMaxZoom)
        setZoom(effectiveZoom() + 1);
}

void ViewerView::zoomOut() {
    if (effectiveZoom() > 1)
        setZoom(std::min(kMaxZoom, effectiveZoom() - 1));
}

QSize ViewerView::sizeHint() const {
    return kFirstSize;
}

bool ViewerView::isDark() const {
    return palette().color(QPalette::Window).lightness() < 128;
}

void ViewerView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().brush(QPalette::Dark));
    if (picture_.width() == 0)
        return;
    const qreal ratio = devicePixelRatioF();
    const QRect content = contentRect();
    const QRect stale = toPixels(event->rect(), ratio).intersected(content);
    if (stale.isEmpty())
        return;
    QImage tiles(stale.size(), QImage::Format_RGB32);
    if (tiles.isNull())
        return;
    std::optional<Checkerboard> board;
    if (alpha_) {
        board.emplace();
        board->side = kSquareSide * pixelStep();
        if (isDark()) {
            board->light = qRgb(0x66, 0x66, 0x66);
            board->dark = qRgb(0x4D, 0x4D, 0x4D);
        }
    }
    renderTiles(tiles, stale.topLeft() - content.topLeft(), picture_, effectiveZoom() * pixelStep(), board);
    tiles.setDevicePixelRatio(ratio);
    painter.drawImage(QPointF(stale.topLeft()) / ratio, tiles);
}

void ViewerView::resizeEvent(QResizeEvent* /*event*/) {
    updateScrollBars();
    // The picture keeps to the middle and the automatic zoom follows, so all of it moves.
    viewport()->update();
}

void ViewerView::wheelEvent(QWheelEvent* event) {
    wheelTurned_ += event->angleDelta().y();
    for (; wheelTurned_ >= QWheelEvent::DefaultDeltasPerStep;
         wheelTurned_ -= QWheelEvent::DefaultDeltasPerStep)
        zoomIn();
    for (; wheelTurned_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheelTurned_ += QWheelEvent::DefaultDeltasPerStep)
        zoomOut();
    event->accept();
}

} // namespace dyeworks::plugins
