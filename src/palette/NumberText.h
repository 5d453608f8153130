#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace dyeworks {

/// Reads a whole number, with blanks around it and a sign before it if need be. A number too large to hold
/// becomes the largest (smallest) one. Nothing for any other text.
std::optional<std::int32_t> parseNumber(std::string_view text);

} // namespace dyeworks
