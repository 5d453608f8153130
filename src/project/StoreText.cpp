#include "project/CKeyValueStore.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";
constexpr std::size_t kLongestName = 256;

constexpr bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string_view withoutEndBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1);
}

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    return first == std::string_view::npos ? std::string_view() : withoutEndBlanks(text.substr(first));
}

/// `isName` tells whether what stands before the "=" makes the text an assignment.
template <typename IsName>
std::size_t tokenize(const std::string& text, StoreLine& tokens, IsName isName) {
    std::string_view line = text;
    // At the front it makes the whole line a comment, which is kept.
    if (const std::size_t comment = line.find('#', 1); !line.starts_with('#') && comment != line.npos)
        line = line.substr(0, comment);
    const std::size_t equals = line.find('=');
    if (equals != line.npos && equals > 0) {
        const std::string_view name = withoutEndBlanks(line.substr(0, equals));
        if (isName(name)) {
            tokens = {std::string(name), "=", std::string(withoutBlanks(line.substr(equals + 1)))};
            return tokens.size();
        }
    }
    tokens = {text};
    return tokens.size();
}

} // namespace

bool IsValidName(std::string_view text) {
    const auto opens = [](char c) { return isLetter(c) || c == '_' || c == '\\'; };
    const auto follows = [&](char c) { return opens(c) || (c >= '0' && c <= '9') || c == '@' || c == '.'; };
    return !text.empty() && text.size() <= kLongestName && opens(text.front()) &&
           std::ranges::all_of(text, follows);
}

LineKind ClassifyLine(const StoreLine& line) {
    if (line.empty() || line[0].empty())
        return kOtherLine;
    if (line[0][0] == '#' || line[0][0] == ';')
        return kCommentLine;
    return line.size() >= 3 && IsValidName(line[0]) && line[1] == "=" ? kAssignmentLine : kOtherLine;
}

std::size_t TokenizeLine(const std::string& text, StoreLine& tokens) {
    return tokenize(text, tokens, IsValidName);
}

std::size_t TokenizeLine(const std::string& text, std::string_view prefix, StoreLine& tokens) {
    return tokenize(text, tokens, [prefix](std::string_view name) { return name.starts_with(prefix); });
}

std::size_t SplitFields(std::string_view text, std::string_view delimiters,
                        std::vector<std::string>& fields) {
    fields.clear();
    for (std::size_t at = text.find_first_not_of(delimiters); at != text.npos;) {
        const std::size_t end = std::min(text.find_first_of(delimiters, at), text.size());
        fields.emplace_back(text.substr(at, end - at));
        at = text.find_first_not_of(delimiters, end);
    }
    return fields.size();
}

} // namespace dyeworks
