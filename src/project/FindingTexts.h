#pragma once

#include "project/ProjectFinding.h"
#include "project/RuleTexts.h"

#include <string>

namespace dyeworks {

class CTPFFile;

/// A finding in the user's words.
struct FindingWords {
    std::string source; ///< The image's or file's name, by which findings go together.
    std::string check;  ///< What is wrong.
    std::string place;
    std::string reason;
};

[[nodiscard]] FindingWords wordsOf(const ProjectFinding& finding, const CTPFFile& project,
                                   const Numeral& numeral);

} // namespace dyeworks
