#pragma once

#include "paint/PixelAccess.h"
#include "paint/WordScan.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace dyeworks {

/// Pixels that are sooner looked at one by one than with a call for the whole run.
constexpr std::int64_t kShortRun = 8;

/// Runs of pixels in one row, [begin, end), pixel by pixel: what every depth can do. A run is never checked
/// against the row's width. `value` may be wider than the depth where it is stored, not where it is sought.
template <int Bits>
struct PixelLoops : PixelAccess<Bits> {
    using Access = PixelAccess<Bits>;

    static void fill(std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t value) noexcept {
        for (std::int64_t x = begin; x < end; ++x)
            Access::set(row, x, value);
    }

    /// Copies `count` pixels between runs that do not overlap.
    static void copy(std::uint8_t* to, std::int64_t toX, const std::uint8_t* from, std::int64_t fromX,
                     std::int64_t count) noexcept {
        for (std::int64_t i = 0; i < count; ++i)
            Access::set(to, toX + i, Access::get(from, fromX + i));
    }

    /// Gives pixel toX + i the value of from's pixel columns[i].
    static void gather(std::uint8_t* to, std::int64_t toX, const std::uint8_t* from,
                       std::span<const std::int32_t> columns) noexcept {
        for (const std::int32_t column : columns)
            Access::set(to, toX++, Access::get(from, column));
    }

    /// The first pixel that equals `value`, or `end`.
    static std::int64_t find(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                             std::uint32_t value) noexcept {
        while (begin < end && Access::get(row, begin) != value)
            ++begin;
        return begin;
    }

    /// One past the last pixel that equals `value`, or `begin`.
    static std::int64_t findLast(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                                 std::uint32_t value) noexcept {
        while (begin < end && Access::get(row, end - 1) != value)
            --end;
        return end;
    }

    /// Where the pixels equal to `value` that start at `begin` end.
    static std::int64_t runEnd(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                               std::uint32_t value) noexcept {
        while (begin < end && Access::get(row, begin) == value)
            ++begin;
        return begin;
    }

    /// Where the pixels equal to `value` that end at `end` start.
    static std::int64_t runStart(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                                 std::uint32_t value) noexcept {
        while (begin < end && Access::get(row, end - 1) == value)
            --end;
        return end;
    }

    static void replace(std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t old,
                        std::uint32_t value) noexcept {
        for (std::int64_t x = begin; x < end; ++x) {
            if (Access::get(row, x) == old)
                Access::set(row, x, value);
        }
    }

    static void reverse(std::uint8_t* row, std::int64_t begin, std::int64_t end) noexcept {
        for (--end; begin < end; ++begin, --end)
            exchange(row, begin, row, end);
    }

    /// Exchanges the same run of two different rows.
    static void swap(std::uint8_t* one, std::uint8_t* other, std::int64_t begin, std::int64_t end) noexcept {
        for (std::int64_t x = begin; x < end; ++x)
            exchange(one, x, other, x);
    }

protected:
    static void exchange(std::uint8_t* one, std::int64_t x1, std::uint8_t* other, std::int64_t x2) noexcept {
        const std::uint32_t first = Access::get(one, x1);
        Access::set(one, x1, Access::get(other, x2));
        Access::set(other, x2, first);
    }
};

/// What goes faster for pixels of whole bytes.
template <int Bits>
struct WholeByteLoops : PixelLoops<Bits> {
    static constexpr std::int64_t kBytes = Bits / 8;

    static void copy(std::uint8_t* to, std::int64_t toX, const std::uint8_t* from, std::int64_t fromX,
                     std::int64_t count) noexcept {
        if (count > 0)
            std::memcpy(to + toX * kBytes, from + fromX * kBytes, static_cast<std::size_t>(count * kBytes));
    }

    static void swap(std::uint8_t* one, std::uint8_t* other, std::int64_t begin, std::int64_t end) noexcept {
        exchangeBytes(one + begin * kBytes, other + begin * kBytes, (end - begin) * kBytes);
    }
};

/// The runs of each depth, in the fastest way that there is for it.
template <int Bits>
struct PixelRuns : PixelLoops<Bits> {};

template <>
struct PixelRuns<16> : WholeByteLoops<16> {};
template <>
struct PixelRuns<24> : WholeByteLoops<24> {};
template <>
struct PixelRuns<32> : WholeByteLoops<32> {};

template <>
struct PixelRuns<8> : WholeByteLoops<8> {
    static void fill(std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t value) noexcept {
        if (end - begin <= kShortRun)
            PixelLoops::fill(row, begin, end, value);
        else
            std::memset(row + begin, static_cast<int>(value & kMask), static_cast<std::size_t>(end - begin));
    }

