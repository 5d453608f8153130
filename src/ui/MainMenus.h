#pragma once

#include "framework/Menu.h"

#include <span>

namespace dyeworks {

/// The menu bar of the main window: one submenu after the other.
std::span<const MenuItem> mainMenu();

// Titles of the menus that the window itself adds to: what can be shown and hidden, and its list of windows.
inline constexpr const char* kViewMenuTitle = "&View";
inline constexpr const char* kWindowMenuTitle = "&Window";

// The buttons of the bars.
std::span<const MenuItem> toolBarItems();
std::span<const MenuItem> viewBarItems();
std::span<const MenuItem> drawBarItems();

} // namespace dyeworks
