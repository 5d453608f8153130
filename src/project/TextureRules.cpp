#include "project/TextureRules.h"

#include "platform/Platform.h"
#include "project/CKeyValueStore.h"

#include <charconv>
#include <functional>
#include <string_view>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kLargestSize = "LargestSize";
constexpr const char* kPowersOfTwo = "PowersOfTwo";
constexpr const char* kTexelBytes = "TexelBytes";
constexpr const char* kBytesWithColours = "BytesWithColours";
constexpr const char* kBlockColours = "BlockColours";
constexpr const char* kFirstEntryTransparent = "FirstEntryTransparent";
constexpr const char* kIndexesInPalette = "IndexesInPalette";
constexpr const char* kAlphaZeroOrFull = "AlphaZeroOrFull";

constexpr const char* kStorePrefix = "Rules.";
constexpr const char* kSection = "Rules";

/// The value kept under a rule's name, if there is one.
using Look = std::function<std::optional<std::string>(const char* name)>;

/// A whole number from `lowest` to `highest`.
std::optional<std::int32_t> number(std::string_view text, std::int32_t lowest, std::int32_t highest) {
    std::int32_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    const bool good = error == std::errc() && stop == end && value >= lowest && value <= highest;
    return good ? std::optional(value) : std::nullopt;
}

std::optional<std::int32_t> bytes(const std::optional<std::string>& value) {
    return value ? number(*value, 1, TextureRules::kMostBytes) : std::nullopt;
}

struct Two {
    std::string_view first;
    std::string_view second;
};

/// What is on either side of the first blank.
Two halves(std::string_view text) {
    const std::size_t blank = text.find(' ');
    return blank == text.npos ? Two{text, {}} : Two{text.substr(0, blank), text.substr(blank + 1)};
}

std::optional<Size> size(const std::optional<std::string>& value) {
    const Two sides = halves(value ? std::string_view(*value) : std::string_view());
    const auto width = number(sides.first, 1, TextureRules::kLongestSide);
    const auto height = number(sides.second, 1, TextureRules::kLongestSide);
    return width && height ? std::optional(Size{*width, *height}) : std::nullopt;
}

std::optional<TextureRules::BlockColours> blockColours(const std::optional<std::string>& value) {
    const Two parts = halves(value ? std::string_view(*value) : std::string_view());
    const auto most = number(parts.first, 1, TextureRules::kMostColours);
    const auto side = number(parts.second, TextureRules::kSmallestBlock, TextureRules::kLargestBlock);
    return most && side ? std::optional(TextureRules::BlockColours{*most, *side}) : std::nullopt;
}

TextureRules read(const Look& look) {
    const auto isOn = [&](const char* name) { return look(name) == "1"; };
    TextureRules rules;
    rules.largestSize = size(look(kLargestSize));
    rules.powersOfTwo = isOn(kPowersOfTwo);
    rules.texelBytes = bytes(look(kTexelBytes));
    rules.bytesWithColours = bytes(look(kBytesWithColours));
    rules.blockColours = blockColours(look(kBlockColours));
    rules.firstEntryTransparent = isOn(kFirstEntryTransparent);
    rules.indexesInPalette = isOn(kIndexesInPalette);
    rules.alphaZeroOrFull = isOn(kAlphaZeroOrFull);
    return rules;
}

std::string two(std::int32_t first, std::int32_t second) {
    return std::to_string(first) + ' ' + std::to_string(second);
}

} // namespace

std::array<RuleText, kRuleCount> textsOf(const TextureRules& rules) {
    const auto mark = [](bool on) { return on ? std::optional<std::string>("1") : std::nullopt; };
    const auto numeral = [](std::optional<std::int32_t> value) {
        return value ? std::optional(std::to_string(*value)) : std::nullopt;
    };
    std::optional<std::string> largest;
    if (rules.largestSize)
        largest = two(rules.largestSize->width, rules.largestSize->height);
    std::optional<std::string> colours;
    if (rules.blockColours)
        colours = two(rules.blockColours->most, rules.blockColours->side);
    return {{{kLargestSize, largest},
             {kPowersOfTwo, mark(rules.powersOfTwo)},
             {kTexelBytes, numeral(rules.texelBytes)},
             {kBytesWithColours, numeral(rules.bytesWithColours)},
             {kBlockColours, colours},
             {kFirstEntryTransparent, mark(rules.firstEntryTransparent)},
             {kIndexesInPalette, mark(rules.indexesInPalette)},
             {kAlphaZeroOrFull, mark(rules.alphaZeroOrFull)}}};
}

TextureRules readRules(const CKeyValueStore& store) {
    return read([&](const char* name) -> std::optional<std::string> {
        std::string value;
        return store.GetValue(std::string(kStorePrefix) + name, value) ? std::optional(value) : std::nullopt;
    });
}

bool writeRules(CKeyValueStore& store, const TextureRules& rules) {
    bool changed = false;
    std::vector<std::string> off;
    for (const RuleText& rule : textsOf(rules)) {
        const std::string key = kStorePrefix + rule.name;
        std::string held;
        const bool isHeld = store.GetValue(key, held);
        changed = changed || isHeld != rule.value.has_value() || (isHeld && held != *rule.value);
        if (rule.value)
            store.SetValue(key, *rule.value);
        else
            off.push_back(key);
    }
    store.TakeValues(off, [](const std::string&) {});
    return changed;
}

TextureRules defaultRules() {
    return read([](const char* name) { return platform().profile().text(kSection, name); });
}

void setDefaultRules(const TextureRules& rules) {
    Profile& settings = platform().profile();
    for (const RuleText& rule : textsOf(rules)) {
        if (rule.value)
            settings.setText(kSection, rule.name, *rule.value);
        else
            settings.remove(kSection, rule.name);
    }
}

} // namespace dyeworks
