#pragma once

#include "core/UndoHistory.h"
#include "platform/Messages.h"

#include <cstdint>
#include <memory>

namespace dyeworks {

/// What came before the first step of a history.
enum class HistoryStart {
    New,    ///< Something made in the program, or brought into it.
    Opened, ///< What was read from a file.
    Later   ///< Steps that are known no more.
};

/// The undo history of something that is kept in a file, and where in it the file stands.
class EditHistory {
public:
    /// `icon` is that of the question when there is no memory for a step.
    explicit EditHistory(MessageIcon icon);

    /// Appends the record of an edit. A null one could not be made for want of memory: the state after the
    /// edit is then one that no step leads to, and the user is asked whether to start the history anew. False
    /// then, and without a history.
    bool add(std::unique_ptr<UndoRecord> record);
    /// False when there is nothing to undo (redo).
    bool undo(void* target);
    bool redo(void* target);
    /// As `UndoHistory::position`; 0 without a history.
    [[nodiscard]] std::int32_t position() const { return steps == nullptr ? 0 : steps->position(); }
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;

    /// Starts a new, empty history, which stands at the saved position if the old one did.
    void restart();
    /// The object is as it was read or made: a new, empty history that stands at the saved position.
    void restartSaved(HistoryStart start = HistoryStart::New);
    [[nodiscard]] HistoryStart start() const;
    void setStart(HistoryStart start) noexcept { start_ = start; }
    /// The file now holds the state that the history stands at.
    void markSaved();
    /// The object has changed without a step: until the next save nothing leads to what the file holds.
    void loseSavedPosition() noexcept { savedPosition_ = kUnreachable; }
    [[nodiscard]] bool standsAtSavedPosition() const;

    /// Never null but by its owner's doing.
    std::unique_ptr<UndoHistory> steps;

private:
    static constexpr std::int32_t kUnreachable = -1;

    MessageIcon icon_;
    std::int32_t savedPosition_ = 0;
    HistoryStart start_ = HistoryStart::New;
};

} // namespace dyeworks
