#pragma once

#include "platform/Text.h"

#include <optional>
#include <string>
#include <string_view>

namespace dyeworks {

/// Keys that are pressed together, such as "ctrl+SHIFT+s", in the one spelling that they have here:
/// "Ctrl+Shift+S". Meta, Ctrl, Alt and Shift stand in this order before one key: a character, "F1" to "F35",
/// or a name such as "PgUp", as Qt writes them. Nothing for what names none.
[[nodiscard]] std::optional<std::string> normalKeys(std::string_view text);

/// Equal for keys that are the same on most keyboards: "Shift+." and ">". `keys` as they come from
/// `normalKeys`.
[[nodiscard]] std::string comparableKeys(const std::string& keys);

/// Why a command cannot have these keys; nothing where it can. They may be needed to move about, or open
/// menus.
[[nodiscard]] std::optional<StringId> whyReserved(const std::string& keys);

/// What an image does with the keys while no command has them, for people to know; nothing where that is
/// nothing.
[[nodiscard]] std::optional<StringId> useInImages(const std::string& keys);

} // namespace dyeworks
