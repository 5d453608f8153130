#include "paint/MatchMask.h"
#include "paint/PixelRuns.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace dyeworks {

namespace {

struct Seed {
    std::int32_t x;
    std::int32_t y;
};

/// The seeds of one fill, last in, first out. A seed that finds no room is dropped.
class SeedStack {
public:
    void push(std::int32_t x, std::int32_t y) {
        if (count_ < seeds_.size())
            seeds_[count_++] = {x, y};
    }
    [[nodiscard]] bool empty() const { return count_ == 0; }
    Seed pop() { return seeds_[--count_]; }

private:
    std::array<Seed, TextureCanvas::kMaxSeeds> seeds_;
    std::size_t count_ = 0;
};

/// Where runs of one value begin in a row, met in pieces from left to right.
template <int Bits>
class RunStarts {
public:
    static constexpr int kPixels = MatchMask<Bits>::kPixels;
    static constexpr std::uint32_t kAll = (1U << kPixels) - 1;

    /// A row that is not there (null) has no runs. `readable` pixels may be looked at, padding included.
    RunStarts(const std::uint8_t* row, std::int64_t readable, std::uint32_t value)
        : row_(row)
        , readable_(row == nullptr ? 0 : readable)
        , value_(value) {}

    /// Of the pixels from `x` on those that begin a run, where only those in `counted` are looked at. Each
    /// piece follows the one before.
    [[nodiscard]] std::uint32_t in(std::int64_t x, std::uint32_t counted) {
        matches_ = mask(x) & counted;
        const std::uint32_t starts = matches_ & ~(matches_ << 1U | carried_);
        carried_ = matches_ >> (kPixels - 1);
        return starts;
    }

    /// The last of the pieces from the one at `x` on, which came last, that look just like it and, since it
    /// was one run or none, hold nothing new.
    [[nodiscard]] std::int64_t sameUntil(std::int64_t x, std::int64_t end) {
        if (row_ == nullptr)
            return end;
        // What was found is kept: the other row may ask again and again.
        if (x < same_)
            return same_;
        if ((matches_ != 0 && matches_ != kAll) || Bits > 8 || Bits < 4)
            return x;
        const std::uint8_t* const first = row_ + x * Bits / 8;
        if (x + kPixels > readable_ || loadWord(first) != everyByte(*first))
            return x;
        const std::ptrdiff_t bytes = equalBytesAtStart(first, row_ + end * Bits / 8, *first);
        same_ = x + std::max<std::int64_t>(bytes * 8 / kPixels / Bits - 1, 0) * kPixels;
        return same_;
    }

private:
    [[nodiscard]] std::uint32_t mask(std::int64_t x) const {
        if (x + kPixels <= readable_)
            return MatchMask<Bits>::of(row_, x, value_);
        std::uint32_t mask = 0;
        for (std::int64_t i = 0; x + i < readable_; ++i)
            mask |= (PixelAccess<Bits>::get(row_, x + i) == value_ ? 1U : 0U) << static_cast<unsigned>(i);
        return mask;
    }

    const std::uint8_t* row_;
    std::int64_t readable_;
    std::uint32_t value_;
    std::uint32_t matches_ = 0;
    std::uint32_t carried_ = 0;
    std::int64_t same_ = 0;
};

} // namespace

void TextureCanvas::FloodFill(std::int32_t x, std::int32_t y, std::uint32_t value) {
    if (!columns().contains(x) || !rows().contains(y))
        return;
    const std::uint32_t kept = value & depthMask();
    const std::uint32_t target = GetPixel(x, y);
    if (target == kept)
        return;
    if (isPlain())
        floodFillByRuns(x, y, kept, target);
    else
        floodFillByPixels(x, y, kept, target);
}

void TextureCanvas::floodFillByPixels(std::int32_t startX, std::int32_t startY, std::uint32_t value,
                                      std::uint32_t target) {
    SeedStack seeds;
    seeds.push(startX, startY);
    while (!seeds.empty()) {
        const Seed seed = seeds.pop();
        std::int32_t x = seed.x;
        const std::int32_t y = seed.y;
        while (x > 0 && GetPixel(x - 1, y) == target)
            --x;
        bool runAbove = false;
        bool runBelow = false;
        const auto look = [&](std::int32_t atY, bool& run) {
            const bool matches = GetPixel(x, atY) == target;
            if (matches && !run)
                seeds.push(x, atY);
            run = matches;
        };
        while (x < width_) {
            SetPixel(x, y, value);
            if (y > 0)
                look(y - 1, runAbove);
            if (y < height_ - 1)
                look(y + 1, runBelow);
            if (x + 1 >= width_ || GetPixel(x + 1, y) != target)
                break;
            ++x;
        }
    }
}

