#include "paint/TextureCanvas.h"
#include "platform/fake/FakePlatform.h"
#include "project/CKeyValueStore.h"
#include "project/RuleCheck.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <tuple>

namespace dyeworks {
namespace {

const TextureRules kAll{Size{64, 32}, true, 1024, 1100, TextureRules::BlockColours{3, 8}, true, true, true};

TEST(Rules, LieBesideForeignLinesAndComeBack) {
    FakePlatform fake;
    CKeyValueStore store;
    for (const char* line : {"# note", "Rules.Theirs = 1", "Rules.TexelBytes = many", "Rules.LargestSize=9"})
        store.AddLine(line);
    EXPECT_EQ(readRules(store), TextureRules{});
    EXPECT_EQ(store.LineCount(), 4U) << "reading leaves what is damaged";
    EXPECT_TRUE(writeRules(store, kAll));
    EXPECT_FALSE(writeRules(store, kAll));
    ASSERT_TRUE(store.SaveFile("c:\\a.tpf"));
    CKeyValueStore again;
    ASSERT_TRUE(again.LoadFile("c:\\a.tpf"));
    EXPECT_EQ(readRules(again), kAll);
    EXPECT_TRUE(writeRules(again, {}));
    EXPECT_EQ(again.lines(), (std::vector<StoreLine>{{"# note"}, {"Rules.Theirs", "=", "1"}}));
    setDefaultRules(kAll);
    EXPECT_EQ(defaultRules(), kAll);
    setDefaultRules({});
    EXPECT_EQ(defaultRules(), TextureRules{});
}

/// One finding in a form that can be compared: rule, texels, entry, values.
using Plain = std::tuple<Rule, std::optional<std::array<int, 4>>, std::optional<int>, std::array<int, 4>>;

std::set<Plain> plainCheck(const TextureRules& rules, const TextureCanvas& image, const TlutData& palette,
                           int first) {
    std::set<Plain> broken;
    const int width = image.width();
    const int height = image.height();
    const int colours = image.bitsPerPixel() == 4 ? 16 : palette.count;
    const int bytes = ((width * image.bitsPerPixel() + 7) / 8 * height + 3) / 4 * 4;
    if (width > rules.largestSize->width || height > rules.largestSize->height)
        broken.insert({Rule::LargestSize, {}, {}, {width, height, 64, 32}});
    if ((width & (width - 1)) != 0 || (height & (height - 1)) != 0)
        broken.insert({Rule::PowersOfTwo, {}, {}, {width, height}});
    if (bytes > *rules.texelBytes)
        broken.insert({Rule::TexelBytes, {}, {}, {bytes, 1024}});
    if (bytes + 2 * colours > *rules.bytesWithColours)
        broken.insert({Rule::BytesWithColours, {}, {}, {bytes + 2 * colours, 1100}});
    std::map<std::pair<int, int>, std::set<int>> blocks;
    std::map<int, std::vector<std::pair<int, int>>> strays;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int index = static_cast<int>(image.GetPixel(x, y));
            blocks[{x / 8, y / 8}].insert(index);
            if (first + index >= palette.count)
                strays[index].emplace_back(x, y);
        }
    }
    for (const auto& [at, seen] : blocks) {
        const int left = at.first * 8;
        const int top = at.second * 8;
        const std::array area{left, top, std::min(left + 7, width - 1), std::min(top + 7, height - 1)};
        if (seen.size() > 3)
            broken.insert({Rule::BlockColours, area, {}, {static_cast<int>(seen.size()), 3}});
    }
    for (const auto& [index, places] : strays) {
        std::array around{width, height, 0, 0};
        for (const auto& [x, y] : places)
            around = {std::min(around[0], x), std::min(around[1], y), std::max(around[2], x),
                      std::max(around[3], y)};
        broken.insert(
            {Rule::IndexesInPalette, around, {}, {index, static_cast<int>(places.size()), palette.count}});
    }
    for (int i = first; i < std::min(first + colours, palette.count); ++i) {
        const int alpha = palette.getAlpha(i);
        if (i == first && alpha != 0)
            broken.insert({Rule::FirstEntryTransparent, {}, i, {alpha}});
        if (palette.colourType == ColourType::Ia && alpha != 0 && alpha != 255)
            broken.insert({Rule::AlphaZeroOrFull, {}, i, {alpha}});
    }
    return broken;
}

std::set<Plain> plain(const RuleReport& report) {
    std::set<Plain> broken;
    for (const RuleFindings& findings : report) {
        EXPECT_EQ(findings.count, static_cast<std::int64_t>(findings.first.size()));
        for (const RuleFinding& each : findings.first) {
            std::optional<std::array<int, 4>> area;
            if (const auto& at = each.texels)
                area = {at->left, at->top, at->right, at->bottom};
            std::array<int, 4> values{};
            std::ranges::transform(each.values, values.begin(), [](auto v) { return static_cast<int>(v); });
            broken.insert({each.rule, area, each.entry, values});
        }
    }
    return broken;
}

TEST(RuleCheck, FindsWhatASlowCheckFinds) {
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 300; ++round) {
        const std::uint16_t bits = below(2) == 0 ? 4 : 8;
        TextureCanvas image;
        ASSERT_TRUE(image.Create(1 + below(70), 1 + below(40), 1, bits));
        const int used = 1 + below(bits == 4 ? 16 : 120);
        for (int n = below(60); n > 0; --n)
            image.SetPixel(below(image.width()), below(image.height()), static_cast<unsigned>(below(used)));
        TlutData palette;
        ASSERT_TRUE(palette.create(1 + below(90), below(2) == 0 ? ColourType::Ia : ColourType::Rgba));
        for (int i = 0; i < palette.count; ++i)
            palette.setAlpha(i, below(3) * 255 / (1 + below(2)));
        const int first = bits == 4 ? 16 * below(4) : 0;
        const auto report = checkRules(kAll, image, &palette, first);
        ASSERT_EQ(plain(*report), plainCheck(kAll, image, palette, first)) << round;
    }
}

TEST(RuleCheck, KeepsTheFirstOfManyAndCanBeStopped) {
    TextureCanvas image;
    ASSERT_TRUE(image.Create(100, 100, 1, 4));
    for (int i = 0; i < 100 * 100; ++i)
        image.SetPixel(i % 100, i / 100, static_cast<unsigned>(i % 7));
    TextureRules rules;
    rules.blockColours = {1, 2};
    const RuleReport report = checkRules(rules, image, nullptr, 0).value();
    const RuleFindings& blocks = report[static_cast<std::size_t>(Rule::BlockColours)];
    EXPECT_EQ(blocks.count, 2500);
    ASSERT_EQ(blocks.first.size(), RuleFindings::kMost);
    EXPECT_EQ(blocks.first.back().texels, (Rect{98, 2, 99, 3}));
    EXPECT_FALSE(checkRules(rules, image, nullptr, 0, [] { return false; }));
}

} // namespace
} // namespace dyeworks
