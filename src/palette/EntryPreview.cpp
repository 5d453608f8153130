#include "palette/EntryPreview.h"

#include "core/PaletteSet.h"

#include <utility>

namespace dyeworks {

void EntryPreview::show(std::optional<std::int32_t> index, const EditedEntry& entry) {
    const std::string& current = host_.paletteSet()->currentKey;
    if (key_ != current)
        end();
    if (!index || !on_ || !shown_)
        return end();
    TextureLookupTable copy(*palette_.get());
    copy.setEntry(*index, entry.value());
    host_.BroadcastPaletteChange(current, copy);
    key_ = entry.pending() ? current : std::string();
}

void EntryPreview::end() {
    const std::string key = std::exchange(key_, std::string());
    const auto& palettes = host_.paletteSet()->palettes;
    // A palette that is gone has no images any more.
    if (const auto position = palettes.find(key); position != palettes.end())
        host_.BroadcastPaletteChange(key, *position->second);
}

void EntryPreview::turnOn(std::optional<std::int32_t> index, const EditedEntry& entry) {
    on_ = true;
    show(index, entry);
}

void EntryPreview::turnOff() {
    on_ = false;
    key_.clear();
    host_.RefreshImagePalettes();
}

bool EntryPreview::setShown(bool shown) {
    if (std::exchange(shown_, shown) == shown)
        return false;
    if (!shown)
        end();
    return true;
}

} // namespace dyeworks
