#include "platform/ByteLookUp.h"

#include <gtest/gtest.h>

#include <random>

namespace dyeworks {
namespace {

TEST(ByteLookUp, AllWaysDoToAnyPartWhatTheTableSaysAndNothingBesideIt) {
    std::mt19937 random(3);
    for (std::size_t turn = 0; turn < 400; ++turn) {
        ByteTable table{};
        for (std::uint8_t& value : table)
            value = static_cast<std::uint8_t>(random());
        std::vector<std::uint8_t> before(turn + 70);
        for (std::uint8_t& value : before)
            value = static_cast<std::uint8_t>(random());
        const std::size_t first = random() % 70;
        std::vector<std::uint8_t> expected = before;
        for (std::size_t i = first; i < first + turn; ++i)
            expected[i] = table[before[i]];
        for (const ByteLookUp way : byteLookUps()) {
            std::vector<std::uint8_t> bytes = before;
            way({bytes.data() + first, turn}, table);
            ASSERT_EQ(bytes, expected) << turn;
        }
    }
}

} // namespace
} // namespace dyeworks
