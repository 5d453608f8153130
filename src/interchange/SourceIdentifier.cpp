#include "interchange/TextureSource.h"

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

// Of C11 and C++20.
constexpr std::array kKeywords = std::to_array<std::string_view>({"alignas",
                                                                  "alignof",
                                                                  "and",
                                                                  "and_eq",
                                                                  "asm",
                                                                  "auto",
                                                                  "bitand",
                                                                  "bitor",
                                                                  "bool",
                                                                  "break",
                                                                  "case",
                                                                  "catch",
                                                                  "char",
                                                                  "char16_t",
                                                                  "char32_t",
                                                                  "char8_t",
                                                                  "class",
                                                                  "co_await",
                                                                  "co_return",
                                                                  "co_yield",
                                                                  "compl",
                                                                  "concept",
                                                                  "const",
                                                                  "const_cast",
                                                                  "consteval",
                                                                  "constexpr",
                                                                  "constinit",
                                                                  "continue",
                                                                  "decltype",
                                                                  "default",
                                                                  "delete",
                                                                  "do",
                                                                  "double",
                                                                  "dynamic_cast",
                                                                  "else",
                                                                  "enum",
                                                                  "explicit",
                                                                  "export",
                                                                  "extern",
                                                                  "false",
                                                                  "float",
                                                                  "for",
                                                                  "friend",
                                                                  "goto",
                                                                  "if",
                                                                  "inline",
                                                                  "int",
                                                                  "long",
                                                                  "mutable",
                                                                  "namespace",
                                                                  "new",
                                                                  "noexcept",
                                                                  "not",
                                                                  "not_eq",
                                                                  "nullptr",
                                                                  "operator",
                                                                  "or",
                                                                  "or_eq",
                                                                  "private",
                                                                  "protected",
                                                                  "public",
                                                                  "register",
                                                                  "reinterpret_cast",
                                                                  "requires",
                                                                  "restrict",
                                                                  "return",
                                                                  "short",
                                                                  "signed",
                                                                  "sizeof",
                                                                  "static",
                                                                  "static_assert",
                                                                  "static_cast",
                                                                  "struct",
                                                                  "switch",
                                                                  "template",
                                                                  "this",
                                                                  "thread_local",
                                                                  "throw",
                                                                  "true",
                                                                  "try",
                                                                  "typedef",
                                                                  "typeid",
                                                                  "typename",
                                                                  "union",
                                                                  "unsigned",
                                                                  "using",
                                                                  "virtual",
                                                                  "void",
                                                                  "volatile",
                                                                  "wchar_t",
                                                                  "while",
                                                                  "xor",
                                                                  "xor_eq"});

constexpr bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

constexpr bool isLetter(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

std::string identifierOf(std::string_view text) {
    std::string name;
    bool wasOther = false;
    for (const char c : text) {
        const bool isOther = !isDigit(c) && !isLetter(c) && c != '_';
        if (!isOther)
            name += c;
        else if (!wasOther)
            name += '_';
        wasOther = isOther;
    }
    if (std::ranges::none_of(name, [](char c) { return isDigit(c) || isLetter(c); }))
        return "texture";
    if (isDigit(name.front()))
        name.insert(name.begin(), '_');
    if (std::ranges::find(kKeywords, name) != kKeywords.end())
        name += '_';
    return name;
}

} // namespace dyeworks
