#pragma once

namespace dyeworks {

/// Whether what moves of itself is welcome: false where the style fades nothing, where the settings of the
/// desktop (KDE's, or those of GTK) switch animations off, or the desktop's portal says so. The portal is
/// asked by the first call, which does not wait for it; what it says later counts from then on. For the
/// thread of the windows; the application must exist.
[[nodiscard]] bool motionIsWelcome();

} // namespace dyeworks
