#pragma once

#include "framework/CommandIds.h"
#include "platform/Text.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// What an update handler says of its command. A handled command is enabled until its handler says otherwise.
struct CommandUi {
    CommandId id = 0;
    bool enabled = true;
    bool visible = true;         ///< False takes the command out of its menus, for entries of short lists.
    std::optional<bool> checked; ///< Set for commands that show a check mark.
    std::optional<std::string> text; ///< Replaces the menu text.
    std::optional<StringId> reason;  ///< Why it is disabled, as words that follow "disabled:".

    /// Disables the command unless what it needs is there, giving that as the reason. The first need that is
    /// not met counts.
    void require(bool isThere, StringId otherwise) {
        if (isThere || !enabled)
            return;
        enabled = false;
        reason = otherwise;
    }
};

/// Shows the entry of a list of plug-ins that the command stands for, numbered from `first` on; a command
/// beyond the list is not shown.
void showListEntry(CommandUi& ui, CommandId first, const std::vector<std::string>& names);

/// An object that carries out commands. Its constructor fills the map:
///
///     on(ID_ZOOM_IN, &CDyeworksView::OnZoomIn, &CDyeworksView::OnUpdateZoomIn);
class CommandTarget {
public:
    CommandTarget() = default;
    virtual ~CommandTarget() = default;
    CommandTarget(const CommandTarget&) = delete;
    CommandTarget& operator=(const CommandTarget&) = delete;

    /// Whether this object takes the command at all.
    [[nodiscard]] bool handles(CommandId id) const;

    /// Carries the command out. False when this object does not take it.
    bool runCommand(CommandId id);

    /// Lets the command's update handler fill `ui`. False when this object does not take the command.
    bool updateCommand(CommandUi& ui);

protected:
    template <typename Target>
    void on(CommandId id, void (Target::*handler)(), void (Target::*update)(CommandUi&) = nullptr) {
        auto* self = static_cast<Target*>(this);
        handlers_[id] = {[self, handler](CommandId) { (self->*handler)(); },
                         update == nullptr ? Update{}
                                           : [self, update](CommandUi& ui) { (self->*update)(ui); }};
    }

    /// The handler learns which of the commands `first` to `last` it is.
    template <typename Target>
    void onRange(CommandId first, CommandId last, void (Target::*handler)(CommandId),
                 void (Target::*update)(CommandUi&) = nullptr) {
        auto* self = static_cast<Target*>(this);
        for (CommandId id = first; id <= last; ++id)
            handlers_[id] = {[self, handler](CommandId which) { (self->*handler)(which); },
                             update == nullptr ? Update{}
                                               : [self, update](CommandUi& ui) { (self->*update)(ui); }};
    }

private:
    using Update = std::function<void(CommandUi&)>;
    struct Entry {
        std::function<void(CommandId)> run;
        Update update;
    };
    std::map<CommandId, Entry> handlers_;
};

} // namespace dyeworks