    static std::int64_t find(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                             std::uint32_t value) noexcept {
        if (end - begin <= kShortRun)
            return PixelLoops::find(row, begin, end, value);
        const void* found =
            std::memchr(row + begin, static_cast<int>(value), static_cast<std::size_t>(end - begin));
        return found == nullptr ? end : static_cast<const std::uint8_t*>(found) - row;
    }

    static std::int64_t findLast(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                                 std::uint32_t value) noexcept {
        const std::uint64_t pattern = everyByte(static_cast<std::uint8_t>(value));
        while (end - begin >= kWordBytes && !hasZeroByte(loadWord(row + end - kWordBytes) ^ pattern))
            end -= kWordBytes;
        return PixelLoops::findLast(row, begin, end, value);
    }

    static std::int64_t runEnd(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                               std::uint32_t value) noexcept {
        return begin < end
                   ? begin + equalBytesAtStart(row + begin, row + end, static_cast<std::uint8_t>(value))
                   : begin;
    }

    static std::int64_t runStart(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                                 std::uint32_t value) noexcept {
        return begin < end ? end - equalBytesAtEnd(row + begin, row + end, static_cast<std::uint8_t>(value))
                           : end;
    }

    static void replace(std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t old,
                        std::uint32_t value) noexcept {
        const auto from = static_cast<std::uint8_t>(old);
        const auto to = static_cast<std::uint8_t>(value);
        for (std::int64_t x = begin; x < end; ++x)
            row[x] = row[x] == from ? to : row[x];
    }

    static void reverse(std::uint8_t* row, std::int64_t begin, std::int64_t end) noexcept {
        for (; end - begin >= 2 * kWordBytes; begin += kWordBytes, end -= kWordBytes) {
            const std::uint64_t left = loadWord(row + begin);
            const std::uint64_t right = loadWord(row + end - kWordBytes);
            storeWord(row + begin, reversedBytes(right));
            storeWord(row + end - kWordBytes, reversedBytes(left));
        }
        PixelLoops::reverse(row, begin, end);
    }
};

/// Pixels two to a byte. A run is a lone low half, whole bytes, and a lone high half; each may be missing.
template <>
struct PixelRuns<4> : PixelLoops<4> {
    static void fill(std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t value) noexcept {
        if (end - begin <= kShortRun) {
            PixelLoops::fill(row, begin, end, value);
            return;
        }
        const Halves run(begin, end);
        run.loneHalves([&](std::int64_t x) { set(row, x, value); });
        if (run.bytes() > 0)
            std::memset(row + run.firstByte, pair(value & kMask), static_cast<std::size_t>(run.bytes()));
    }

    static void copy(std::uint8_t* to, std::int64_t toX, const std::uint8_t* from, std::int64_t fromX,
                     std::int64_t count) noexcept {
        const Halves run(toX, toX + count);
        const std::int64_t ahead = fromX - toX;
        run.loneHalves([&](std::int64_t x) { set(to, x, get(from, x + ahead)); });
        if (run.bytes() <= 0)
            return;
        std::uint8_t* target = to + run.firstByte;
        const std::int64_t sourceX = 2 * run.firstByte + ahead;
        const std::uint8_t* source = from + sourceX / 2;
        if (sourceX % 2 == 0) {
            std::memcpy(target, source, static_cast<std::size_t>(run.bytes()));
            return;
        }
        for (std::int64_t i = 0; i < run.bytes(); ++i)
            target[i] = static_cast<std::uint8_t>(source[i] << 4U | source[i + 1] >> 4U);
    }

    static void gather(std::uint8_t* to, std::int64_t toX, const std::uint8_t* from,
                       std::span<const std::int32_t> columns) noexcept {
        const auto value = [&](std::int64_t x) {
            return get(from, columns[static_cast<std::size_t>(x - toX)]);
        };
        const Halves run(toX, toX + static_cast<std::int64_t>(columns.size()));
        run.loneHalves([&](std::int64_t x) { set(to, x, value(x)); });
        for (std::int64_t i = run.firstByte; i < run.endByte; ++i)
            to[i] = static_cast<std::uint8_t>(value(2 * i) << 4U | value(2 * i + 1));
    }

    static std::int64_t find(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                             std::uint32_t value) noexcept {
        if (begin < end && begin % 2 != 0) {
            if (get(row, begin) == value)
                return begin;
            ++begin;
        }
        if (end - begin > kShortRun) {
            // Where something else fills a whole run, that is passed over at once.
            const std::uint8_t first = row[begin / 2];
            if (first >> 4U != value && (first & kMask) != value)
                begin += 2 * equalBytesAtStart(row + begin / 2, row + end / 2, first);
            const std::uint64_t pattern = everyByte(pair(value));
            while (end - begin >= 2 * kWordBytes && !hasZeroNibble(loadWord(row + begin / 2) ^ pattern))
                begin += 2 * kWordBytes;
        }
        return PixelLoops::find(row, begin, end, value);
    }

