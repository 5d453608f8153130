#pragma once

#include "framework/CommandTarget.h"

#include <functional>
#include <vector>

namespace dyeworks {

/// The one way to a command, for menus, keys, toolbars, plug-ins and tests. The first target of the chain
/// that takes the command gets it; the chain is asked for anew each time, because it depends on what is
/// active.
class CommandRouter {
public:
    /// Targets in routing order: active view, its document, its frame, main frame, application.
    using Chain = std::function<std::vector<CommandTarget*>()>;

    explicit CommandRouter(Chain chain)
        : chain_(std::move(chain)) {}

    /// Runs the command if a target takes it and it is enabled, then tells `afterCommand`. False otherwise.
    bool run(CommandId id);

    /// The command's present state; disabled when nobody takes it. Of a list that nobody takes, the first
    /// command alone is visible.
    [[nodiscard]] CommandUi state(CommandId id) const;

    /// Called after every command that ran, so that what shows states can ask for them.
    void setAfterCommand(std::function<void()> listener) { afterCommand_ = std::move(listener); }

private:
    Chain chain_;
    std::function<void()> afterCommand_;
};

} // namespace dyeworks
