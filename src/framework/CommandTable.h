#pragma once

#include "framework/CommandIds.h"

#include <span>
#include <string>
#include <string_view>

namespace dyeworks {

/// One command as people meet it, or a list of commands that share their texts until update handlers give
/// each its own (recent files, plug-ins). Texts are the English sources.
struct CommandRow {
    CommandId id;
    const char* menuText; ///< With its mnemonic: "Zoom &In".
    const char* prompt;   ///< Status line, a line break, tool tip: "Zoom In\nZoom In".
    const char* shortcut; ///< "Ctrl+S", several separated by blanks, or "".
    const char* icon;     ///< Name of the icon, or "" for a command that has none.
    CommandId last = 0;   ///< Of a list: its last number. 0 for a single command.
};

/// Every command of the program, in the order of their numbers.
std::span<const CommandRow> commandTable();

/// The row of the command, also for a later number of a list. Null for a number that is no command.
const CommandRow* findCommand(CommandId id);

// The texts in the user's language.
std::string menuText(const CommandRow& row);
std::string statusText(const CommandRow& row);
std::string toolTipText(const CommandRow& row);

/// A text of a menu without the mark of its letter: "Zoom In", and "開く..." of "開く(&O)...". Two marks are
/// a "&" that is shown.
std::string withoutMnemonic(std::string_view menuText);

inline constexpr const char* kCommandContext = "Command";

} // namespace dyeworks
