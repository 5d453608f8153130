#pragma once

#include <string>

namespace dyeworks {

/// Holds the process to what a small picture may cost, for files may come from anywhere: 10 seconds of the
/// processor, 20 of the clock, and memory of 256 MiB beyond what it has taken. When the time is up the
/// process ends with `code` and says `line` on the standard error stream.
void holdToLimits(const std::string& line, int code);

} // namespace dyeworks
