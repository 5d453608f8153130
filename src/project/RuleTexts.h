#pragma once

#include "project/RuleCheck.h"

#include <cstdint>
#include <functional>
#include <string>

namespace dyeworks {

/// How a number is written: with or without marks between thousands.
using Numeral = std::function<std::string(std::int64_t)>;

// What breaks a rule, in the user's words.

[[nodiscard]] std::string ruleName(Rule rule);
/// "Texels 8, 0 to 15, 7".
[[nodiscard]] std::string placeText(const RuleFinding& finding, const Numeral& numeral);
[[nodiscard]] std::string reasonText(const RuleFinding& finding, const Numeral& numeral);

} // namespace dyeworks
