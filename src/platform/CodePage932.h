#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dyeworks {

/// Whether every byte of the text belongs to a character of UTF-8.
[[nodiscard]] bool isUtf8(std::string_view text);

// Between UTF-8 and code page 932, the encoding of Japanese files before UTF-8. Nothing when the text holds
// what the other side cannot.
[[nodiscard]] std::optional<std::string> fromCodePage932(std::string_view text);
[[nodiscard]] std::optional<std::string> toCodePage932(std::string_view text);

} // namespace dyeworks
