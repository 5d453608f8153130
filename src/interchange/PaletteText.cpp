#include "interchange/PaletteText.h"

#include "platform/CodePage932.h"

#include <algorithm>
#include <charconv>

namespace dyeworks {

namespace {

constexpr std::string_view kBlanks = " \t\f\v";
/// Enough to find the line by, short enough for a message.
constexpr std::size_t kBeginning = 40;

constexpr bool isContinuation(char c) noexcept {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// Bytes of the character that the text begins with; 0 when it is no UTF-8.
std::size_t lengthOfCharacter(std::string_view text) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(text.size(), 4); ++length)
        if (isUtf8(text.substr(0, length)))
            return length;
    return 0;
}

} // namespace

std::string_view paletteText(std::span<const std::byte> file) noexcept {
    std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (text.starts_with(kMark))
        text.remove_prefix(kMark.size());
    return text;
}

std::string_view trimmed(std::string_view text) noexcept {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::optional<std::string_view> PaletteLines::next() {
    if (rest_.empty())
        return std::nullopt;
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    line_ = trimmed(rest_.substr(0, end));
    const std::size_t mark = rest_.substr(end).starts_with("\r\n") ? 2 : 1;
    rest_.remove_prefix(std::min(end + mark, rest_.size()));
    ++number_;
    return line_;
}

InterchangeError PaletteLines::badLine() const {
    std::size_t end = std::min(line_.size(), kBeginning);
    while (end > 0 && end < line_.size() && isContinuation(line_[end]))
        --end;
    return {InterchangeError::Kind::BadLine, shownText(line_.substr(0, end)), number_, 0};
}

std::optional<unsigned> takeNumber(std::string_view& text, unsigned most) {
    const std::string_view digits = text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
    unsigned number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [behind, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || number > most)
        return std::nullopt;
    const std::string_view rest(behind, static_cast<std::size_t>(end - behind));
    if (!rest.empty() && kBlanks.find(rest.front()) == std::string_view::npos)
        return std::nullopt;
    text = rest;
    return number;
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return result;
}

std::string shownText(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t length = lengthOfCharacter(text);
        const auto lead = static_cast<unsigned char>(text.front());
        const bool isShown = length != 0 && lead >= 0x20 && lead != 0x7F;
        result += isShown ? text.substr(0, length) : std::string_view("?");
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

} // namespace dyeworks
