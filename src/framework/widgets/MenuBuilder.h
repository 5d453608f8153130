#pragma once

#include "framework/Menu.h"

#include <span>

class QContextMenuEvent;
class QMenu;
class QMenuBar;
class QPoint;
class QToolBar;
class QWidget;

namespace dyeworks {

class CommandActions;

// Menus and bars out of lists of commands. Numbers that are not in the command table are left out, and so are
// separators that would stand first, last or beside each other.

/// Adds the items to the menu, and keeps what it shows current whenever it opens.
void fillMenu(QMenu& menu, std::span<const MenuItem> items, CommandActions& actions);

/// Adds a menu for each item, all of which must be submenus. A menu is filled when it opens first; the items
/// must last until then.
void fillMenuBar(QMenuBar& bar, std::span<const MenuItem> items, CommandActions& actions);

/// Where a context menu of the area is to open, on the screen: at the pointer, or near the area's corner when
/// it was asked for with the keyboard.
[[nodiscard]] QPoint contextMenuPlace(const QContextMenuEvent& event, const QWidget& area);

/// Adds a button for each command.
void fillToolBar(QToolBar& bar, std::span<const MenuItem> items, CommandActions& actions);

} // namespace dyeworks
