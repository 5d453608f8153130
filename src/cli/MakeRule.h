#pragma once

#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// "TARGET: FILE …" as make and ninja read it, a line for each file. Nothing when a name holds a line end,
/// which such a rule cannot.
[[nodiscard]] std::optional<std::string> makeRule(const std::string& target,
                                                  const std::vector<std::string>& files);

} // namespace dyeworks
