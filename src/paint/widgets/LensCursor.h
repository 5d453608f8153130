#pragma once

#include <QCursor>

namespace dyeworks {

enum class LensSign { Plus, Minus };

/// The pointer of the zoom lens: a magnifier with a sign in it, drawn sharp for the device pixel ratio. It
/// points with the middle of its glass.
[[nodiscard]] QCursor lensCursor(LensSign sign, qreal devicePixelRatio);

} // namespace dyeworks
