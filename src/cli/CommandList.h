#pragma once

#include "cli/CliTexts.h"
#include "cli/Command.h"

#include <memory>
#include <span>
#include <string_view>

namespace dyeworks {

/// A command by its name, which is two words for an operation ("palette sort").
struct CommandEntry {
    std::string_view name;
    CliText summary;
    std::unique_ptr<Command> (*make)();
};

/// All of them, in the order of the help.
[[nodiscard]] std::span<const CommandEntry> commandEntries();

} // namespace dyeworks
