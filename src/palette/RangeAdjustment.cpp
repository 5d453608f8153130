#include "palette/RangeAdjustment.h"

#include "core/PaletteSet.h"
#include "palette/EntryOperations.h"
#include "palette/PaletteBarState.h"

#include <utility>

namespace dyeworks {

RangeAdjustment::RangeAdjustment(PaletteBarState& state, PaletteBarHost& host, std::string key,
                                 EntryRange range)
    : state_(state)
    , host_(host)
    , key_(std::move(key))
    , range_(range)
    , before_(host_.paletteSet()->palettes.at(key_)->table) {}

RangeAdjustment::~RangeAdjustment() {
    if (isShown_)
        state_.endPassing(key_);
}

TextureLookupTable* RangeAdjustment::palette() const {
    // Another file may be handed to the program at any time.
    const auto& palettes = host_.paletteSet()->palettes;
    const auto position = palettes.find(key_);
    return position != palettes.end() && position->second->table == before_ ? position->second.get()
                                                                            : nullptr;
}

void RangeAdjustment::choose(const EntryAdjustment& adjustment) {
    chosen_ = adjustment;
    const TextureLookupTable* const stored = palette();
    if (stored == nullptr)
        return;
    TextureLookupTable copy(*stored);
    copy.table = result();
    state_.showPassing(key_, copy);
    isShown_ = true;
}

TlutData RangeAdjustment::result() const {
    TlutData table = before_;
    adjustEntries(table, range_, chosen_);
    return table;
}

} // namespace dyeworks
