#pragma once

#include <string>
#include <vector>

namespace dyeworks {

/// Carries out `dyeworks-thumbnailer` with these arguments; what the process answers.
[[nodiscard]] int runThumbnailer(const std::vector<std::string>& arguments);

} // namespace dyeworks
