#include "palette/EntryUsage.h"

#include "core/TlutData.h"
#include "palette/AttachedImage.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dyeworks {
namespace {

using testing::ElementsAre;

TEST(EntryUsage, AddsUpImagesThroughTheirBanksAsFarAsThePaletteReaches) {
    AttachedImage inBank{"bank", 16, 16, {5, 0, 7}};
    AttachedImage whole{"whole", 256, 0, {}};
    whole.texels.fill(1);
    const EntryCounts all = useOfEntries({inBank, whole}, 256);
    EXPECT_THAT((std::vector(all.begin() + 15, all.begin() + 20)), ElementsAre(1, 6, 1, 8, 1));
    const EntryCounts few = useOfEntries({inBank, whole}, 17);
    EXPECT_EQ(few[16], 6U);
    EXPECT_EQ(few[17], 0U);
}

TEST(EntryUsage, RemarksTwinsOfTheSameGroupAndClearEntriesInUse) {
    const FakePlatform platform;
    TlutData table;
    ASSERT_TRUE(table.create(32, ColourType::Rgba));
    for (std::int32_t i = 0; i < 32; ++i)
        table.setEntry(i, static_cast<std::uint16_t>(2 * i + 1));
    table.setEntry(18, table.getEntry(2));
    table.setEntry(9, table.getEntry(2));
    table.setEntry(4, 0x1230);
    table.setEntry(5, 0x1230);
    EntryCounts usage{};
    usage.fill(1);
    usage[5] = 0;
    usage[2] = 12;
    const auto said = [&](std::int32_t group, std::size_t entry) {
        return describe(entryRemarks(table, usage, group).at(entry));
    };
    usage[0] = 3;
    EXPECT_EQ(said(16, 0), "3 texels");
    EXPECT_EQ(said(16, 2), "12 texels, same as entry 9");
    EXPECT_EQ(said(16, 18), "1 texel");
    EXPECT_EQ(said(32, 18), "1 texel, same as entry 2");
    EXPECT_EQ(said(16, 4), "1 texel, same as entry 5, fully transparent");
    EXPECT_EQ(said(16, 5), "not used, same as entry 4");
    table.colourType = ColourType::Ia;
    EXPECT_EQ(said(16, 4), "1 texel, same as entry 5");
}

} // namespace
} // namespace dyeworks
