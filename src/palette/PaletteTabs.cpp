#include "palette/PaletteTabs.h"

#include "core/PaletteSet.h"
#include "platform/Files.h"
#include "platform/StringId.h"
#include "platform/Text.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

void PaletteTabs::rebuild(const std::vector<std::string>& keys) {
    tabs_.clear();
    for (const std::string& key : keys)
        tabs_.push_back({key, {}, false});
    readTitles();
}

bool PaletteTabs::readTitles() {
    bool changed = false;
    for (Tab& tab : tabs_) {
        Tab now{tab.key, {}, false};
        if (const TextureLookupTable* const palette = host_.paletteSet()->lookup(std::as_const(tab.key)))
            now = {tab.key, palette->title, palette->hasUnsavedChanges()};
        changed = changed || now != tab;
        tab = std::move(now);
    }
    return changed;
}

std::int32_t PaletteTabs::current() const {
    const auto tab = std::ranges::find(tabs_, host_.paletteSet()->currentKey, &Tab::key);
    return tab == tabs_.end() ? -1 : static_cast<std::int32_t>(tab - tabs_.begin());
}

std::string PaletteTabs::tip(std::int32_t index, const PaletteTips& tips) const {
    const Tab& tab = tabs_[static_cast<std::size_t>(index)];
    const std::string key = tips.of(displayPath(tab.key));
    return tab.unsaved ? key + "\n" + text(StringId::PaletteUnsaved) : key;
}

} // namespace dyeworks
