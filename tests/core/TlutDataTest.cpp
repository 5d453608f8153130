#include "core/TlutData.h"

#include <gmock/gmock.h>

#include <span>

using namespace dyeworks;
using testing::Each;
using testing::ElementsAre;

namespace {

constexpr auto kRgba = ColourType::Rgba;
constexpr auto kIa = ColourType::Ia;
constexpr auto kUnknown = static_cast<ColourType>(2);

std::span<const std::uint16_t> entriesOf(const TlutData& table) {
    return {table.entries, static_cast<std::size_t>(table.count)};
}

TlutData filled(std::int32_t count, ColourType type, std::uint16_t entry) {
    TlutData table;
    EXPECT_TRUE(table.create(count, type));
    for (std::int32_t i = 0; i < count; ++i)
        table.setEntry(i, entry);
    return table;
}

} // namespace

TEST(TlutData, DefaultsAreTheSixteenColoursOrARampThatEndsAt255) {
    TlutData table;
    ASSERT_TRUE(table.create(256, kRgba));
    EXPECT_THAT(entriesOf(table).first(16),
                ElementsAre(0x0000, 0x7800, 0x03C0, 0x7BC0, 0x001E, 0x781E, 0x03DE, 0x7BDE, 0xBDEE, 0xF800,
                            0x07C0, 0xFFC0, 0x003E, 0xF83E, 0x07FE, 0xFFFE));
    for (std::int32_t i = 16; i < 256; ++i)
        ASSERT_EQ(table.getEntry(i), table.getEntry(i % 16)) << i;
    ASSERT_TRUE(table.create(16, kIa));
    for (std::int32_t i = 0; i < 16; ++i)
        ASSERT_EQ(table.getEntry(i), (16 * i + 15) << 8) << i;
    ASSERT_TRUE(table.create(3, kUnknown));
    EXPECT_THAT(entriesOf(table), Each(0));
    EXPECT_TRUE(table.create(0, kRgba));
    EXPECT_FALSE(table.create(-1, kRgba));
    EXPECT_EQ(table.count, 0);
}

TEST(TlutData, SettersKeepTheOtherBitsAndTheLowBitsOfTheValue) {
    const struct {
        bool (TlutData::*set)(std::int32_t, std::int32_t);
        ColourType type;
        std::uint16_t before;
        std::int32_t value;
        bool result;
        std::uint16_t after;
    } cases[] = {
        {&TlutData::setRed, kRgba, 0xFFFF, 40, true, 0x47FF},
        {&TlutData::setGreen, kRgba, 0xFFFF, 1, true, 0xF87F},
        {&TlutData::setBlue, kRgba, 0xFFFF, -32, true, 0xFFC1},
        {&TlutData::setAlpha, kRgba, 0x0000, -1, true, 0x0001},
        {&TlutData::setAlpha, kRgba, 0xFFFF, 2, true, 0xFFFE},
        {&TlutData::setIntensity, kIa, 0x1234, 0x1AB, true, 0xAB34},
        {&TlutData::setAlpha, kIa, 0x1234, 0x1AB, true, 0x12AB},
        {&TlutData::setRed, kIa, 0x1234, 5, false, 0x1234},
        {&TlutData::setIntensity, kRgba, 0x1234, 5, false, 0x1234},
        {&TlutData::setAlpha, kUnknown, 0x1234, 5, false, 0x1234},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        TlutData table = filled(2, c.type, c.before);
        EXPECT_EQ((table.*c.set)(1, c.value), c.result);
        EXPECT_FALSE((table.*c.set)(2, c.value) || (table.*c.set)(-1, c.value));
        EXPECT_THAT(entriesOf(table), ElementsAre(c.before, c.after));
    }
}

TEST(TlutData, CopiesTheEntriesThatBothHave) {
    TlutData small = filled(2, kRgba, 7);
    TlutData large = filled(4, kIa, 9);
    EXPECT_EQ(large.copyEntriesFrom(small), 2);
    EXPECT_THAT(entriesOf(large), ElementsAre(7, 7, 9, 9));
    EXPECT_EQ(small.copyEntriesFrom(large), 2);
    EXPECT_EQ(small.copyEntriesFrom(nullptr) + small.copyEntriesFrom(TlutData()), 0);
    EXPECT_EQ(TlutData(), TlutData());
}
