#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace dyeworks {

/// The text with the words that it writes in kanji in hiragana, a blank before each, as whoever looks for it
/// types it: "選択の解除" becomes " せんたくの かいじょ". Knows the words of the program's menus; nothing for
/// a text with another kanji in it.
[[nodiscard]] std::optional<std::string> kanaReading(std::string_view text);

} // namespace dyeworks
