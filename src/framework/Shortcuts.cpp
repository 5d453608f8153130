#include "framework/Shortcuts.h"

#include "framework/CommandTable.h"
#include "framework/KeyText.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

namespace dyeworks {

namespace {

constexpr const char* kShortcutSection = "Shortcuts";

std::optional<CommandId> commandOf(const std::string& entry) {
    CommandId command = 0;
    const char* const end = entry.data() + entry.size();
    const auto [stop, error] = std::from_chars(entry.data(), end, command);
    return error == std::errc() && stop == end ? std::optional(command) : std::nullopt;
}

bool has(const Shortcuts::Keys& keys, const std::string& wanted) {
    const std::string comparable = comparableKeys(wanted);
    return std::ranges::any_of(keys,
                               [&](const std::string& each) { return comparableKeys(each) == comparable; });
}

// What people know who have painted pixels elsewhere.
constexpr ShortcutPreset::Row kCommonKeys[] = {
    {ID_TOOL_PEN, "B"},
    {ID_TOOL_PIXEL, "P"},
    {ID_TOOL_PAINT, "G"},
    {ID_TOOL_SPUIT, "I"},
    {ID_TOOL_SELECT, "M"},
    {ID_TOOL_BOX, "U"},
    {ID_TOOL_BOX_FILL, "Shift+U"},
    {ID_TOOL_REPLACER, "Shift+R"},
    {ID_VIEW_GRID, "Ctrl+'"},
    {ID_EDIT_REDO, "Ctrl+Shift+Z Ctrl+Y"},
    {ID_VIEW_FULL_SCREEN, "F F11"},
};

constexpr ShortcutPreset kPresets[] = {
    {StringId::ShortcutsPresetOwn, {}},
    {StringId::ShortcutsPresetCommon, kCommonKeys},
};

} // namespace

bool Shortcuts::mayHaveKeys(CommandId command) {
    const CommandRow* const row = findCommand(command);
    return row != nullptr && row->last == 0;
}

Shortcuts::Keys Shortcuts::given(CommandId command) {
    return mayHaveKeys(command) ? splitKeys(findCommand(command)->shortcut) : Keys();
}

Shortcuts::Keys Shortcuts::of(CommandId command) const {
    const auto changed = changed_.find(command);
    return changed != changed_.end() ? changed->second : given(command);
}

std::vector<CommandId> Shortcuts::othersWith(const std::string& keys, CommandId command) const {
    std::vector<CommandId> others;
    for (const CommandRow& row : commandTable()) {
        if (row.id != command && has(of(row.id), keys))
            others.push_back(row.id);
    }
    return others;
}

void Shortcuts::put(CommandId command, Keys keys) {
    if (keys == given(command))
        changed_.erase(command);
    else
        changed_[command] = std::move(keys);
}

void Shortcuts::set(CommandId command, const Keys& keys) {
    if (!mayHaveKeys(command))
        return;
    Keys taken;
    for (const std::string& text : keys) {
        const std::optional<std::string> each = normalKeys(text);
        if (!each || whyReserved(*each) || std::ranges::find(taken, *each) != taken.end())
            continue;
        for (const CommandId other : othersWith(*each, command)) {
            Keys left = of(other);
            std::erase_if(left, [&](const std::string& one) { return has({one}, *each); });
            put(other, std::move(left));
        }
        taken.push_back(*each);
    }
    put(command, std::move(taken));
}

Shortcuts Shortcuts::load() {
    Shortcuts shortcuts;
    const Profile& profile = platform().profile();
    for (const std::string& entry : profile.entries(kShortcutSection)) {
        const std::optional<CommandId> command = commandOf(entry);
        const std::optional<std::string> keys = profile.text(kShortcutSection, entry);
        if (command && keys && mayHaveKeys(*command))
            shortcuts.put(*command, splitKeys(*keys));
    }
    return shortcuts;
}

void Shortcuts::save() const {
    Profile& profile = platform().profile();
    for (const std::string& entry : profile.entries(kShortcutSection)) {
        const std::optional<CommandId> command = commandOf(entry);
        if (!command || !changed_.contains(*command))
            profile.remove(kShortcutSection, entry);
    }
    for (const auto& [command, keys] : changed_)
        profile.setText(kShortcutSection, std::to_string(command), joinedKeys(keys));
}

std::string joinedKeys(const Shortcuts::Keys& keys) {
    std::string all;
    for (const std::string& each : keys)
        all += (all.empty() ? "" : " ") + each;
    return all;
}

Shortcuts::Keys splitKeys(const std::string& text) {
    Shortcuts::Keys keys;
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (std::optional<std::string> each = normalKeys(rest.substr(0, end)))
            keys.push_back(std::move(*each));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return keys;
}

Shortcuts ShortcutPreset::shortcuts() const {
    Shortcuts shortcuts;
    for (const Row& row : rows)
        shortcuts.set(row.command, splitKeys(row.keys));
    return shortcuts;
}

std::span<const ShortcutPreset> shortcutPresets() {
    return kPresets;
}

} // namespace dyeworks
