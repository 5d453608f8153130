#pragma once

#include <optional>
#include <string>

namespace dyeworks {

/// The host path that a "file:" address names (RFC 8089), its "%" escapes undone; any text that is no address
/// is a path already. Nothing for a file of another computer or an address of another kind.
[[nodiscard]] std::optional<std::string> pathOfAddress(const std::string& address);

} // namespace dyeworks
