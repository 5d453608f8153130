#include "platform/BarTexts.h"
#include "platform/ExchangeTexts.h"
#include "platform/FileTexts.h"
#include "platform/FindingTexts.h"
#include "platform/ImageTexts.h"
#include "platform/OrderTexts.h"
#include "platform/PaletteTexts.h"
#include "platform/ProjectTexts.h"
#include "platform/ReasonTexts.h"
#include "platform/RuleTexts.h"
#include "platform/SheetTexts.h"
#include "platform/ShortcutTexts.h"
#include "platform/StepTexts.h"
#include "platform/StringId.h"
#include "platform/Text.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <iterator>
#include <span>

namespace dyeworks {

namespace {

/// In the order of StringId.
constexpr std::span<const TextRow> kTextTables[] = {
    kFileTexts,   kOrderTexts,   kExchangeTexts, kImageTexts,    kFindingTexts, kBarTexts,     kStepTexts,
    kReasonTexts, kPaletteTexts, kSheetTexts,    kShortcutTexts, kRuleTexts,    kProjectTexts,
};

constexpr bool textsStandAtTheirNumber() {
    std::size_t number = 0;
    for (const std::span<const TextRow> table : kTextTables) {
        for (const TextRow& row : table) {
            if (static_cast<std::size_t>(row.id) != number++)
                return false;
        }
    }
    return number == static_cast<std::size_t>(StringId::Count);
}
static_assert(textsStandAtTheirNumber(), "every StringId needs its text, in the order of StringId");

} // namespace

const char* englishText(StringId id) {
    assert(id < StringId::Count);
    // The table that begins last of those that begin at or before the text.
    const auto after = std::ranges::upper_bound(
        kTextTables, id, {}, [](std::span<const TextRow> table) { return table.front().id; });
    const std::span<const TextRow> table = *std::prev(after);
    return table[static_cast<std::size_t>(id) - static_cast<std::size_t>(table.front().id)].english;
}

} // namespace dyeworks
