#pragma once

#include "framework/CommandSearch.h"
#include "framework/CommandTarget.h"
#include "framework/Menu.h"

#include <QPointer>

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

class ChildFrame;
class CommandActions;
class CommandRouter;
class CommandUsage;
class MdiFrame;

/// A command as it stands now, or a window of the Window menu, for people to look for.
struct ListedCommand {
    CommandId id = 0; ///< 0 for a window.
    QPointer<ChildFrame> window;
    std::string name;
    std::string place;  ///< The menus around it: "View > Zoom".
    std::string keys;   ///< As the desktop writes them; empty for a command without.
    std::string reason; ///< Why it cannot be used; empty where it can.
    SearchNames search;
};

/// Every command that the menus show, and every window of a document, in the order of the menus: those of
/// `bars`, what stands in several told once, then the windows.
[[nodiscard]] std::vector<ListedCommand>
listCommands(std::span<const std::span<const MenuItem>> bars, const CommandRouter& router,
             const CommandActions& actions, const MdiFrame& frame, const CommandUsage& usage,
             const std::function<std::string(const CommandUi&)>& why);

/// "View > Zoom" of "View" and "Zoom"; the inner one alone where nothing is around it.
[[nodiscard]] std::string placeInside(const std::string& outer, const std::string& inner);

/// "Zoom In, View, Ctrl++, disabled: no image is open", as it is read out.
[[nodiscard]] std::string spoken(const ListedCommand& command);

} // namespace dyeworks
