#include "palette/EntryOrder.h"

#include "core/TlutData.h"
#include "palette/EntryOrderPlan.h"
#include "palette/EntryShade.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>

namespace dyeworks {
namespace {

using Places = std::array<std::int32_t, 6>;

/// Two banks. The entries from 14 on are red, white, green, a dark grey, red and blue; around them is more
/// red.
class EntryOrders : public testing::Test {
protected:
    EntryOrders() {
        EXPECT_TRUE(table_.create(32, ColourType::Rgba));
        std::int32_t entry = 13;
        for (const int value : {0xF801, 0xF801, 0xFFFF, 0x07C1, 0x0843, 0xF801, 0x003F, 0xF801})
            table_.setEntry(entry++, static_cast<std::uint16_t>(value));
        use_[15] = use_[18] = 5;
        use_[17] = 9;
    }

    /// Where the entries 14 to 19 go. The table follows, and all others stay.
    std::optional<Places> placed(const EntryOrder& order) {
        const auto map = mapOf(order, table_, use_);
        if (!map)
            return std::nullopt;
        TlutData after(table_);
        map->applyTo(after);
        Places places{};
        for (std::int32_t entry = 0; entry < 32; ++entry) {
            EXPECT_EQ(after.getEntry(map->to(entry)), table_.getEntry(entry));
            if (entry >= 14 && entry < 20)
                places.at(static_cast<std::size_t>(entry) - 14) = map->to(entry);
            else
                EXPECT_EQ(map->to(entry), entry);
        }
        return places;
    }

