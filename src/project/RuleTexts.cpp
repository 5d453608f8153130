#include "project/RuleTexts.h"

#include "platform/StringId.h"
#include "platform/Text.h"

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

} // namespace

std::string ruleName(Rule rule) {
    return text(wordsOf(rule).name);
}

std::string placeText(const RuleFinding& finding, const Numeral& numeral) {
    if (finding.entry)
        return text(StringId::FindingEntry, {numeral(*finding.entry)});
    if (!finding.texels)
        return text(StringId::FindingWholeImage);
    const Rect& at = *finding.texels;
    if (at.left == at.right && at.top == at.bottom)
        return text(StringId::FindingTexel, {std::to_string(at.left), std::to_string(at.top)});
    return text(StringId::FindingTexels, {std::to_string(at.left), std::to_string(at.top),
                                          std::to_string(at.right), std::to_string(at.bottom)});
}

std::string reasonText(const RuleFinding& finding, const Numeral& numeral) {
    const auto& [first, second, third, fourth] = finding.values;
    if (finding.rule == Rule::IndexesInPalette && second == 1)
        return text(StringId::FindingMissingEntryOfOne, {numeral(first), numeral(third)});
    return text(wordsOf(finding.rule).reason,
                {numeral(first), numeral(second), numeral(third), numeral(fourth)});
}

} // namespace dyeworks
