#include "framework/CommandTarget.h"

namespace dyeworks {

void showListEntry(CommandUi& ui, CommandId first, const std::vector<std::string>& names) {
    const std::size_t index = ui.id - first;
    ui.visible = ui.enabled = index < names.size();
    if (ui.enabled)
        ui.text = "&" + std::to_string(index % 10) + " " + names[index];
}

bool CommandTarget::handles(CommandId id) const {
    return handlers_.contains(id);
}

bool CommandTarget::runCommand(CommandId id) {
    const auto found = handlers_.find(id);
    if (found == handlers_.end())
        return false;
    // A copy, because the command may be the one that ends this object.
    const std::function<void(CommandId)> run = found->second.run;
    run(id);
    return true;
}

bool CommandTarget::updateCommand(CommandUi& ui) {
    const auto found = handlers_.find(ui.id);
    if (found == handlers_.end())
        return false;
    if (found->second.update)
        found->second.update(ui);
    return true;
}

} // namespace dyeworks
