#pragma once

#include "project/ProjectFinding.h"

#include <string>

namespace dyeworks {

/// Something that is wrong, in the user's words.
struct Finding {
    Severity severity = Severity::Warning;
    std::string file;  ///< As an argument names it, or its host path.
    std::string place; ///< In the file, or in the project.
    std::string check; ///< What was looked at; may be empty.
    std::string reason;
};

} // namespace dyeworks