    static std::int64_t findLast(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                                 std::uint32_t value) noexcept {
        if (begin < end && end % 2 != 0) {
            if (get(row, end - 1) == value)
                return end;
            --end;
        }
        const std::uint64_t pattern = everyByte(pair(value));
        while (end - begin >= 2 * kWordBytes &&
               !hasZeroNibble(loadWord(row + end / 2 - kWordBytes) ^ pattern))
            end -= 2 * kWordBytes;
        return PixelLoops::findLast(row, begin, end, value);
    }

    static std::int64_t runEnd(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                               std::uint32_t value) noexcept {
        if (begin < end && begin % 2 != 0) {
            if (get(row, begin) != value)
                return begin;
            ++begin;
        }
        if (begin < end)
            begin += 2 * equalBytesAtStart(row + begin / 2, row + end / 2, pair(value));
        return PixelLoops::runEnd(row, begin, end, value);
    }

    static std::int64_t runStart(const std::uint8_t* row, std::int64_t begin, std::int64_t end,
                                 std::uint32_t value) noexcept {
        if (begin < end && end % 2 != 0) {
            if (get(row, end - 1) != value)
                return end;
            --end;
        }
        if (begin < end)
            end -= 2 * equalBytesAtEnd(row + (begin + 1) / 2, row + end / 2, pair(value));
        return PixelLoops::runStart(row, begin, end, value);
    }

    static void replace(std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t old,
                        std::uint32_t value) noexcept {
        const Halves run(begin, end);
        run.loneHalves([&](std::int64_t x) { PixelLoops::replace(row, x, x + 1, old, value); });
        const auto oldHigh = static_cast<std::uint8_t>(old << 4U);
        const auto oldLow = static_cast<std::uint8_t>(old);
        const auto high = static_cast<std::uint8_t>(value << 4U);
        const auto low = static_cast<std::uint8_t>(value & kMask);
        for (std::int64_t i = run.firstByte; i < run.endByte; ++i) {
            const auto left = static_cast<std::uint8_t>(row[i] & 0xF0U);
            const auto right = static_cast<std::uint8_t>(row[i] & 0x0FU);
            row[i] =
                static_cast<std::uint8_t>((left == oldHigh ? high : left) | (right == oldLow ? low : right));
        }
    }

    static void reverse(std::uint8_t* row, std::int64_t begin, std::int64_t end) noexcept {
        // The middle between two bytes, or between the halves of one: bytes stay bytes, with halves swapped.
        if (begin < end && (end - begin) % 2 == 0) {
            if (begin % 2 != 0)
                exchange(row, begin++, row, --end);
            reverseBytes(row, begin / 2, end / 2);
            return;
        }
        PixelLoops::reverse(row, begin, end);
    }

    static void swap(std::uint8_t* one, std::uint8_t* other, std::int64_t begin, std::int64_t end) noexcept {
        const Halves run(begin, end);
        run.loneHalves([&](std::int64_t x) { exchange(one, x, other, x); });
        exchangeBytes(one + run.firstByte, other + run.firstByte, run.bytes());
    }

private:
    struct Halves {
        Halves(std::int64_t begin, std::int64_t end) noexcept
            : firstPixel(begin)
            , endPixel(end)
            , firstByte((begin + 1) / 2)
            , endByte(end / 2) {}

        [[nodiscard]] std::int64_t bytes() const noexcept { return endByte - firstByte; }

        template <typename Visitor>
        void loneHalves(Visitor&& visitor) const {
            if (firstPixel >= endPixel)
                return;
            if (firstPixel % 2 != 0)
                visitor(firstPixel);
            if (endPixel % 2 != 0)
                visitor(endPixel - 1);
        }

        std::int64_t firstPixel;
        std::int64_t endPixel;
        std::int64_t firstByte;
        std::int64_t endByte;
    };

    /// A byte whose halves both hold `value`, which is at most 15.
    static std::uint8_t pair(std::uint32_t value) noexcept {
        return static_cast<std::uint8_t>(value * 0x11U);
    }

    static void reverseBytes(std::uint8_t* row, std::int64_t begin, std::int64_t end) noexcept {
        for (; end - begin >= 2 * kWordBytes; begin += kWordBytes, end -= kWordBytes) {
            const std::uint64_t left = loadWord(row + begin);
            const std::uint64_t right = loadWord(row + end - kWordBytes);
            storeWord(row + begin, swappedNibbles(reversedBytes(right)));
            storeWord(row + end - kWordBytes, swappedNibbles(reversedBytes(left)));
        }
        PixelLoops::reverse(row, 2 * begin, 2 * end);
    }
};

} // namespace dyeworks
