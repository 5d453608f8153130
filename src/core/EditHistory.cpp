#include "core/EditHistory.h"

#include "platform/Platform.h"
#include "platform/StringId.h"

#include <utility>

namespace dyeworks {

EditHistory::EditHistory(MessageIcon icon)
    : steps(std::make_unique<UndoHistory>())
    , icon_(icon) {}

bool EditHistory::add(std::unique_ptr<UndoRecord> record) {
    if (steps == nullptr)
        return false;
    if (record != nullptr)
        return steps->add(std::move(record), -1);

    loseSavedPosition();
    const MessageAnswer answer =
        applicationMessage(text(StringId::UndoBufferQuestion), icon_, MessageButtons::YesNo);
    if (answer == MessageAnswer::Yes)
        restart();
    return false;
}

bool EditHistory::undo(void* target) {
    return steps != nullptr && steps->undo(target);
}

bool EditHistory::redo(void* target) {
    return steps != nullptr && steps->redo(target);
}

bool EditHistory::canUndo() const {
    return steps != nullptr && steps->currentRecord() != nullptr;
}

bool EditHistory::canRedo() const {
    return steps != nullptr && steps->redoRecord() != nullptr;
}

void EditHistory::restart() {
    const bool saved = standsAtSavedPosition();
    if (steps == nullptr || steps->count() > 0)
        start_ = HistoryStart::Later;
    // First the old one goes: the user may have asked for this because memory is short.
    steps.reset();
    steps = std::make_unique<UndoHistory>();
    savedPosition_ = saved ? steps->position() : kUnreachable;
}

void EditHistory::restartSaved(HistoryStart start) {
    restart();
    start_ = start;
    markSaved();
}

HistoryStart EditHistory::start() const {
    return steps != nullptr && steps->firstPosition() != 0 ? HistoryStart::Later : start_;
}

void EditHistory::markSaved() {
    savedPosition_ = position();
}

bool EditHistory::standsAtSavedPosition() const {
    return steps == nullptr || steps->position() == savedPosition_;
}

} // namespace dyeworks
