#pragma once

#include "platform/Text.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace dyeworks {

/// What somebody else keeps with a record, and which ends with it.
class RecordTie {
public:
    RecordTie() = default;
    virtual ~RecordTie() = default;
    RecordTie(const RecordTie&) = delete;
    RecordTie& operator=(const RecordTie&) = delete;
};

/// One undoable edit. Records are linked and owned by the history that they were added to.
class UndoRecord {
public:
    UndoRecord() = default;
    virtual ~UndoRecord() = default;
    UndoRecord(const UndoRecord&) = delete;
    UndoRecord& operator=(const UndoRecord&) = delete;

    /// Puts the state before (after) the edit into `target`, the object that the history's owner changes.
    /// The result tells whether the target changed.
    virtual bool undo(void* target) = 0;
    virtual bool redo(void* target) = 0;

    /// A new record of the same kind, identifier and name that undoes what this one redoes, and the other way
    /// round.
    [[nodiscard]] virtual std::unique_ptr<UndoRecord> inverse() const = 0;

    /// Memory that the record holds now, as far as it matters.
    [[nodiscard]] virtual std::uint64_t bytes() const { return 0; }

    std::int32_t identifier = -1; ///< -1 until the record is added.
    std::optional<StringId> name; ///< What the user knows the edit by.
    UndoRecord* previous = nullptr;
    UndoRecord* next = nullptr;
    std::unique_ptr<RecordTie> tie; ///< Mostly none.
};

/// A list of edits with a movable position: `undo` steps back over one edit, `redo` steps forward again.
class UndoHistory {
public:
    static constexpr std::int32_t kCapacity = 100;

    /// Memory that the records of one history may hold together. Ordinary work stays far below.
    static constexpr std::uint64_t kBudget = std::uint64_t{2} << 30;

    explicit UndoHistory(std::int32_t capacity = kCapacity, std::uint64_t budget = kBudget)
        : capacity_(capacity)
        , budget_(budget) {}
    ~UndoHistory();
    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

    /// Appends `record` behind the current position; records that could have been redone are deleted, and so
    /// is the oldest one beyond the capacity, and the oldest ones, but never the new one, while all of them
    /// hold more memory than the budget allows. An identifier of -1 takes the next one of the history's own
    /// counter. False for a null record.
    bool add(std::unique_ptr<UndoRecord> record, std::int32_t identifier);

    /// False when there is nothing to undo (redo); otherwise true, whatever the record answered.
    bool undo(void* target);
    bool redo(void* target);

    /// Records held, those that were undone included.
    [[nodiscard]] std::int32_t count() const noexcept { return count_; }
    void clear();

    /// The record that `undo` reverts next, or null; the one that `redo` applies next, or null.
    [[nodiscard]] UndoRecord* currentRecord() const noexcept { return current_; }
    [[nodiscard]] UndoRecord* redoRecord() const noexcept { return redo_; }
    /// The oldest one that is held, or null; the others follow by their links.
    [[nodiscard]] const UndoRecord* first() const noexcept { return first_; }
    [[nodiscard]] std::int32_t capacity() const noexcept { return capacity_; }

    /// Names the state that the edited object is in: the identifier of the last edit in effect, also when
    /// that edit has been dropped for capacity, and 0 before the first. Two equal positions of one history
    /// (between two `clear`) are the same state.
    [[nodiscard]] std::int32_t position() const noexcept;
    /// The position before `first`; other than 0 when older records have been dropped.
    [[nodiscard]] std::int32_t firstPosition() const noexcept { return droppedIdentifier_; }

private:
    [[nodiscard]] std::uint64_t bytes() const;
    void deleteRedoBranch();
    void dropFirst();

    UndoRecord* first_ = nullptr;
    UndoRecord* last_ = nullptr;
    UndoRecord* current_ = nullptr;
    UndoRecord* redo_ = nullptr;
    std::int32_t count_ = 0;
    std::int32_t capacity_;
    std::uint64_t budget_; ///< In bytes.
    std::int32_t identifierCounter_ = 0;
    std::int32_t droppedIdentifier_ = 0; ///< Of the newest record that capacity pushed out.
};

} // namespace dyeworks
