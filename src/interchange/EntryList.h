#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace dyeworks {

/// The numbers that a text like "0, 4-7" lists, in rising order and each once; none for blank text. Nothing
/// when it is no such list, or when a number is not below `count`.
[[nodiscard]] std::optional<std::vector<std::int32_t>> parseEntryList(std::string_view text,
                                                                      std::int32_t count);

} // namespace dyeworks
