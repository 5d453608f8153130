#include "recovery/RecoveryItem.h"

#include <array>
#include <charconv>
#include <map>
#include <string_view>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::string_view kFirstLine = "Orrery Dyeworks recovery 1\n";
constexpr std::array<std::pair<RecoveryItem::Kind, std::string_view>, 4> kKinds{
    {{RecoveryItem::Kind::Palette, "palette"},
     {RecoveryItem::Kind::Image, "image"},
     {RecoveryItem::Kind::Project, "project"},
     {RecoveryItem::Kind::File, "file"}}};

/// File names may hold line breaks.
std::string escaped(std::string_view value) {
    std::string result;
    for (const char c : value) {
        if (c == '\n')
            result += "\\n";
        else if (c == '\\')
            result += "\\\\";
        else
            result += c;
    }
    return result;
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size())
            result += text[i];
        else
            result += text[++i] == 'n' ? '\n' : text[i];
    }
    return result;
}

template <typename Number>
bool take(const std::map<std::string_view, std::string_view>& values, std::string_view name, Number& number) {
    const auto found = values.find(name);
    if (found == values.end())
        return false;
    const std::string_view text = found->second;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size();
}

std::string stampText(const FileStamp& stamp) {
    return std::to_string(stamp.device) + ' ' + std::to_string(stamp.identity) + ' ' +
           std::to_string(stamp.size) + ' ' + std::to_string(stamp.time);
}

bool takeStamp(std::string_view text, std::optional<FileStamp>& stamp) {
    FileStamp read;
    const auto next = [&text](auto& number) {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        return error == std::errc{} && (text.empty() || text.starts_with(' '));
    };
    const auto blank = [&text] {
        const bool there = text.starts_with(' ');
        text.remove_prefix(there ? 1 : 0);
        return there;
    };
    const bool whole = next(read.device) && blank() && next(read.identity) && blank() && next(read.size) &&
                       blank() && next(read.time) && text.empty();
    if (whole)
        stamp = read;
    return whole;
}

} // namespace

std::string recoveryHeader(const RecoveryItem& item) {
    std::string header(kFirstLine);
    const auto add = [&header](std::string_view name, const std::string& value) {
        header.append(name).append("=").append(escaped(value)).append("\n");
    };
    for (const auto& [kind, name] : kKinds) {
        if (kind == item.kind)
            add("kind", std::string(name));
    }
    add("path", item.path);
    add("title", item.title);
    add("time", std::to_string(item.time));
    add("palette", item.attachedName);
    add("entry", std::to_string(item.firstEntry));
    if (item.tellsFile)
        add("file", item.file ? stampText(*item.file) : std::string());
    return header + '\n';
}

std::optional<ReadRecoveryItem> parseRecoveryItem(std::span<const std::byte> file) {
    std::string_view rest(reinterpret_cast<const char*>(file.data()), file.size());
    if (!rest.starts_with(kFirstLine))
        return std::nullopt;
    rest.remove_prefix(kFirstLine.size());
    std::map<std::string_view, std::string_view> values;
    while (!rest.starts_with('\n')) {
        const std::size_t end = rest.find('\n');
        const std::size_t equals = rest.substr(0, end).find('=');
        if (end == rest.npos || equals == rest.npos)
            return std::nullopt;
        values[rest.substr(0, equals)] = rest.substr(equals + 1, end - equals - 1);
        rest.remove_prefix(end + 1);
    }
    rest.remove_prefix(1);

    ReadRecoveryItem result;
    bool known = false;
    for (const auto& [kind, name] : kKinds) {
        if (values["kind"] == name) {
            result.item.kind = kind;
            known = true;
        }
    }
    if (!known || !take(values, "time", result.item.time) || !take(values, "entry", result.item.firstEntry))
        return std::nullopt;
    result.item.path = unescaped(values["path"]);
    result.item.title = unescaped(values["title"]);
    result.item.attachedName = unescaped(values["palette"]);
    if (const auto version = values.find("file"); version != values.end()) {
        result.item.tellsFile = true;
        if (!version->second.empty() && !takeStamp(version->second, result.item.file))
            return std::nullopt;
    }
    result.contents = file.last(rest.size());
    return result;
}

} // namespace dyeworks
