#include "core/EntryText.h"

#include "core/TlutData.h"
#include "platform/StringId.h"
#include "platform/Text.h"

namespace dyeworks {

std::string toldColour(const TlutData& table, std::int32_t entry) {
    if (entry < 0 || entry >= table.count)
        return text(StringId::ColourToldNone);
    const std::string alpha = std::to_string(table.getAlpha(entry));
    if (table.colourType == ColourType::Ia)
        return text(StringId::ColourToldIa, {std::to_string(table.getIntensity(entry)), alpha});
    return text(StringId::ColourToldRgba,
                {std::to_string(table.getRed(entry)), std::to_string(table.getGreen(entry)),
                 std::to_string(table.getBlue(entry)), alpha});
}

std::string toldEntry(const TlutData& table, std::int32_t entry) {
    return text(StringId::EntryTold, {std::to_string(entry), toldColour(table, entry)});
}

} // namespace dyeworks
