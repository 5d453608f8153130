#pragma once

#include "framework/Menu.h"

#include <span>

namespace dyeworks {

/// The context menu of the palette bar.
std::span<const MenuItem> paletteBarMenu();

} // namespace dyeworks
