#pragma once

#include "core/TlutData.h"
#include "core/UndoHistory.h"

#include <memory>

namespace dyeworks {

/// An edit of a palette as its whole table before and after. The target is the palette's `TlutData`. Either
/// table may be missing; undoing to (redoing) a missing table changes nothing.
class PaletteUndoRecord : public UndoRecord {
public:
    /// Copies both tables. Throws std::bad_alloc when there is no memory for one of them.
    PaletteUndoRecord(const TlutData* beforeEdit, const TlutData* afterEdit);

    bool undo(void* target) override;
    bool redo(void* target) override;
    [[nodiscard]] std::unique_ptr<UndoRecord> inverse() const override;

    std::unique_ptr<TlutData> before;
    std::unique_ptr<TlutData> after;

private:
    /// The edit gave the table another size or colour type, as an import may; entries alone would not bring
    /// that back.
    [[nodiscard]] bool changesKind() const;
};

} // namespace dyeworks
