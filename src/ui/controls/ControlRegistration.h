#pragma once

namespace dyeworks {

/// Loads a companion control ("SwatchGrid.ocx") from the program's folder, lets it register its class with
/// the running application and unloads it. False when it cannot be loaded. A library that registers nothing
/// is loaded with success, but its class stays unknown.
[[nodiscard]] bool registerControl(const char* fileName);

} // namespace dyeworks
