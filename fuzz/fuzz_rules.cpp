#include "MemoryPlatform.h"
#include "Require.h"
#include "project/CKeyValueStore.h"
#include "project/TextureRules.h"

#include <cstdint>
#include <span>
#include <string>

using namespace dyeworks;

namespace {

void holdsToRanges(const TextureRules& rules) {
    const auto within = [](std::int32_t value, std::int32_t low, std::int32_t high) {
        require(value >= low && value <= high, "a rule keeps to its range");
    };
    if (rules.largestSize) {
        within(rules.largestSize->width, 1, TextureRules::kLongestSide);
        within(rules.largestSize->height, 1, TextureRules::kLongestSide);
    }
    within(rules.texelBytes.value_or(1), 1, TextureRules::kMostBytes);
    within(rules.bytesWithColours.value_or(1), 1, TextureRules::kMostBytes);
    if (rules.blockColours) {
        within(rules.blockColours->most, 1, TextureRules::kMostColours);
        within(rules.blockColours->side, TextureRules::kSmallestBlock, TextureRules::kLargestBlock);
    }
}

} // namespace

/// The rules in a project's file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const MemoryPlatform platform;
    CKeyValueStore store;
    store.LoadBytes(std::as_bytes(std::span(data, size)));
    const TextureRules rules = readRules(store);
    holdsToRanges(rules);

    writeRules(store, rules);
    require(readRules(store) == rules, "rules are kept as they were");
    require(!writeRules(store, rules), "rules that are kept are the same rules");
    const std::string text = store.FileText();
    CKeyValueStore again;
    again.LoadBytes(std::as_bytes(std::span(text)));
    require(readRules(again) == rules, "rules come back from a file");
    return 0;
}
