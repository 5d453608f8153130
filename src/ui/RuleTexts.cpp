#include "ui/RuleTexts.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QLocale>

#include <array>
#include <cstddef>
#include <string>

namespace dyeworks {

namespace {

struct Words {
    StringId name;
    StringId reason;
};

/// By `Rule`.
constexpr std::array<Words, kRuleCount> kWords{{
    {StringId::FindingLargestSize, StringId::FindingTooLarge},
    {StringId::FindingPowersOfTwo, StringId::FindingNotPowers},
    {StringId::FindingTexelBytes, StringId::FindingTooManyBytes},
    {StringId::FindingBytesWithColours, StringId::FindingTooManyBytes},
    {StringId::FindingBlockColours, StringId::FindingTooManyColours},
    {StringId::FindingFirstEntryTransparent, StringId::FindingNotTransparent},
    {StringId::FindingIndexesInPalette, StringId::FindingMissingEntry},
    {StringId::FindingAlphaZeroOrFull, StringId::FindingHalfTransparent},
}};

const Words& wordsOf(Rule rule) {
    return kWords.at(static_cast<std::size_t>(rule));
}

/// The way the user's country writes numbers.
std::string numeral(std::int64_t value) {
    return QLocale().toString(static_cast<qlonglong>(value)).toStdString();
}

} // namespace

QString ruleName(Rule rule) {
    return shown(wordsOf(rule).name);
}

QString placeText(const RuleFinding& finding) {
    if (finding.entry)
        return shown(StringId::FindingEntry, {numeral(*finding.entry)});
    if (!finding.texels)
        return shown(StringId::FindingWholeImage);
    const Rect& at = *finding.texels;
    if (at.left == at.right && at.top == at.bottom)
        return shown(StringId::FindingTexel, {std::to_string(at.left), std::to_string(at.top)});
    return shown(StringId::FindingTexels, {std::to_string(at.left), std::to_string(at.top),
                                           std::to_string(at.right), std::to_string(at.bottom)});
}

QString reasonText(const RuleFinding& finding) {
    const auto& [first, second, third, fourth] = finding.values;
    if (finding.rule == Rule::IndexesInPalette && second == 1)
        return shown(StringId::FindingMissingEntryOfOne, {numeral(first), numeral(third)});
    return shown(wordsOf(finding.rule).reason,
                 {numeral(first), numeral(second), numeral(third), numeral(fourth)});
}

QString moreText(std::int64_t count) {
    return shown(StringId::FindingMore, {numeral(count)});
}

} // namespace dyeworks
