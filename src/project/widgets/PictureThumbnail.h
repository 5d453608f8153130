#pragma once

#include <QImage>
#include <QSize>

namespace dyeworks {

class TextureCanvas;

/// The canvas as a picture that fits into the room, in pixels. A small one is enlarged by whole steps, so
/// that texels stay sharp; a large one is made smaller. Null for a canvas without pixels.
[[nodiscard]] QImage thumbnailOf(const TextureCanvas& canvas, const QSize& room);

} // namespace dyeworks
