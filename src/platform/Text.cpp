#include "platform/Text.h"

#include "platform/Platform.h"

namespace dyeworks {

namespace {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Length of the decimal number that starts at `position`, at most two digits, so that "%10" is the tenth
/// argument and not the first one with a 0 behind it.
std::size_t numberLength(const std::string& pattern, std::size_t position) {
    std::size_t length = 0;
    while (length < 2 && position + length < pattern.size() && isDigit(pattern[position + length]))
        ++length;
    return length;
}

} // namespace

std::string text(StringId id) {
    return platform().texts().translate(kTextContext, englishText(id));
}

std::string text(StringId id, std::initializer_list<std::string> arguments) {
    return filled(text(id), arguments);
}

std::string filled(const std::string& pattern, std::initializer_list<std::string> arguments) {
    std::string result;
    result.reserve(pattern.size());
    std::size_t position = 0;
    // One pass over the pattern alone: a "%1" inside an argument is a person's text, not a place.
    while (position < pattern.size()) {
        const std::size_t digits = pattern[position] == '%' ? numberLength(pattern, position + 1) : 0;
        const std::size_t number = digits == 0 ? 0 : std::stoul(pattern.substr(position + 1, digits));
        if (number >= 1 && number <= arguments.size()) {
            result += *(arguments.begin() + (number - 1));
            position += 1 + digits;
        } else {
            result += pattern[position++];
        }
    }
    return result;
}

} // namespace dyeworks
