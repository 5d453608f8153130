#include "paint/ImageUndoRecord.h"

#include <new>
#include <utility>

namespace dyeworks {

std::unique_ptr<ImageUndoRecord> ImageUndoRecord::make(const TextureCanvas& beforeEdit,
                                                       const TextureCanvas& afterEdit,
                                                       const Rect& rectangle) {
    std::unique_ptr<ImageUndoRecord> record(new (std::nothrow) ImageUndoRecord);
    if (record == nullptr)
        return nullptr;
    record->before = beforeEdit.CopyRect(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
    record->after = afterEdit.CopyRect(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
    if (record->before == nullptr || record->after == nullptr)
        return nullptr;
    record->left = rectangle.left;
    record->top = rectangle.top;
    return record;
}

bool ImageUndoRecord::undo(void* target) {
    return paste(before.get(), target);
}

bool ImageUndoRecord::redo(void* target) {
    return paste(after.get(), target);
}

std::unique_ptr<UndoRecord> ImageUndoRecord::inverse() const {
    auto inverted = clone();
    if (inverted != nullptr)
        std::swap(inverted->before, inverted->after);
    return inverted;
}

std::uint64_t ImageUndoRecord::bytes() const {
    const auto size = [](const auto& piece) { return piece == nullptr ? 0 : piece->block().size(); };
    return size(before) + size(after);
}

std::unique_ptr<ImageUndoRecord> ImageUndoRecord::clone() const {
    std::unique_ptr<ImageUndoRecord> copy(new (std::nothrow) ImageUndoRecord);
    if (copy == nullptr)
        return nullptr;
    copy->before = before == nullptr ? nullptr : before->Clone();
    copy->after = after == nullptr ? nullptr : after->Clone();
    if ((copy->before == nullptr) != (before == nullptr) || (copy->after == nullptr) != (after == nullptr))
        return nullptr;
    copy->left = left;
    copy->top = top;
    copy->identifier = identifier;
    copy->name = name;
    return copy;
}

bool ImageUndoRecord::paste(const TextureCanvas* piece, void* target) const {
    if (piece == nullptr || target == nullptr)
        return false;
    return static_cast<TextureCanvas*>(target)->StretchPaste(*piece, left, top, left + piece->width(),
                                                             top + piece->height());
}

} // namespace dyeworks
