#include "palette/PaletteTips.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/TextCase.h"

namespace dyeworks {

namespace {

constexpr std::size_t kTipCharacters = 127;

} // namespace

std::string PaletteTips::of(std::string_view own) const {
    return palette_.exists() ? std::string(firstCharacters(own, kTipCharacters))
                             : text(StringId::PaletteNotOpenYet);
}

} // namespace dyeworks
