#include "core/PaletteUndoRecord.h"

#include <new>

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

bool putState(const TlutData* state, void* target) {
    auto* const table = static_cast<TlutData*>(target);
    return table != nullptr && table->copyEntriesFrom(state) > 0;
}

} // namespace

PaletteUndoRecord::PaletteUndoRecord(const TlutData* beforeEdit, const TlutData* afterEdit)
    : before(copyOf(beforeEdit))
    , after(copyOf(afterEdit)) {}

bool PaletteUndoRecord::undo(void* target) {
    return putState(before.get(), target);
}

bool PaletteUndoRecord::redo(void* target) {
    return putState(after.get(), target);
}

std::unique_ptr<UndoRecord> PaletteUndoRecord::inverse() const {
    auto record = std::make_unique<PaletteUndoRecord>(after.get(), before.get());
    record->identifier = identifier;
    return record;
}

} // namespace dyeworks
