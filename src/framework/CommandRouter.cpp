#include "framework/CommandRouter.h"

#include "framework/CommandTable.h"

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
    if (taker != nullptr) {
        ui.enabled = taker->updateCommand(ui) && ui.enabled;
        return ui;
    }
    const CommandRow* row = findCommand(id);
    ui.enabled = false;
    ui.visible = row == nullptr || row->id == id;
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
