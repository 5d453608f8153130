#include "core/StepList.h"

#include "platform/StringId.h"

#include <algorithm>

namespace dyeworks {

namespace {

StringId nameOf(HistoryStart start) {
    switch (start) {
    case HistoryStart::Opened:
        return StringId::StepOpened;
    case HistoryStart::Later:
        return StringId::StepEarlier;
    case HistoryStart::New:
        break;
    }
    return StringId::StepNew;
}

} // namespace

std::vector<StepRow> stepsOf(const EditHistory& history) {
    const UndoHistory* const steps = history.steps.get();
    std::vector<StepRow> rows{{steps == nullptr ? 0 : steps->firstPosition(), nameOf(history.start())}};
    for (const UndoRecord* record = steps == nullptr ? nullptr : steps->first(); record != nullptr;
         record = record->next)
        rows.push_back({record->identifier, record->name.value_or(StringId::StepUnnamed)});
    return rows;
}

std::size_t currentRow(const std::vector<StepRow>& rows, const EditHistory& history) {
    const auto row = std::ranges::find(rows, history.position(), &StepRow::position);
    return row == rows.end() ? 0 : static_cast<std::size_t>(row - rows.begin());
}

} // namespace dyeworks
