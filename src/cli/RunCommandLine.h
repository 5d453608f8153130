#pragma once

#include <string>
#include <vector>

namespace dyeworks {

/// Runs the program with its arguments, its own name left out. The result is the exit code of the process.
[[nodiscard]] int runCommandLine(const std::vector<std::string>& arguments);

} // namespace dyeworks
