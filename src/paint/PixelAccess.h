#pragma once

#include <cstdint>

namespace dyeworks {

/// Where pixel x lies in a row of a canvas, per depth. `get` and `set` do not check x; `set` stores the low
/// bits of the value (those of `kMask`) and leaves every other pixel of the row alone. Depths that are not
/// known here store nothing and read 0: PixelAccess<0>.
template <int Bits>
struct PixelAccess {
    static constexpr int kBits = 0;
    static constexpr std::uint32_t kMask = 0;
    static std::uint32_t get(const std::uint8_t*, std::int64_t) noexcept { return 0; }
    static void set(std::uint8_t*, std::int64_t, std::uint32_t) noexcept {}
};

template <>
struct PixelAccess<1> {
    static constexpr int kBits = 1;
    static constexpr std::uint32_t kMask = 1;
    static std::uint32_t get(const std::uint8_t* row, std::int64_t x) noexcept {
        return std::uint32_t{row[x / 8]} >> (7 - x % 8) & 1U;
    }
    static void set(std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        const auto shift = static_cast<unsigned>(7 - x % 8);
        row[x / 8] = static_cast<std::uint8_t>((row[x / 8] & ~(1U << shift)) | (value & 1U) << shift);
    }
};

template <>
struct PixelAccess<4> {
    static constexpr int kBits = 4;
    static constexpr std::uint32_t kMask = 15;
    static std::uint32_t get(const std::uint8_t* row, std::int64_t x) noexcept {
        const std::uint32_t pair = row[x / 2];
        return x % 2 == 0 ? pair >> 4U : pair & 15U;
    }
    static void set(std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        const std::uint32_t pair = row[x / 2];
        row[x / 2] = static_cast<std::uint8_t>(x % 2 == 0 ? (pair & 0x0FU) | (value & 15U) << 4U
                                                          : (pair & 0xF0U) | (value & 15U));
    }
};

template <>
struct PixelAccess<8> {
    static constexpr int kBits = 8;
    static constexpr std::uint32_t kMask = 0xFF;
    static std::uint32_t get(const std::uint8_t* row, std::int64_t x) noexcept { return row[x]; }
    static void set(std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        row[x] = static_cast<std::uint8_t>(value);
    }
};

template <>
struct PixelAccess<16> {
    static constexpr int kBits = 16;
    static constexpr std::uint32_t kMask = 0xFFFF;
    static std::uint32_t get(const std::uint8_t* row, std::int64_t x) noexcept {
        const std::uint8_t* at = row + 2 * x;
        return std::uint32_t{at[0]} | std::uint32_t{at[1]} << 8U;
    }
    static void set(std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        std::uint8_t* at = row + 2 * x;
        at[0] = static_cast<std::uint8_t>(value);
        at[1] = static_cast<std::uint8_t>(value >> 8U);
    }
};

template <>
struct PixelAccess<24> {
    static constexpr int kBits = 24;
    static constexpr std::uint32_t kMask = 0xFFFFFF;
    static std::uint32_t get(const std::uint8_t* row, std::int64_t x) noexcept {
        const std::uint8_t* at = row + 3 * x;
        return std::uint32_t{at[0]} | std::uint32_t{at[1]} << 8U | std::uint32_t{at[2]} << 16U;
    }
    static void set(std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        std::uint8_t* at = row + 3 * x;
        at[0] = static_cast<std::uint8_t>(value);
        at[1] = static_cast<std::uint8_t>(value >> 8U);
        at[2] = static_cast<std::uint8_t>(value >> 16U);
    }
};

template <>
struct PixelAccess<32> {
    static constexpr int kBits = 32;
    static constexpr std::uint32_t kMask = 0xFFFFFFFF;
    static std::uint32_t get(const std::uint8_t* row, std::int64_t x) noexcept {
        const std::uint8_t* at = row + 4 * x;
        return std::uint32_t{at[0]} | std::uint32_t{at[1]} << 8U | std::uint32_t{at[2]} << 16U |
               std::uint32_t{at[3]} << 24U;
    }
    static void set(std::uint8_t* row, std::int64_t x, std::uint32_t value) noexcept {
        std::uint8_t* at = row + 4 * x;
        at[0] = static_cast<std::uint8_t>(value);
        at[1] = static_cast<std::uint8_t>(value >> 8U);
        at[2] = static_cast<std::uint8_t>(value >> 16U);
        at[3] = static_cast<std::uint8_t>(value >> 24U);
    }
};

/// Calls `visitor` with Operations<bitsPerPixel>, or Operations<0> for a depth that is not known.
template <template <int> typename Operations, typename Visitor>
decltype(auto) visitDepth(std::uint16_t bitsPerPixel, Visitor&& visitor) {
    switch (bitsPerPixel) {
    case 1:
        return visitor(Operations<1>{});
    case 4:
        return visitor(Operations<4>{});
    case 8:
        return visitor(Operations<8>{});
    case 16:
        return visitor(Operations<16>{});
    case 24:
        return visitor(Operations<24>{});
    case 32:
        return visitor(Operations<32>{});
    default:
        return visitor(Operations<0>{});
    }
}

} // namespace dyeworks
