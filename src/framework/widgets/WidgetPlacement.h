#pragma once

#include "framework/WindowPlacement.h"

#include <QPoint>

class QWidget;

namespace dyeworks {

/// How a window of the desktop stands, in pixels of the screen.
[[nodiscard]] WindowPlacement windowPlacement(const QWidget& window);

/// Puts a window there, for the moment it is shown if it is hidden; whether it is hidden stays. A place where
/// no screen shows the window any more, or shows too little of it to take hold of, is moved onto one.
void setWindowPlacement(QWidget& window, const WindowPlacement& placement);

/// Puts the corner of a window's frame at a point of the screen, or as near to it as all of the window is in
/// the available area; a window that is too large for that is made smaller.
void placeInsideScreen(QWidget& window, QPoint corner);

} // namespace dyeworks
