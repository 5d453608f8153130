#include "paint/TexelCounts.h"

#include "paint/CanvasRows.h"
#include "paint/PixelAccess.h"
#include "paint/TextureCanvas.h"
#include "paint/TouchedTiles.h"
#include "paint/WordScan.h"

namespace dyeworks {

namespace {

/// Bytes that are counted. Equal ones in a row would wait for each other in a single table.
class ByteCounts {
public:
    void add(const std::uint8_t* bytes, std::int64_t count) {
        std::int64_t i = 0;
        for (; i + 4 <= count; i += 4) {
            ++tables_[0][bytes[i]];
            ++tables_[1][bytes[i + 1]];
            ++tables_[2][bytes[i + 2]];
            ++tables_[3][bytes[i + 3]];
        }
        for (; i < count; ++i)
            ++tables_[0][bytes[i]];
    }
    [[nodiscard]] std::uint64_t of(std::size_t byte) const {
        return tables_[0][byte] + tables_[1][byte] + tables_[2][byte] + tables_[3][byte];
    }

private:
    std::array<TexelCounts::Values, 4> tables_{};
};

/// Counts texels [first, end) of a row: those that fill bytes through `bytes`, others by themselves.
template <int Bits>
void countRow(const std::uint8_t* row, std::int64_t first, std::int64_t end, ByteCounts& bytes,
              TexelCounts::Values& single) {
    constexpr std::int64_t kInByte = 8 / Bits;
    for (; first < end && first % kInByte != 0; ++first)
        ++single[PixelAccess<Bits>::get(row, first)];
    bytes.add(row + first / kInByte, (end - first) / kInByte);
    for (first += (end - first) / kInByte * kInByte; first < end; ++first)
        ++single[PixelAccess<Bits>::get(row, first)];
}

template <int Bits>
void count(const TextureCanvas& canvas, const Rect& texels, TexelCounts::Values& values) {
    ByteCounts bytes;
    const ReadRows rows(canvas);
    for (std::int32_t y = texels.top; y <= texels.bottom; ++y)
        countRow<Bits>(rows[y], texels.left, std::int64_t{texels.right} + 1, bytes, values);
    for (std::size_t byte = 0; byte < 256; ++byte) {
        const auto pair = static_cast<std::uint8_t>(byte);
        for (std::int64_t i = 0; i < 8 / Bits; ++i)
            values[PixelAccess<Bits>::get(&pair, i)] += bytes.of(byte);
    }
}

/// Where two rows differ within texels [first, end), eight bytes that do not are passed by at once.
template <int Bits>
void changeRow(const std::uint8_t* before, const std::uint8_t* after, std::int64_t first, std::int64_t end,
               TexelCounts::Values& values) {
    constexpr std::int64_t kInWord = 8 * kWordBytes / Bits;
    while (first < end) {
        const std::int64_t byte = first * Bits / 8;
        if (first % kInWord == 0 && first + kInWord <= end &&
            loadWord(before + byte) == loadWord(after + byte)) {
            first += kInWord;
            continue;
        }
        const std::int64_t stop = std::min(end, (first / kInWord + 1) * kInWord);
        for (; first < stop; ++first) {
            const std::uint32_t was = PixelAccess<Bits>::get(before, first);
            const std::uint32_t is = PixelAccess<Bits>::get(after, first);
            if (was == is)
                continue;
            --values[was];
            ++values[is];
        }
    }
}

/// Whether texels are values, and so many that their depth is one of the three.
template <int Bits>
constexpr bool kCounted = Bits == 1 || Bits == 4 || Bits == 8;

} // namespace

TexelCounts::Values TexelCounts::of(const TextureCanvas& canvas) {
    TexelCounts counts;
    counts.count(canvas);
    return counts.values();
}

void TexelCounts::count(const TextureCanvas& canvas) {
    values_.fill(0);
    known_ = true;
    enter(canvas, {0, 0, canvas.width() - 1, canvas.height() - 1});
}

void TexelCounts::leave(const TextureCanvas& canvas, const Rect& texels) {
    add(canvas, texels, ~std::uint64_t{0});
}

void TexelCounts::enter(const TextureCanvas& canvas, const Rect& texels) {
    add(canvas, texels, 1);
}

/// `each` is what a texel counts, 1 or -1.
void TexelCounts::add(const TextureCanvas& canvas, const Rect& texels, std::uint64_t each) {
    if (!known_)
        return;
    visitDepth<PixelAccess>(canvas.bitsPerPixel(), [&]<int Bits>(PixelAccess<Bits>) {
        if constexpr (kCounted<Bits>) {
            Values counted{};
            dyeworks::count<Bits>(canvas, texels, counted);
            for (std::size_t value = 0; value < values_.size(); ++value)
                values_[value] += each * counted[value];
        }
    });
}

void TexelCounts::change(const TextureCanvas& before, const TextureCanvas& after, const Rect& texels,
                         const TouchedTiles& touched) {
    if (!known_)
        return;
    visitDepth<PixelAccess>(after.bitsPerPixel(), [&]<int Bits>(PixelAccess<Bits>) {
        if constexpr (kCounted<Bits>) {
            const ReadRows from(before);
            const ReadRows to(after);
            touched.forEach(texels, [&](const Rect& part) {
                for (std::int32_t y = part.top; y <= part.bottom; ++y)
                    changeRow<Bits>(from[y], to[y], part.left, std::int64_t{part.right} + 1, values_);
            });
        }
    });
}

void TexelCounts::renumber(const ByteTable& map) {
    const Values before = values_;
    values_.fill(0);
    for (std::size_t value = 0; value < before.size(); ++value)
        values_[map[value]] += before[value];
}

} // namespace dyeworks
