#pragma once

#include "framework/CommandTarget.h"
#include "palette/EntryOrder.h"

#include <functional>
#include <vector>

namespace dyeworks {

class Workspace;

/// The commands that give entries of the current palette other places, with all images that show it.
class EntryOrderCommands : public CommandTarget {
public:
    /// `workspace` must outlive it.
    explicit EntryOrderCommands(Workspace& workspace);

private:
    void OnOrder(CommandId id);
    void OnUpdateOrder(CommandUi& ui);
    [[nodiscard]] EntryOrder proposal(EntryOperation operation) const;
    void openPictures(const std::vector<std::string>& names) const;

    Workspace& workspace_;
};

} // namespace dyeworks
