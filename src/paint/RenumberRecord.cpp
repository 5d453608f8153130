#include "paint/RenumberRecord.h"

#include "paint/CanvasRenumber.h"

#include <bitset>
#include <new>

namespace dyeworks {

namespace {

/// The map that leads back from the values for which `counts`; false when two of them come together.
template <typename Counts>
bool invert(const ByteTable& map, ByteTable& back, Counts counts) {
    std::bitset<256> taken;
    for (std::size_t value = 0; value < map.size(); ++value) {
        if (!counts(value))
            continue;
        if (taken.test(map[value]))
            return false;
        taken.set(map[value]);
        back[map[value]] = static_cast<std::uint8_t>(value);
    }
    return true;
}

} // namespace

std::unique_ptr<RenumberRecord>
RenumberRecord::make(const TextureCanvas& canvas, const TexelCounts::Values& counts, const ByteTable& map) {
    std::unique_ptr<RenumberRecord> record(new (std::nothrow) RenumberRecord);
    if (record == nullptr)
        return nullptr;
    record->forward_ = map;
    if (invert(map, record->back_, [](std::size_t /*value*/) { return true; }))
        return record;
    if (invert(map, record->back_, [&](std::size_t value) { return counts[value] > 0; }))
        return record;
    record->before_ = canvas.Clone();
    return record->before_ == nullptr ? nullptr : std::move(record);
}

bool RenumberRecord::undo(void* target) {
    auto* const canvas = static_cast<TextureCanvas*>(target);
    if (canvas == nullptr)
        return false;
    if (before_ != nullptr)
        return canvas->CopyFrom(*before_);
    renumber(*canvas, back_);
    return true;
}

bool RenumberRecord::redo(void* target) {
    auto* const canvas = static_cast<TextureCanvas*>(target);
    if (canvas == nullptr)
        return false;
    renumber(*canvas, forward_);
    return true;
}

std::unique_ptr<UndoRecord> RenumberRecord::inverse() const {
    std::unique_ptr<RenumberRecord> inverted(before_ != nullptr ? nullptr
                                                                : new (std::nothrow) RenumberRecord);
    if (inverted == nullptr)
        return nullptr;
    inverted->forward_ = back_;
    inverted->back_ = forward_;
    inverted->identifier = identifier;
    inverted->name = name;
    return inverted;
}

std::uint64_t RenumberRecord::bytes() const {
    return before_ == nullptr ? 0 : before_->block().size();
}

} // namespace dyeworks
