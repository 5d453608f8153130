#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace dyeworks {

// Eight bytes at a time. The order of the bytes inside a word does not matter to any of these.

constexpr std::ptrdiff_t kWordBytes = 8;

[[nodiscard]] inline std::uint64_t loadWord(const std::uint8_t* bytes) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

inline void storeWord(std::uint8_t* bytes, std::uint64_t word) noexcept {
    std::memcpy(bytes, &word, sizeof word);
}

[[nodiscard]] constexpr std::uint64_t everyByte(std::uint8_t value) noexcept {
    return value * 0x0101010101010101U;
}

/// Whether any byte of the word is 0 (Mycroft's test).
[[nodiscard]] constexpr bool hasZeroByte(std::uint64_t word) noexcept {
    return ((word - 0x0101010101010101U) & ~word & 0x8080808080808080U) != 0;
}

[[nodiscard]] constexpr bool hasZeroNibble(std::uint64_t word) noexcept {
    return ((word - 0x1111111111111111U) & ~word & 0x8888888888888888U) != 0;
}

[[nodiscard]] constexpr std::uint64_t reversedBytes(std::uint64_t word) noexcept {
    word = (word & 0x00FF00FF00FF00FFU) << 8U | (word >> 8U & 0x00FF00FF00FF00FFU);
    word = (word & 0x0000FFFF0000FFFFU) << 16U | (word >> 16U & 0x0000FFFF0000FFFFU);
    return word << 32U | word >> 32U;
}

[[nodiscard]] constexpr std::uint64_t swappedNibbles(std::uint64_t word) noexcept {
    return (word & 0x0F0F0F0F0F0F0F0FU) << 4U | (word >> 4U & 0x0F0F0F0F0F0F0F0FU);
}

/// Bytes at the start of [begin, end) that equal `value`.
[[nodiscard]] inline std::ptrdiff_t equalBytesAtStart(const std::uint8_t* begin, const std::uint8_t* end,
                                                      std::uint8_t value) noexcept {
    constexpr std::ptrdiff_t kStep = 4 * kWordBytes;
    const std::uint64_t pattern = everyByte(value);
    const std::uint8_t* at = begin;
    while (end - at >= kStep &&
           ((loadWord(at) ^ pattern) | (loadWord(at + kWordBytes) ^ pattern) |
            (loadWord(at + 2 * kWordBytes) ^ pattern) | (loadWord(at + 3 * kWordBytes) ^ pattern)) == 0) {
        at += kStep;
        // A long run goes on in larger strides: as far again as it is known to reach.
        const std::ptrdiff_t known = std::min(at - begin, end - at);
        if (known >= 8 * kStep && std::memcmp(at, begin, static_cast<std::size_t>(known)) == 0)
            at += known;
    }
    while (at != end && *at == value)
        ++at;
    return at - begin;
}

/// Bytes at the end of [begin, end) that equal `value`.
[[nodiscard]] inline std::ptrdiff_t equalBytesAtEnd(const std::uint8_t* begin, const std::uint8_t* end,
                                                    std::uint8_t value) noexcept {
    const std::uint64_t pattern = everyByte(value);
    const std::uint8_t* at = end;
    while (at - begin >= kWordBytes && loadWord(at - kWordBytes) == pattern)
        at -= kWordBytes;
    while (at != begin && at[-1] == value)
        --at;
    return end - at;
}

/// Exchanges `count` bytes of two areas that do not overlap, in pieces that the nearest cache holds.
inline void exchangeBytes(std::uint8_t* one, std::uint8_t* other, std::ptrdiff_t count) noexcept {
    constexpr std::ptrdiff_t kPiece = 4096;
    std::uint8_t piece[kPiece];
    for (std::ptrdiff_t size = 0; count > 0; count -= size, one += size, other += size) {
        size = std::min(count, kPiece);
        const auto bytes = static_cast<std::size_t>(size);
        std::memcpy(piece, one, bytes);
        std::memcpy(one, other, bytes);
        std::memcpy(other, piece, bytes);
    }
}

} // namespace dyeworks
