#pragma once

#include "core/EditHistory.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dyeworks {

/// A state that a history leads to.
struct StepRow {
    std::int32_t position = 0; ///< As `UndoHistory::position`.
    StringId name{};           ///< Of the edit that led to it, or of what came before the first.

    bool operator==(const StepRow&) const = default;
};

/// The states of a history, the oldest first: the one before its first step, then the one after each step,
/// those that were undone included. At most one more than its capacity.
[[nodiscard]] std::vector<StepRow> stepsOf(const EditHistory& history);

/// Which of the rows the history stands at.
[[nodiscard]] std::size_t currentRow(const std::vector<StepRow>& rows, const EditHistory& history);

} // namespace dyeworks
