#include "ui/PalettePanelState.h"

#include <algorithm>
#include <cstdio>

namespace dyeworks {

void PalettePanelState::show(const TextureLookupTable* palette, const std::optional<Image>& image) {
    const std::int32_t count = palette == nullptr ? 0 : palette->table.count;
    columns_ = count == 256 ? 16 : count == 0 ? 0 : 4;
    bankMode_ = count == 256 && image && image->bits == 4;
    bank_ = bankMode_ ? std::clamp(image->paletteValue / kBankSize, 0, kLastBank) : 0;
    cell_ = count == 0 ? -1 : std::clamp(cell_, 0, count - 1);
}

bool PalettePanelState::chooseCell(std::int32_t cell) {
    cell_ = cell;
    if (!bankMode_ || cell / kBankSize == bank_)
        return false;
    bank_ = cell / kBankSize;
    return true;
}

bool PalettePanelState::chooseBank(std::int32_t bank) {
    const std::int32_t chosen = std::clamp(bank, 0, kLastBank);
    if (!bankMode_ || chosen == bank_)
        return false;
    bank_ = chosen;
    cell_ = kBankSize * bank_ + std::max(cell_, 0) % kBankSize;
    return true;
}

std::vector<std::uint32_t> PalettePanelState::colours(const TextureLookupTable& palette) {
    std::vector<std::uint32_t> result;
    result.reserve(static_cast<std::size_t>(palette.table.count));
    for (std::int32_t i = 0; i < palette.table.count; ++i) {
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;
        std::uint8_t flags = 0;
        palette.toPaletteEntry(i, red, green, blue, flags);
        result.push_back(0xff000000U | std::uint32_t{red} << 16U | std::uint32_t{green} << 8U | blue);
    }
    return result;
}

std::string PalettePanelState::describe(const TextureLookupTable& palette, std::int32_t entry) {
    const TlutData& table = palette.table;
    if (entry < 0 || entry >= table.count)
        return {};
    char line[64];
    const unsigned value = table.getEntry(entry);
    if (table.colourType == ColourType::Ia)
        std::snprintf(line, sizeof line, "%d  #%04X  I%d A%d", entry, value, table.getIntensity(entry),
                      table.getAlpha(entry));
    else
        std::snprintf(line, sizeof line, "%d  #%04X  R%d G%d B%d A%d", entry, value, table.getRed(entry),
                      table.getGreen(entry), table.getBlue(entry), table.getAlpha(entry));
    return line;
}

} // namespace dyeworks
