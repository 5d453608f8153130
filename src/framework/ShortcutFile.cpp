#include "framework/ShortcutFile.h"

#include "framework/CommandTable.h"
#include "framework/KeyText.h"
#include "platform/StringId.h"

#include <charconv>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::string_view kTitle = "Orrery Dyeworks shortcuts ";
constexpr int kVersion = 1;

using Error = ShortcutFileError;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlank = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlank);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

template <typename Number>
std::optional<Number> number(std::string_view text) {
    Number value = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && stop == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

/// Of one line after the other.
class Reading {
public:
    [[nodiscard]] std::optional<Error> title(std::string_view line) const {
        if (!line.starts_with(kTitle))
            return Error{Error::Kind::NotShortcuts, 1, {}};
        const std::optional<int> version = number<int>(trimmed(line.substr(kTitle.size())));
        if (!version || *version < 1)
            return Error{Error::Kind::NotShortcuts, 1, {}};
        return *version > kVersion ? std::optional(Error{Error::Kind::NewerVersion, 1, {}}) : std::nullopt;
    }

    [[nodiscard]] std::optional<Error> line(std::string_view line, std::int32_t where) {
        const std::size_t equals = line.find('=');
        const std::optional<CommandId> command =
            number<CommandId>(trimmed(line.substr(0, std::min(equals, line.size()))));
        if (equals == std::string_view::npos || !command)
            return Error{Error::Kind::Line, where, {}};
        Shortcuts::Keys keys;
        std::istringstream words{std::string(line.substr(equals + 1))};
        for (std::string word; words >> word;) {
            const std::optional<std::string> each = normalKeys(word);
            if (!each)
                return Error{Error::Kind::Keys, where, word};
            if (whyReserved(*each))
                return Error{Error::Kind::Reserved, where, word};
            // Those of commands that are not known here are nobody's.
            if (Shortcuts::mayHaveKeys(*command) &&
                used_.try_emplace(comparableKeys(*each), *command).first->second != *command)
                return Error{Error::Kind::Twice, where, word};
            keys.push_back(*each);
        }
        if (!commands_.try_emplace(*command, std::move(keys)).second)
            return Error{Error::Kind::Twice, where, {}};
        return std::nullopt;
    }

    [[nodiscard]] ReadShortcuts result() const {
        ReadShortcuts read;
        for (const auto& [command, keys] : commands_) {
            if (Shortcuts::mayHaveKeys(command))
                read.shortcuts.set(command, keys);
            else
                ++read.unknown;
        }
        return read;
    }

private:
    std::map<CommandId, Shortcuts::Keys> commands_;
    std::map<std::string, CommandId> used_; ///< By whom.
};

} // namespace

std::string shortcutFile(const Shortcuts& shortcuts) {
    std::string all = std::string(kTitle) + std::to_string(kVersion) + "\n";
    for (const CommandRow& row : commandTable()) {
        if (Shortcuts::mayHaveKeys(row.id))
            all += "\n# " + withoutMnemonic(row.menuText) + "\n" + std::to_string(row.id) + " = " +
                   joinedKeys(shortcuts.of(row.id)) + "\n";
    }
    return all;
}

Result<ReadShortcuts, ShortcutFileError> parseShortcutFile(std::span<const std::byte> bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.size() > kLargestShortcutFile)
        return Error{};
    std::string_view rest(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (rest.starts_with(kByteOrderMark))
        rest.remove_prefix(kByteOrderMark.size());
    Reading reading;
    for (std::int32_t where = 1; where == 1 || !rest.empty(); ++where) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view line = trimmed(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        std::optional<Error> error;
        if (where == 1)
            error = reading.title(line);
        else if (!line.empty() && line.front() != '#')
            error = reading.line(line, where);
        if (error)
            return *std::move(error);
    }
    return reading.result();
}

std::string describe(const ShortcutFileError& error) {
    const std::string line = std::to_string(error.line);
    switch (error.kind) {
    case Error::Kind::NotShortcuts:
        break;
    case Error::Kind::NewerVersion:
        return text(StringId::ShortcutFileNewer);
    case Error::Kind::Line:
        return text(StringId::ShortcutFileLine, {line});
    case Error::Kind::Keys:
        return text(StringId::ShortcutFileKeys, {line, error.keys});
    case Error::Kind::Reserved:
        return text(StringId::ShortcutFileReserved, {line, error.keys});
    case Error::Kind::Twice:
        return text(StringId::ShortcutFileTwice, {line, error.keys});
    }
    return text(StringId::ShortcutFileNone);
}

} // namespace dyeworks
