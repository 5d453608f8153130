#pragma once

#include "cli/BuildState.h"
#include "cli/FileInfo.h"
#include "cli/Finding.h"

#include <string>
#include <vector>

namespace dyeworks {

// Reports for programs, UTF-8 with a line end behind. Bytes of a name that are none become U+FFFD.

struct NamedInfo {
    std::string file;
    FileInfo info;
};
[[nodiscard]] std::string jsonOf(const std::vector<NamedInfo>& files);

[[nodiscard]] std::string jsonOf(const std::vector<Finding>& findings);

/// The index of a build: its pictures with what they became.
[[nodiscard]] std::string jsonOf(const BuildState& state);

} // namespace dyeworks
