#include "platform/TextCase.h"

#include <cstddef>

namespace dyeworks {

namespace {

constexpr char32_t kInvalidByteBase = 0x110000;

struct Character {
    char32_t code;
    std::size_t length;
};

constexpr bool continues(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

/// The character at the front of a text that is not empty.
Character firstCharacter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const Character invalid{kInvalidByteBase + lead, 1};
    if (lead < 0x80)
        return {lead, 1};
    if (lead < 0xC2 || lead > 0xF4)
        return invalid;
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < length)
        return invalid;
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (!continues(byte))
            return invalid;
        code = code << 6U | (byte & 0x3FU);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < kSmallest[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return invalid;
    return {code, length};
}

constexpr bool within(char32_t code, char32_t first, char32_t last) {
    return code >= first && code <= last;
}

char32_t folded(char32_t code) {
    if (within(code, U'A', U'Z'))
        return code + 0x20;
    if (code < 0xC0)
        return code;
    if ((within(code, 0xC0, 0xDE) && code != 0xD7) || within(code, 0x391, 0x3AB) ||
        within(code, 0x410, 0x42F) || within(code, 0xFF21, 0xFF3A))
        return code + 0x20;
    if (within(code, 0x400, 0x40F))
        return code + 0x50;
    // Latin Extended-A alternates capital and small letters; around two letters without a partner the
    // capitals change from even to odd places.
    if (within(code, 0x139, 0x148) || within(code, 0x179, 0x17E))
        return code + (code & 1U);
    if (within(code, 0x100, 0x137) || within(code, 0x14A, 0x177))
        return code == 0x130 || code == 0x131 ? code : code | 1U;
    if (code == 0x178)
        return 0xFF;
    return code;
}

} // namespace

std::u32string foldedCase(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    while (!text.empty()) {
        const Character character = firstCharacter(text);
        characters.push_back(folded(character.code));
        text.remove_prefix(character.length);
    }
    return characters;
}

std::size_t characterLength(std::string_view text) {
    return firstCharacter(text).length;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(characterLength(text)))
        ++count;
    return count;
}

std::string_view firstCharacters(std::string_view text, std::size_t characters) {
    std::string_view rest = text;
    for (; characters > 0 && !rest.empty(); --characters)
        rest.remove_prefix(characterLength(rest));
    return text.substr(0, text.size() - rest.size());
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return a == b || foldedCase(a) == foldedCase(b);
}

bool beginsIgnoringCase(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() && equalIgnoringCase(text.substr(0, beginning.size()), beginning);
}

bool endsIgnoringCase(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && equalIgnoringCase(text.substr(text.size() - end.size()), end);
}

} // namespace dyeworks
