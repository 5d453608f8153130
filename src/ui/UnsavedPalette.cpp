#include "ui/UnsavedPalette.h"

#include "core/PaletteSet.h"

#include <memory>
#include <utility>

namespace dyeworks {

std::string addUnsavedPalette(PaletteSet& set, const TlutData& table, const std::string& name) {
    auto palette = std::make_unique<TextureLookupTable>(table);
    palette->path = "*" + (name.empty() ? std::string("palette") : name);
    palette->markUnsaved();
    set.add(std::move(palette));
    return set.currentKey;
}

} // namespace dyeworks
