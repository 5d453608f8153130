#include "framework/CommandRouter.h"

namespace dyeworks {

namespace {

CommandTarget* takerOf(CommandId id, const std::vector<CommandTarget*>& chain) {
    for (CommandTarget* target : chain) {
        if (target != nullptr && target->handles(id))
            return target;
    }
    return nullptr;
}

CommandUi stateIn(CommandTarget* taker, CommandId id) {
    CommandUi ui;
    ui.id = id;
    ui.enabled = taker != nullptr && taker->updateCommand(ui) && ui.enabled;
    return ui;
}

} // namespace

bool CommandRouter::run(CommandId id) {
    CommandTarget* taker = takerOf(id, chain_());
    if (!stateIn(taker, id).enabled || !taker->runCommand(id))
        return false;
    if (afterCommand_)
        afterCommand_();
    return true;
}

CommandUi CommandRouter::state(CommandId id) const {
    return stateIn(takerOf(id, chain_()), id);
}

} // namespace dyeworks