void TextureCanvas::floodFillByRuns(std::int32_t startX, std::int32_t startY, std::uint32_t value,
                                    std::uint32_t target) {
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        using Pixels = decltype(pixels);
        constexpr int kBits = Pixels::kBits;
        // What is written might be any of this canvas's members, were they not held here.
        const std::int32_t width = width_;
        const std::int32_t height = height_;
        const std::int64_t stride = stride_;
        std::uint8_t* const top = row(0);
        const auto readable = kBits == 0 ? 0 : stride * 8 / std::max(kBits, 1);
        Rect filled{startX, startY, startX, startY};
        SeedStack seeds;
        seeds.push(startX, startY);
        while (!seeds.empty()) {
            const auto [x, y] = seeds.pop();
            std::uint8_t* const middle = top - y * stride;
            const std::uint8_t* const above = y > 0 ? middle + stride : nullptr;
            const std::uint8_t* const below = y < height - 1 ? middle - stride : nullptr;
            // The seed itself may have been filled since it was pushed; it is written again all the same.
            std::int64_t begin = x;
            if (x > 0 && Pixels::get(middle, x - 1) == target)
                begin = Pixels::runStart(middle, 0, x - 1, target);
            std::int64_t end = x;
            if (begin == x || Pixels::get(middle, x) == target) {
                ++end;
                if (end < width && Pixels::get(middle, end) == target)
                    end = Pixels::runEnd(middle, end + 1, width, target);
            }
            Pixels::fill(middle, begin, end, value);
            filled = {std::min(filled.left, static_cast<std::int32_t>(begin)), std::min(filled.top, y),
                      std::max(filled.right, static_cast<std::int32_t>(end - 1)), std::max(filled.bottom, y)};

            // Pushed in the order in which a walk along the span meets them, so that the same ones are
            // dropped when the stack is full.
            if (end - begin == 1) {
                const auto at = static_cast<std::int32_t>(begin);
                if (above != nullptr && Pixels::get(above, begin) == target)
                    seeds.push(at, y - 1);
                if (below != nullptr && Pixels::get(below, begin) == target)
                    seeds.push(at, y + 1);
                continue;
            }
            using Starts = RunStarts<kBits>;
            Starts upper(above, readable, target);
            Starts lower(below, readable, target);
            for (std::int64_t from = begin - begin % 2; from < end; from += Starts::kPixels) {
                const std::uint32_t behind = begin > from ? ~1U : ~0U;
                const std::uint32_t inside =
                    end - from < Starts::kPixels ? (1U << (end - from)) - 1 : Starts::kAll;
                const std::uint32_t up = upper.in(from, inside & behind);
                const std::uint32_t down = lower.in(from, inside & behind);
                for (std::uint32_t left = up | down; left != 0; left &= left - 1) {
                    const auto at = static_cast<std::int32_t>(from) + std::countr_zero(left);
                    const std::uint32_t bit = left & ~(left - 1);
                    if ((up & bit) != 0)
                        seeds.push(at, y - 1);
                    if ((down & bit) != 0)
                        seeds.push(at, y + 1);
                }
                if (inside == Starts::kAll)
                    from = std::min(upper.sameUntil(from, end), lower.sameUntil(from, end));
            }
        }
        extendChanged({filled.left, filled.right}, {filled.top, filled.bottom});
    });
}

void TextureCanvas::ReplaceColor(const Rect& rectangle, std::int32_t x, std::int32_t y, std::uint32_t value) {
    const Rect area = rectangle.normalised();
    if (x < area.left || x > area.right || y < area.top || y > area.bottom)
        return;
    const std::uint32_t kept = value & depthMask();
    const std::uint32_t old = GetPixel(x, y);
    if (old == kept)
        return;
    if (isPlain())
        replaceByRuns(area, old, kept);
    else
        replaceByPixels(area, old, kept);
}

void TextureCanvas::replaceByPixels(const Rect& area, std::uint32_t old, std::uint32_t value) {
    for (std::int64_t y = area.top; y <= area.bottom; ++y) {
        for (std::int64_t x = area.left; x <= area.right; ++x) {
            const auto atX = static_cast<std::int32_t>(x);
            const auto atY = static_cast<std::int32_t>(y);
            if (GetPixel(atX, atY) == old)
                SetPixel(atX, atY, value);
        }
    }
}

void TextureCanvas::replaceByRuns(const Rect& area, std::uint32_t old, std::uint32_t value) {
    const Range xs = overlap({area.left, area.right}, columns());
    const Range ys = overlap({area.top, area.bottom}, rows());
    if (xs.empty())
        return;
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        for (std::int64_t y = ys.first; y <= ys.last; ++y) {
            std::uint8_t* pixelRow = row(y);
            const std::int64_t begin = pixels.find(pixelRow, xs.first, xs.last + 1, old);
            if (begin > xs.last)
                continue;
            const std::int64_t end = pixels.findLast(pixelRow, begin, xs.last + 1, old);
            pixels.replace(pixelRow, begin, end, old, value);
            extendChanged({begin, end - 1}, {y, y});
        }
    });
}

} // namespace dyeworks
