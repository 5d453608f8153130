#include "platform/LargeBlock.h"

#include <gtest/gtest.h>

namespace dyeworks {
namespace {

std::size_t prepared = 0;

TEST(LargeBlock, IsPreparedByTheHostAndASmallOneIsNot) {
    constexpr std::size_t kLarge = std::size_t{32} << 20U;
    setPrepareBlock([](void*, std::size_t bytes) noexcept { prepared += bytes; });
    char block = 0;
    prepareBlock(&block, kLarge - 1);
    prepareBlock(nullptr, kLarge);
    EXPECT_EQ(prepared, 0U);
    prepareBlock(&block, kLarge);
    EXPECT_EQ(prepared, kLarge);
    setPrepareBlock(nullptr);
    prepareBlock(&block, kLarge);
    EXPECT_EQ(prepared, kLarge);
}

} // namespace
} // namespace dyeworks
