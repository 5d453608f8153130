#pragma once

#include "framework/CommandTarget.h"

#include <optional>

namespace dyeworks {

/// What commands need to be open that nobody takes.
struct OpenThings {
    bool image = false; ///< In whatever window.
    bool project = false;
};

/// Why the command is disabled, for a person to read: what whoever takes it has said, or else what has to be
/// open and active for somebody to take it. Nothing for an enabled command.
[[nodiscard]] std::optional<StringId> disabledReason(const CommandUi& state, const OpenThings& open);

} // namespace dyeworks
