#include "platform/Profile.h"

#include <charconv>
#include <system_error>

namespace dyeworks {

namespace {

std::optional<int> wholeNumber(const std::string& text) {
    const char* first = text.data();
    const char* const last = first + text.size();
    // from_chars knows only the minus sign.
    if (first != last && *first == '+') {
        ++first;
        if (first != last && *first == '-')
            return std::nullopt;
    }
    int number = 0;
    const auto [end, error] = std::from_chars(first, last, number);
    if (error != std::errc() || end != last)
        return std::nullopt;
    return number;
}

} // namespace

std::string Profile::textOr(const std::string& section, const std::string& entry,
                            const std::string& fallback) const {
    return text(section, entry).value_or(fallback);
}

int Profile::integer(const std::string& section, const std::string& entry, int fallback) const {
    const std::optional<std::string> stored = text(section, entry);
    return stored ? wholeNumber(*stored).value_or(fallback) : fallback;
}

void Profile::setInteger(const std::string& section, const std::string& entry, int value) {
    setText(section, entry, std::to_string(value));
}

} // namespace dyeworks
