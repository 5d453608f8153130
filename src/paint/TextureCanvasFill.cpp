#include "paint/PixelRuns.h"
#include "paint/TextureCanvas.h"

#include <array>
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

/// The runs of one value in columns [begin, end) of a row, left to right. `next` is where the next one
/// starts, or `end` when there is none left.
template <typename Pixels>
class RunStarts {
public:
    RunStarts(const std::uint8_t* row, std::int64_t begin, std::int64_t end, std::uint32_t value)
        : row_(row)
        , end_(end)
        , value_(value)
        , next_(row == nullptr ? end : Pixels::find(row, begin, end, value)) {}

    [[nodiscard]] std::int64_t next() const { return next_; }
    void skip() { next_ = Pixels::find(row_, Pixels::runEnd(row_, next_, end_, value_), end_, value_); }

private:
    const std::uint8_t* row_;
    std::int64_t end_;
    std::uint32_t value_;
    std::int64_t next_;
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
        SeedStack seeds;
        seeds.push(startX, startY);
        while (!seeds.empty()) {
            const Seed seed = seeds.pop();
            const std::int32_t x = seed.x;
            const std::int32_t y = seed.y;
            std::uint8_t* middle = row(y);
            // The seed itself may have been filled since it was pushed; it is written again all the same.
            const std::int64_t begin = Pixels::runStart(middle, 0, x, target);
            const std::int64_t end = begin < x && Pixels::get(middle, x) != target
                                         ? x
                                         : Pixels::runEnd(middle, std::int64_t{x} + 1, width_, target);
            Pixels::fill(middle, begin, end, value);
            extendChanged({begin, end - 1}, {y, y});

            // Pushed in the order in which a walk along the span meets them, so that the same ones are
            // dropped when the stack is full.
            RunStarts<Pixels> above(y > 0 ? row(y - 1) : nullptr, begin, end, target);
            RunStarts<Pixels> below(y < height_ - 1 ? row(y + 1) : nullptr, begin, end, target);
            while (above.next() < end || below.next() < end) {
                const bool upwards = above.next() <= below.next();
                RunStarts<Pixels>& runs = upwards ? above : below;
                seeds.push(static_cast<std::int32_t>(runs.next()), upwards ? y - 1 : y + 1);
                runs.skip();
            }
        }
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
