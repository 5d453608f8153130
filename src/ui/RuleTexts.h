#pragma once

#include "project/RuleCheck.h"

#include <QString>

#include <cstdint>

namespace dyeworks {

// What breaks a rule, in the user's words.

[[nodiscard]] QString ruleName(Rule rule);
/// "Texels 8, 0 to 15, 7".
[[nodiscard]] QString placeText(const RuleFinding& finding);
[[nodiscard]] QString reasonText(const RuleFinding& finding);
/// For those that are not listed.
[[nodiscard]] QString moreText(std::int64_t count);

} // namespace dyeworks
