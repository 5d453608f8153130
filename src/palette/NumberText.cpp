#include "palette/NumberText.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace dyeworks {

std::optional<std::int32_t> parseNumber(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
    if (text.front() == '+' && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);

    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (stop != end || error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return text.front() == '-' ? std::numeric_limits<std::int32_t>::min()
                                   : std::numeric_limits<std::int32_t>::max();
    return number;
}

} // namespace dyeworks
