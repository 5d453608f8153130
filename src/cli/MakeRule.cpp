#include "cli/MakeRule.h"

#include <set>

namespace dyeworks {

namespace {

/// A blank and "#" take a backslash, which doubles those before it; "$" stands twice.
std::string escaped(const std::string& name) {
    std::string text;
    std::size_t backslashes = 0;
    for (const char c : name) {
        if (c == ' ' || c == '\t' || c == '#') {
            text.append(backslashes, '\\');
            text += '\\';
        } else if (c == '$') {
            text += '$';
        }
        backslashes = c == '\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text;
}

bool hasLine(const std::string& name) {
    return name.find_first_of("\n\r") != std::string::npos;
}

} // namespace

std::optional<std::string> makeRule(const std::string& target, const std::vector<std::string>& files) {
    if (hasLine(target))
        return std::nullopt;
    std::string rule = escaped(target) + ":";
    std::set<std::string> known;
    for (const std::string& file : files) {
        if (hasLine(file))
            return std::nullopt;
        if (known.insert(file).second)
            rule += " \\\n  " + escaped(file);
    }
    return rule + "\n";
}

} // namespace dyeworks
