#include "palette/PaletteTips.h"

#include "platform/Text.h"

namespace dyeworks {

namespace {

constexpr std::size_t kTipCharacters = 127;

/// The first characters of a UTF-8 text.
std::string cut(std::string_view text, std::size_t characters) {
    std::size_t length = 0;
    for (std::size_t seen = 0; length < text.size(); ++length) {
        const bool begins = (static_cast<unsigned char>(text[length]) & 0xC0U) != 0x80U;
        if (begins && seen++ == characters)
            break;
    }
    return std::string(text.substr(0, length));
}

} // namespace

std::string PaletteTips::of(std::string_view own) const {
    return palette_.exists() ? cut(own, kTipCharacters) : text(StringId::PaletteNotOpenYet);
}

} // namespace dyeworks
