#pragma once

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "interchange/InterchangeError.h"

#include <string>

namespace dyeworks {

// Sentences for the user that do not name the file.

[[nodiscard]] std::string describe(const TmfError& error);
[[nodiscard]] std::string describe(TlfError error);
[[nodiscard]] std::string describe(const InterchangeError& error);

} // namespace dyeworks
