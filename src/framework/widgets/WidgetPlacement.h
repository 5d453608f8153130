#pragma once

#include "framework/WindowPlacement.h"

class QWidget;

namespace dyeworks {

/// How a window of the desktop stands, in pixels of the screen.
[[nodiscard]] WindowPlacement windowPlacement(const QWidget& window);

/// Puts a window there, for the moment it is shown if it is hidden. A place that no screen shows any more is
/// moved onto the nearest one.
void setWindowPlacement(QWidget& window, const WindowPlacement& placement);

} // namespace dyeworks
