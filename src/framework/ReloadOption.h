#pragma once

namespace dyeworks {

/// Whether documents without unsaved changes take over by themselves what other programs make of their
/// files. Kept in the settings; off at first.
[[nodiscard]] bool reloadsUnchanged();
void setReloadsUnchanged(bool reloads);

} // namespace dyeworks
