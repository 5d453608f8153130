#pragma once

#include "framework/CommandIds.h"

#include <span>

namespace dyeworks {

/// One line of a menu or one button of a toolbar. Menus and bars are lists of these and nothing else.
struct MenuItem {
    CommandId id = 0;                  ///< 0: a separator, or a submenu when there is a title. The first
                                       ///< command of a list stands for all of it.
    const char* title = nullptr;       ///< Of a submenu: its English text with mnemonic.
    std::span<const MenuItem> items{}; ///< Of a submenu.
};

inline constexpr MenuItem kSeparator{};
/// Stands where a main window lists its child frames; the last line of its menu.
inline constexpr MenuItem kWindowList{65280};
inline constexpr const char* kMenuContext = "Menu";

} // namespace dyeworks
