#pragma once

#include "platform/VersionInfo.h"

namespace dyeworks {

/// What the running program says of itself, in English and Japanese.
[[nodiscard]] VersionRecord programVersion();

} // namespace dyeworks
