#pragma once

#include "paint/PixelAccess.h"
#include "paint/WordScan.h"

#include <bit>
#include <cstdint>

namespace dyeworks {

/// Which of the next `kPixels` pixels of a row equal a value: a bit for each, the first pixel in the lowest.
/// `x` is even, and all of the pixels lie within the row with its padding.
template <int Bits>
struct MatchMask {
    static constexpr int kPixels = 8;

    static std::uint32_t of(const std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        std::uint32_t mask = 0;
        for (int i = 0; i < kPixels; ++i)
            mask |= (PixelAccess<Bits>::get(row, x + i) == value ? 1U : 0U) << static_cast<unsigned>(i);
        return mask;
    }
};

/// Eight bytes, the first one lowest.
[[nodiscard]] inline std::uint64_t loadWordInOrder(const std::uint8_t* bytes) noexcept {
    const std::uint64_t word = loadWord(bytes);
    return std::endian::native == std::endian::little ? word : reversedBytes(word);
}

template <>
struct MatchMask<8> {
    static constexpr int kPixels = 8;

    static std::uint32_t of(const std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        constexpr std::uint64_t kLow = 0x7F7F7F7F7F7F7F7FU;
        const std::uint64_t other = loadWordInOrder(row + x) ^ everyByte(static_cast<std::uint8_t>(value));
        const std::uint64_t equal = ~(((other & kLow) + kLow) | other | kLow);
        // The high bits of the bytes meet in the topmost byte, that of the first one lowest.
        return static_cast<std::uint32_t>(equal * 0x0002040810204081U >> 56U);
    }
};

template <>
struct MatchMask<4> {
    static constexpr int kPixels = 16;

    static std::uint32_t of(const std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        const auto pair = static_cast<std::uint8_t>(value * 0x11U);
        std::uint64_t bits = swappedNibbles(loadWordInOrder(row + x / 2) ^ everyByte(pair));
        bits |= bits >> 1U;
        bits |= bits >> 2U;
        bits = ~bits & 0x1111111111111111U;
        // Every fourth bit is one of ours; they close up.
        bits = (bits | bits >> 3U) & 0x0303030303030303U;
        bits = (bits | bits >> 6U) & 0x000F000F000F000FU;
        bits = (bits | bits >> 12U) & 0x000000FF000000FFU;
        return static_cast<std::uint32_t>((bits | bits >> 24U) & 0xFFFFU);
    }
};

} // namespace dyeworks
