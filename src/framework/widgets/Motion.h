#pragma once

namespace dyeworks {

/// Whether the desktop likes things to move. Where it asks for less motion nothing flashes, marches or turns
/// by itself.
[[nodiscard]] bool motionIsWelcome();

} // namespace dyeworks
