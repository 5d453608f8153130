#pragma once

#include "framework/CommandTarget.h"
#include "palette/EntryOrder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

class CPaletteBar;
class Workspace;

/// The commands that give entries of the current palette other places, with all images that show it.
class EntryOrderCommands : public CommandTarget {
public:
    /// `workspace` must outlive it.
    explicit EntryOrderCommands(Workspace& workspace);
    /// The palette bar is there: what is dragged in it moves.
    void start(CPaletteBar& bar);

private:
    /// As the command does it. The sheet comes up where it has something to tell or to ask.
    void moveTo(EntryRange range, std::int32_t place);
    enum class Sheet { Always, WhereNeeded };
    void carryOut(EntryOrder order, Sheet sheet);
    void OnOrder(CommandId id);
    void OnUpdateOrder(CommandUi& ui);
    [[nodiscard]] EntryOrder proposal(EntryOperation operation) const;
    void openPictures(const std::vector<std::string>& names) const;

    Workspace& workspace_;
};

} // namespace dyeworks
