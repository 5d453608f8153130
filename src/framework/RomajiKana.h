#pragma once

#include <string>
#include <string_view>

namespace dyeworks {

/// Hiragana for Japanese that is typed in Latin letters, in either of the two usual ways ("shi", "si"). What
/// is typed may end within a syllable, which is left out: "kens" becomes "けん". Nothing for a text that is
/// no Japanese.
[[nodiscard]] std::u32string kanaOfRomaji(std::u32string_view letters);

} // namespace dyeworks
