#pragma once

#include <QPixmap>

namespace dyeworks {

/// What the pointer carries while a node is dragged: a sheet, for a copy with a plus and for a link with an
/// arrow beside it, drawn sharp for the device pixel ratio.
[[nodiscard]] QPixmap dragCursor(Qt::DropAction action, qreal devicePixelRatio);

} // namespace dyeworks
