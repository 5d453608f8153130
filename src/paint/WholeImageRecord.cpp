#include "paint/WholeImageRecord.h"

#include <new>
#include <utility>

namespace dyeworks {

WholeImageRecord::WholeImageRecord(std::unique_ptr<TextureCanvas> other, std::optional<FirstEntry> firstEntry,
                                   Point moved)
    : other_(std::move(other))
    , firstEntry_(firstEntry)
    , next_(moved) {}

std::unique_ptr<UndoRecord> WholeImageRecord::inverse() const {
    std::unique_ptr<TextureCanvas> copy = other_->Clone();
    if (copy == nullptr)
        return nullptr;
    std::unique_ptr<WholeImageRecord> inverted(new (std::nothrow)
                                                   WholeImageRecord(std::move(copy), firstEntry_, next_));
    if (inverted != nullptr) {
        inverted->identifier = identifier;
        inverted->name = name;
    }
    return inverted;
}

bool WholeImageRecord::exchange(void* target) {
    if (target == nullptr)
        return false;
    static_cast<TextureCanvas*>(target)->SwapWith(*other_);
    next_ = {-next_.x, -next_.y};
    if (firstEntry_)
        std::swap(*firstEntry_->ofImage, firstEntry_->other);
    return true;
}

} // namespace dyeworks
