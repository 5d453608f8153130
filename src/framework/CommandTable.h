#pragma once

#include "framework/CommandIds.h"

#include <span>
#include <string>

namespace dyeworks {

/// One command as people meet it. Texts are the English sources.
struct CommandRow {
    CommandId id;
    const char* menuText; ///< With its mnemonic: "Zoom &In".
    const char* prompt;   ///< Status line, a line break, tool tip: "Zoom In\nZoom In".
    const char* shortcut; ///< "Ctrl+S", several separated by blanks, or "".
    const char* icon;     ///< Name of the icon, or "" for a command that has none.
};

/// Every command of the program, in the order of their numbers.
std::span<const CommandRow> commandTable();

/// Null for a number that is no command.
const CommandRow* findCommand(CommandId id);

// The texts in the user's language.
std::string menuText(const CommandRow& row);
std::string statusText(const CommandRow& row);
std::string toolTipText(const CommandRow& row);

inline constexpr const char* kCommandContext = "Command";

} // namespace dyeworks
