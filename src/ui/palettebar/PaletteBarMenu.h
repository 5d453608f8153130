#pragma once

#include "framework/CommandIds.h"
#include "framework/Menu.h"

#include <array>
#include <span>

namespace dyeworks {

/// The commands that give entries other places, for the menus that have them.
inline constexpr std::array kArrangeMenu{
    MenuItem{ID_PALETTE_MOVE},        MenuItem{ID_PALETTE_SWAP},    MenuItem{ID_PALETTE_SORT},
    MenuItem{ID_PALETTE_MERGE_TWINS}, MenuItem{ID_PALETTE_COMPACT},
};

/// The context menu of the palette bar.
std::span<const MenuItem> paletteBarMenu();

} // namespace dyeworks
