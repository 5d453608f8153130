#pragma once

#include "framework/CommandIds.h"
#include "platform/Text.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// The keys of all commands: those given with the program, but for commands to which the user has given
/// others. No two commands have the same keys unless they were given so. Keys are written as `normalKeys`
/// does.
class Shortcuts {
public:
    using Keys = std::vector<std::string>;

    /// Of the command table. Nothing for commands that cannot have keys: those of lists.
    [[nodiscard]] static bool mayHaveKeys(CommandId command);
    [[nodiscard]] static Keys given(CommandId command);

    [[nodiscard]] Keys of(CommandId command) const;
    [[nodiscard]] bool isAsGiven(CommandId command) const { return !changed_.contains(command); }
    /// Every command is.
    [[nodiscard]] bool areAsGiven() const { return changed_.empty(); }

    /// The other commands that have the keys, or such as are the same on most keyboards.
    [[nodiscard]] std::vector<CommandId> othersWith(const std::string& keys, CommandId command) const;

    /// The command has these keys from now on and no others; from other commands they are taken away. What is
    /// reserved or stands there twice is left out, and a command that may have none stays without.
    void set(CommandId command, const Keys& keys);
    void reset(CommandId command) { set(command, given(command)); }
    void resetAll() { changed_.clear(); }

    /// What the user has changed.
    [[nodiscard]] const std::map<CommandId, Keys>& changed() const noexcept { return changed_; }

    /// From the user's settings; what is damaged there counts as not changed.
    [[nodiscard]] static Shortcuts load();
    void save() const;

    bool operator==(const Shortcuts&) const = default;

private:
    void put(CommandId command, Keys keys);

    std::map<CommandId, Keys> changed_;
};

/// "Ctrl+X Shift+Del", and back; words that are no keys are left out.
[[nodiscard]] std::string joinedKeys(const Shortcuts::Keys& keys);
[[nodiscard]] Shortcuts::Keys splitKeys(const std::string& text);

/// Keys for those who come with habits.
struct ShortcutPreset {
    struct Row {
        CommandId command;
        const char* keys; ///< Separated by blanks.
    };
    StringId name;
    std::span<const Row> rows; ///< What differs from the keys given.

    [[nodiscard]] Shortcuts shortcuts() const;
};

/// The first one is that of the keys given.
[[nodiscard]] std::span<const ShortcutPreset> shortcutPresets();

} // namespace dyeworks
