#include "paint/CanvasRows.h"
#include "paint/CanvasTransform.h"
#include "paint/PixelRuns.h"
#include "paint/TextureCanvas.h"
#include "platform/LargeBlock.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace dyeworks {

namespace {

/// Texels are turned in squares of this side, through a buffer: rows of both canvases are then read and
/// written by whole cache lines, though one goes down while the other goes along.
constexpr std::int64_t kSide = 64;

template <typename Value>
using Square = std::array<std::array<Value, kSide>, kSide>;

/// A texel as it is held in a square.
template <int Bits>
struct Held {
    using Value = std::uint32_t;
};
template <>
struct Held<4> {
    using Value = std::uint8_t;
};
template <>
struct Held<8> {
    using Value = std::uint8_t;
};

template <int Bits, typename Value>
void unpack(Value* to, const std::uint8_t* row, std::int64_t x, std::int64_t count) {
    if constexpr (Bits == 8) {
        std::memcpy(to, row + x, static_cast<std::size_t>(count));
    } else if constexpr (Bits == 4) {
        const std::uint8_t* from = row + x / 2;
        for (std::int64_t i = 0; i < (count + 1) / 2; ++i) {
            to[2 * i] = static_cast<std::uint8_t>(from[i] >> 4U);
            to[2 * i + 1] = static_cast<std::uint8_t>(from[i] & 15U);
        }
    } else {
        for (std::int64_t i = 0; i < count; ++i)
            to[i] = PixelAccess<Bits>::get(row, x + i);
    }
}

template <int Bits, typename Value>
void pack(std::uint8_t* row, std::int64_t x, const Value* from, std::int64_t count) {
    if constexpr (Bits == 8) {
        std::memcpy(row + x, from, static_cast<std::size_t>(count));
    } else if constexpr (Bits == 4) {
        std::uint8_t* to = row + x / 2;
        for (std::int64_t i = 0; i < count / 2; ++i)
            to[i] = static_cast<std::uint8_t>(from[2 * i] << 4U | from[2 * i + 1]);
        if (count % 2 != 0)
            PixelAccess<4>::set(row, x + count - 1, from[count - 1]);
    } else {
        for (std::int64_t i = 0; i < count; ++i)
            PixelAccess<Bits>::set(row, x + i, from[i]);
    }
}

/// Rows become columns: halves of words change places, then quarters, then bytes (Warren, Hacker's Delight).
void transpose(Square<std::uint8_t>& to, const Square<std::uint8_t>& from) {
    constexpr std::size_t kEight = 8;
    std::array<std::uint64_t, kEight> words;
    const auto exchange = [&](std::size_t apart, unsigned shift, std::uint64_t mask) {
        for (std::size_t i = 0; i < kEight; ++i) {
            if ((i & apart) != 0)
                continue;
            const std::uint64_t both = (words[i] >> shift ^ words[i + apart]) & mask;
            words[i + apart] ^= both;
            words[i] ^= both << shift;
        }
    };
    for (std::size_t top = 0; top < kSide; top += kEight) {
        for (std::size_t left = 0; left < kSide; left += kEight) {
            for (std::size_t i = 0; i < kEight; ++i)
                words[i] = loadWord(from[top + i].data() + left);
            exchange(4, 32, 0x00000000FFFFFFFFU);
            exchange(2, 16, 0x0000FFFF0000FFFFU);
            exchange(1, 8, 0x00FF00FF00FF00FFU);
            for (std::size_t i = 0; i < kEight; ++i)
                storeWord(to[left + i].data() + top, words[i]);
        }
    }
}

template <typename Value>
void transpose(Square<Value>& to, const Square<Value>& from) {
    for (std::size_t y = 0; y < kSide; ++y) {
        for (std::size_t x = 0; x < kSide; ++x)
            to[x][y] = from[y][x];
    }
}

template <int Bits>
struct QuarterTurn {
    /// Squares begin at multiples of their side in the columns of both canvases; which rows those are is up
    /// to the direction.
    static void run(const TextureCanvas& canvas, TextureCanvas& made, bool right) {
        const ReadRows from(canvas);
        const WriteRows to(made);
        const std::int64_t width = canvas.width();
        const std::int64_t height = canvas.height();
        Square<typename Held<Bits>::Value> square{};
        Square<typename Held<Bits>::Value> transposed{};
        for (std::int64_t x = 0; x < width; x += kSide) {
            const std::int64_t columns = std::min(kSide, width - x);
            for (std::int64_t madeX = 0; madeX < height; madeX += kSide) {
                const std::int64_t rows = std::min(kSide, height - madeX);
                for (std::int64_t i = 0; i < rows; ++i) {
                    const std::int64_t y = right ? height - 1 - (madeX + i) : madeX + i;
                    unpack<Bits>(square[static_cast<std::size_t>(i)].data(), from[y], x, columns);
                }
                transpose(transposed, square);
                for (std::int64_t i = 0; i < columns; ++i) {
                    const std::int64_t madeY = right ? x + i : width - 1 - (x + i);
                    pack<Bits>(to[madeY], madeX, transposed[static_cast<std::size_t>(i)].data(), rows);
                }
            }
        }
    }
};

} // namespace

std::unique_ptr<TextureCanvas> turned(const TextureCanvas& canvas, Turn turn) {
    if (turn == Turn::Half) {
        std::unique_ptr<TextureCanvas> made = canvas.Clone();
        if (made != nullptr)
            made->Flip(0, 0, made->width() - 1, made->height() - 1,
                       TextureCanvas::kFlipHorizontal | TextureCanvas::kFlipVertical);
        return made;
    }
    const Size size{canvas.height(), canvas.width()};
    std::unique_ptr<TextureCanvas> made(new (std::nothrow) TextureCanvas);
    if (!canHaveSize(size, canvas.bitsPerPixel()) || made == nullptr ||
        !made->Create(size.width, size.height, canvas.planes(), canvas.bitsPerPixel()))
        return nullptr;
    prepareBlock(made->pixelRows().data(), made->pixelRows().size());
    made->copyColourTableFrom(canvas);
    visitDepth<QuarterTurn>(canvas.bitsPerPixel(),
                            [&](auto quarter) { quarter.run(canvas, *made, turn == Turn::Right); });
    return made;
}

} // namespace dyeworks