    TlutData table_;
    EntryCounts use_{};
};

TEST_F(EntryOrders, PutEachEntryWhereItBelongs) {
    using O = EntryOperation;
    using K = EntrySortKey;
    constexpr EntryRange kAll{14, 19};
    constexpr Places kSame{14, 15, 16, 17, 18, 19};
    const struct {
        EntryOrder order;
        std::optional<Places> places;
    } cases[] = {
        {{.range = kAll}, {{16, 19, 18, 14, 17, 15}}},
        {{.range = kAll, .reversed = true}, {{16, 14, 15, 19, 17, 18}}},
        {{.range = kAll, .insideBanks = true}, {{14, 15, 19, 16, 18, 17}}},
        {{.range = kAll, .kept = 1U << 17}, {{15, 19, 18, 17, 16, 14}}},
        {{.range = kAll, .key = K::Hue}, {{16, 15, 18, 14, 17, 19}}},
        {{.range = kAll, .key = K::Use}, {{17, 15, 18, 14, 16, 19}}},
        {{.range = kAll, .key = K::Value}, {{17, 19, 15, 16, 18, 14}}},
        {{.operation = O::MergeTwins, .range = kAll}, {{14, 15, 16, 17, 14, 19}}},
        {{.operation = O::MergeTwins, .range = kAll, .insideBanks = true}, kSame},
        {{.operation = O::MergeTwins, .range = kAll, .kept = 1U << 18}, kSame},
        {{.operation = O::Compact, .range = kAll}, {{17, 14, 18, 15, 16, 19}}},
        {{.operation = O::Compact, .range = kAll, .insideBanks = true}, {{15, 14, 18, 16, 17, 19}}},
        {{.operation = O::Move, .range = {14, 15}, .target = 17}, {{17, 18, 14, 15, 16, 19}}},
        {{.operation = O::Move, .range = {17, 19}, .target = 14}, {{17, 18, 19, 14, 15, 16}}},
        {{.operation = O::Swap, .range = {14, 15}, .target = 16}, {{16, 17, 14, 15, 18, 19}}},
        {{.operation = O::Swap, .range = {16, 17}, .target = 14}, {{16, 17, 14, 15, 18, 19}}},
        {{.operation = O::Swap, .range = {14, 15}, .target = 14}, kSame},
        {{.operation = O::Swap, .range = {14, 15}, .target = 15}, {}},
        {{.operation = O::Swap, .range = {15, 16}, .target = 14}, {}},
        {{.operation = O::Move, .range = {14, 15}, .target = 31}, {}},
        {{.operation = O::Move, .range = {14, 15}, .target = -1}, {}},
        {{.range = {14, 32}}, {}},
        {{.range = {-1, 3}}, {}},
        {{.range = {3, 2}}, {}},
        {{.range = {31, 31}}, kSame},
    };
    for (const auto& each : cases)
        EXPECT_EQ(placed(each.order), each.places) << &each - cases;
}

TEST_F(EntryOrders, AreDoneWhenAllImagesCanFollow) {
    AttachedImage inBank{"bank", 16, 16, {}};
    inBank.texels[1] = 3;
    AttachedImage whole{"whole", 256, 0, {}};
    whole.texels.fill(1);
    const EntryOrder across{.operation = EntryOperation::Swap, .range = {14, 15}, .target = 16};
    const EntryOrderPlan leaving = planOf(across, table_, {whole, inBank});
    EXPECT_TRUE(leaving.leavesBank());
    EXPECT_FALSE(leaving.canBeDone());
    EXPECT_EQ(leaving.images[0].follows.beyond, 224U);
    EXPECT_EQ(leaving.images[1].follows.leaving, 3U);
    EXPECT_EQ(leaving.images[1].bank, 1);
    EXPECT_THAT((std::vector(leaving.images[0].follows.values.begin() + 13,
                             leaving.images[0].follows.values.begin() + 19)),
                testing::ElementsAre(13, 16, 17, 14, 15, 18));

    std::swap(inBank.texels[1], inBank.texels[15]);
    const EntryOrderPlan following = planOf(across, table_, {whole, inBank});
    EXPECT_TRUE(following.canBeDone()) << "values that no texel has stay in the bank";
    EXPECT_TRUE(following.images[1].follows.affected);
    EXPECT_EQ(following.images[1].follows.values, ByteTable(planFollowing(inBank, EntryMap(32)).values));
    EXPECT_FALSE(planOf({.range = {3, 3}}, table_, {whole}).canBeDone());
    EXPECT_FALSE(planOf({.range = {3, 2}}, table_, {whole}).canBeDone());
    EXPECT_TRUE(showBanks({whole, inBank}, table_));
    EXPECT_FALSE(showBanks({whole}, table_));
}

TEST(EntryOrder, ReadsEntriesAsAPersonWritesThem) {
    const auto read = [](const char* text) {
        const std::optional<EntrySet> entries = parseEntries(text, 32);
        return entries ? std::optional(entries->to_ullong()) : std::nullopt;
    };
    EXPECT_EQ(read(""), 0U);
    EXPECT_EQ(read(" 0, 5 ,30 - 31"), 0xC0000021U);
    EXPECT_EQ(read("7-7,"), 0x80U);
    for (const char* wrong : {"a", "32", "3-2", "1,,2", "-1", "+1", "1-2-3", "1 2", "1-", ","})
        EXPECT_EQ(read(wrong), std::nullopt) << wrong;
}

TEST(EntryShade, IsThatOfTheColourOnTheDisplay) {
    const struct {
        std::uint16_t entry;
        EntryShade shade;
    } cases[] = {{0xF801, {51.79, 102.39, 40.00}},  {0x07C0, {85.57, 117.28, 136.02}},
                 {0x003F, {31.29, 131.01, 306.29}}, {0x1001, {1.00, 4.73, 19.41}},
                 {0x0883, {3.97, 4.47, 144.44}},    {0x0843, {2.19, 0, 0}}};
    for (const auto& [entry, wanted] : cases) {
        const EntryShade shade = shadeOf(ColourType::Rgba, entry);
        EXPECT_NEAR(shade.lightness, wanted.lightness, 0.01) << entry;
        EXPECT_NEAR(shade.chroma, wanted.chroma, 0.01) << entry;
        if (wanted.chroma > 0) {
            EXPECT_NEAR(shade.hue, wanted.hue, 0.01) << entry;
        }
    }
}

} // namespace
} // namespace dyeworks
