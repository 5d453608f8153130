#include "core/UndoHistory.h"

namespace dyeworks {

namespace {

/// The history owns its records through the links, from the first one on.
void destroy(UndoRecord* record) {
    const std::unique_ptr<UndoRecord> owner(record);
}

} // namespace

UndoHistory::~UndoHistory() {
    clear();
}

bool UndoHistory::add(std::unique_ptr<UndoRecord> record, std::int32_t identifier) {
    if (!record)
        return false;
    deleteRedoBranch();

    UndoRecord* const added = record.release();
    added->identifier = identifier == -1 ? ++identifierCounter_ : identifier;
    added->previous = last_;
    added->next = nullptr;
    if (last_ != nullptr)
        last_->next = added;
    else
        first_ = added;
    last_ = current_ = added;
    ++count_;

    while (count_ > capacity_ || (count_ > 1 && bytes() > budget_))
        dropFirst();
    return true;
}

bool UndoHistory::undo(void* target) {
    if (current_ == nullptr)
        return false;
    current_->undo(target);
    redo_ = current_;
    current_ = current_->previous;
    return true;
}

bool UndoHistory::redo(void* target) {
    if (redo_ == nullptr)
        return false;
    redo_->redo(target);
    current_ = redo_;
    redo_ = redo_->next;
    return true;
}

void UndoHistory::clear() {
    while (first_ != nullptr) {
        UndoRecord* const next = first_->next;
        destroy(first_);
        first_ = next;
    }
    last_ = current_ = redo_ = nullptr;
    count_ = 0;
    identifierCounter_ = 0;
    droppedIdentifier_ = 0;
}

std::int32_t UndoHistory::position() const noexcept {
    return current_ != nullptr ? current_->identifier : firstPosition();
}

/// Counted anew each time: what a record holds may change with each undo and redo.
std::uint64_t UndoHistory::bytes() const {
    std::uint64_t sum = 0;
    for (const UndoRecord* record = first_; record != nullptr; record = record->next)
        sum += record->bytes();
    return sum;
}

void UndoHistory::deleteRedoBranch() {
    while (redo_ != nullptr) {
        UndoRecord* const next = redo_->next;
        destroy(redo_);
        redo_ = next;
        --count_;
    }
    last_ = current_;
    if (last_ != nullptr)
        last_->next = nullptr;
    else
        first_ = nullptr;
}

void UndoHistory::dropFirst() {
    UndoRecord* const dropped = first_;
    first_ = dropped->next;
    if (first_ != nullptr)
        first_->previous = nullptr;
    else
        last_ = current_ = nullptr;
    droppedIdentifier_ = dropped->identifier;
    destroy(dropped);
    --count_;
}

} // namespace dyeworks
