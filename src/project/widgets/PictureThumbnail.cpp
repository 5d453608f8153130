#include "project/widgets/PictureThumbnail.h"

#include "paint/Surface.h"
#include "paint/TextureCanvas.h"

#include <algorithm>

namespace dyeworks {

QImage thumbnailOf(const TextureCanvas& canvas, const QSize& room) {
    const QSize texels(canvas.width(), canvas.height());
    if (texels.isEmpty() || room.isEmpty())
        return {};
    const int enlarged = std::min(room.width() / texels.width(), room.height() / texels.height());
    const QSize size =
        enlarged >= 1 ? texels * enlarged : texels.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull())
        return {};
    Surface surface;
    surface.pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
    surface.width = size.width();
    surface.height = size.height();
    surface.stride = picture.bytesPerLine() / 4;
    canvas.Draw(surface, {0, 0, size.width(), size.height()}, {0, 0, texels.width(), texels.height()});
    return picture;
}

} // namespace dyeworks
