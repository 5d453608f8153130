#pragma once

#include "framework/Menu.h"
#include "paint/CDyeworksView.h"

#include <span>

namespace dyeworks {

// The menu bars of the main window, one submenu after the other.
/// While no document is open.
std::span<const MenuItem> mainMenu();
/// While an image is the active one.
std::span<const MenuItem> imageMenu();
/// While a project's tree is the active one.
std::span<const MenuItem> projectMenu();

/// What can be shown and hidden; also the context menu of the bars.
std::span<const MenuItem> barsMenu();

/// The context menus of an image.
std::span<const MenuItem> imageContextMenu(CDyeworksView::ContextMenu menu);
/// What stands in front of them while the image has no palette.
std::span<const MenuItem> noPaletteMenu();
/// The context menu of a project's tree.
std::span<const MenuItem> nodeMenu();

// The buttons of the bars.
std::span<const MenuItem> toolBarItems();
std::span<const MenuItem> viewBarItems();
std::span<const MenuItem> drawBarItems();
/// After the size.
std::span<const MenuItem> brushBarItems();

} // namespace dyeworks
