#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dyeworks {

/// The characters of a UTF-8 text with differences of case taken out: Latin, Greek, Cyrillic and full-width
/// letters become small letters, whatever the C locale. A byte that is no UTF-8 becomes a value above
/// U+10FFFF of its own, so that texts in another encoding stay apart.
std::u32string foldedCase(std::string_view text);

/// Bytes of the character at the front of a text that is not empty; 1 for a byte that is no UTF-8.
std::size_t characterLength(std::string_view text);

/// Characters of the text, whatever their length in bytes.
std::size_t characterCount(std::string_view text);

/// The text from its front on, as many characters of it, or the whole when it has not so many.
std::string_view firstCharacters(std::string_view text, std::size_t characters);

bool equalIgnoringCase(std::string_view a, std::string_view b);
bool beginsIgnoringCase(std::string_view text, std::string_view beginning);
bool endsIgnoringCase(std::string_view text, std::string_view end);

} // namespace dyeworks
