#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// A text as a search sees it: small letters and digits and nothing between them. Differences of case, of
/// width
/// ("Ａ", "ｱ"), of accents and between hiragana and katakana are taken out, and the sign of long vowels is.
struct SearchText {
    std::u32string letters;
    /// Places where a word begins, in order: after whatever is no letter but an apostrophe, where digits
    /// follow letters, and where kanji or katakana follow another kind of writing, which parts the words of
    /// Japanese.
    std::vector<std::size_t> words;

    [[nodiscard]] bool operator==(const SearchText& other) const = default;
};

/// `text` is UTF-8; bytes that are not part words.
[[nodiscard]] SearchText searchText(std::string_view text);

/// How well what is typed fits a text, the best first.
enum class TextFit {
    Exact,
    Beginning, ///< The text begins with it.
    AllWords,  ///< It is made of beginnings of all words, in their order: "pal ba", "palba", "pb" of "Palette
               ///< Bar".
    Words,     ///< The same of some of the words: "ba".
    Initials,  ///< The same with single letters: "sl" of "Snap to Line".
    Part,      ///< It stands somewhere in the text.
    Scattered, ///< Its letters are in the text, in their order: "plbr".
    None
};

/// Everything fits nothing typed, as its beginning.
[[nodiscard]] TextFit fitOf(const SearchText& text, const SearchText& typed);

} // namespace dyeworks
