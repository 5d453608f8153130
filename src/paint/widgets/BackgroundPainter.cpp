#include "paint/widgets/BackgroundPainter.h"

#include "paint/BackgroundPicture.h"

#include <QEvent>
#include <QImage>
#include <QMdiArea>
#include <QPixmap>
#include <QScrollBar>

namespace dyeworks {

namespace {

/// Null for an empty picture and for one that does not fit into memory a second time.
QPixmap pixmapOf(const BackgroundPicture& picture) {
    if (picture.empty())
        return {};
    const auto* bytes = reinterpret_cast<const uchar*>(picture.pixels.data());
    const QImage image(bytes, picture.width, picture.height, qsizetype{picture.width} * 4,
                       QImage::Format_RGB32);
    // A pixmap made of the image itself would go on looking at the picture's bytes.
    return QPixmap::fromImage(image.copy());
}

} // namespace

BackgroundPainter::BackgroundPainter(QMdiArea& area, const BackgroundPicture& picture)
    : QObject(&area)
    , area_(area) {
    const QPixmap tile = pixmapOf(picture);
    tiled_ = !tile.isNull();
    area.installEventFilter(this);
    area.viewport()->installEventFilter(this);
    if (!tiled_) {
        paintPlain();
        return;
    }
    area.setBackground(QBrush(tile));
    // Scrolling moves what has been painted, and the tiles stay where they are.
    for (const QScrollBar* bar : {area.horizontalScrollBar(), area.verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, area.viewport(), qOverload<>(&QWidget::update));
}

bool BackgroundPainter::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &area_ && event->type() == QEvent::PaletteChange && !tiled_)
        paintPlain();
    // The other object watched is the viewport. The area is not asked for it: it may be going.
    if (watched != &area_ && event->type() == QEvent::Resize)
        static_cast<QWidget*>(watched)->update();
    return QObject::eventFilter(watched, event);
}

void BackgroundPainter::paintPlain() {
    // The area keeps the background that it was made with, whatever becomes of its palette.
    area_.setBackground(area_.palette().brush(QPalette::Dark));
}

} // namespace dyeworks
