#include "core/PaletteUndoRecord.h"

#include <new>
#include <utility>

namespace dyeworks {

namespace {

std::unique_ptr<TlutData> copyOf(const TlutData* table) {
    if (table == nullptr)
        return nullptr;
    auto copy = std::make_unique<TlutData>(*table);
    if (copy->entries == nullptr)
        throw std::bad_alloc();
    return copy;
}

bool putEntries(const TlutData* state, TlutData* table) {
    return table != nullptr && table->copyEntriesFrom(state) > 0;
}

bool putWhole(const TlutData& state, TlutData* table) {
    TlutData copy(state);
    if (table == nullptr || copy.entries == nullptr)
        return false;
    *table = std::move(copy);
    return table->count > 0;
}

} // namespace

PaletteUndoRecord::PaletteUndoRecord(const TlutData* beforeEdit, const TlutData* afterEdit)
    : before(copyOf(beforeEdit))
    , after(copyOf(afterEdit)) {}

bool PaletteUndoRecord::undo(void* target) {
    auto* const table = static_cast<TlutData*>(target);
    return changesKind() ? putWhole(*before, table) : putEntries(before.get(), table);
}

bool PaletteUndoRecord::redo(void* target) {
    auto* const table = static_cast<TlutData*>(target);
    return changesKind() ? putWhole(*after, table) : putEntries(after.get(), table);
}

bool PaletteUndoRecord::changesKind() const {
    return before && after && (before->count != after->count || before->colourType != after->colourType);
}

std::unique_ptr<UndoRecord> PaletteUndoRecord::inverse() const {
    auto record = std::make_unique<PaletteUndoRecord>(after.get(), before.get());
    record->identifier = identifier;
    record->name = name;
    return record;
}

} // namespace dyeworks
