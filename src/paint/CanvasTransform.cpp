#include "paint/CanvasTransform.h"

#include "paint/BmpFormat.h"
#include "paint/CanvasRows.h"
#include "paint/PixelRuns.h"
#include "paint/Range.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <new>

namespace dyeworks {

namespace {

std::unique_ptr<TextureCanvas> canvasLike(const TextureCanvas& canvas, Size size) {
    if (!canHaveSize(size, canvas.bitsPerPixel()))
        return nullptr;
    std::unique_ptr<TextureCanvas> made(new (std::nothrow) TextureCanvas);
    if (made == nullptr || !made->Create(size.width, size.height, canvas.planes(), canvas.bitsPerPixel()))
        return nullptr;
    made->copyColourTableFrom(canvas);
    return made;
}

std::int32_t anchored(std::int32_t from, std::int32_t to, int part) {
    const std::int32_t room = to - from;
    // Rounded down for growing and shrinking alike, so that one takes the other back.
    return part == 0 ? 0 : part == 2 ? room : (room - (room < 0 && room % 2 != 0 ? 1 : 0)) / 2;
}

/// The remainder that is never negative.
std::int32_t wrapped(std::int32_t value, std::int32_t length) {
    const std::int32_t rest = value % length;
    return rest < 0 ? rest + length : rest;
}

std::unique_ptr<std::int32_t[]> columnsUnderMiddles(std::int64_t from, std::int64_t to) {
    std::unique_ptr<std::int32_t[]> columns(new (std::nothrow) std::int32_t[static_cast<std::size_t>(to)]);
    for (std::int64_t i = 0; columns != nullptr && i < to; ++i)
        columns[static_cast<std::size_t>(i)] = static_cast<std::int32_t>((2 * i + 1) * from / (2 * to));
    return columns;
}

} // namespace

std::int64_t canvasBytes(Size size, std::uint16_t bitsPerPixel) {
    constexpr std::int64_t kColourSize = 4;
    return std::int64_t{bmp::kHeadersSize} + kColourSize * bmp::fullColourCount(bitsPerPixel) +
           bmp::stride(size.width, bitsPerPixel) * size.height;
}

bool canHaveSize(Size size, std::uint16_t bitsPerPixel) {
    const auto isSide = [](std::int32_t side) { return side >= 1 && side <= kLongestSide; };
    return isSide(size.width) && isSide(size.height) &&
           canvasBytes(size, bitsPerPixel) <= TextureCanvas::kMaxBlockSize;
}

Point anchored(Size from, Size to, Anchor anchor) {
    const int number = static_cast<int>(anchor);
    return {anchored(from.width, to.width, number % 3), anchored(from.height, to.height, number / 3)};
}

std::unique_ptr<TextureCanvas> resized(const TextureCanvas& canvas, Size size, Point place,
                                       std::uint32_t fill) {
    std::unique_ptr<TextureCanvas> made = canvasLike(canvas, size);
    if (made == nullptr)
        return nullptr;
    const ReadRows from(canvas);
    const WriteRows to(*made);
    const Range xs = overlap({0, size.width - 1}, {place.x, std::int64_t{place.x} + canvas.width() - 1});
    const Range ys = overlap({0, size.height - 1}, {place.y, std::int64_t{place.y} + canvas.height() - 1});
    visitDepth<PixelRuns>(canvas.bitsPerPixel(), [&](auto pixels) {
        for (std::int64_t y = size.height - 1; y >= 0; --y) {
            if (xs.empty() || !ys.contains(y)) {
                pixels.fill(to[y], 0, size.width, fill);
                continue;
            }
            pixels.fill(to[y], 0, xs.first, fill);
            pixels.copy(to[y], xs.first, from[y - place.y], xs.first - place.x, xs.count());
            pixels.fill(to[y], xs.last + 1, size.width, fill);
        }
    });
    return made;
}

std::unique_ptr<TextureCanvas> scaled(const TextureCanvas& canvas, Size size) {
    std::unique_ptr<TextureCanvas> made = canvasLike(canvas, size);
    if (made == nullptr || canvas.width() <= 0 || canvas.height() <= 0)
        return nullptr;
    const auto columns = columnsUnderMiddles(canvas.width(), size.width);
    if (columns == nullptr)
        return nullptr;
    const std::span<const std::int32_t> sources(columns.get(), static_cast<std::size_t>(size.width));
    const ReadRows from(canvas);
    const WriteRows to(*made);
    visitDepth<PixelRuns>(canvas.bitsPerPixel(), [&](auto pixels) {
        std::int64_t drawn = -1;
        for (std::int64_t y = size.height - 1; y >= 0; --y) {
            const std::int64_t source = (2 * y + 1) * canvas.height() / (2 * std::int64_t{size.height});
            if (source == drawn)
                pixels.copy(to[y], 0, to[y + 1], 0, size.width);
            else if (size.width == canvas.width())
                pixels.copy(to[y], 0, from[source], 0, size.width);
            else
                pixels.gather(to[y], 0, from[source], sources);
            drawn = source;
        }
    });
    return made;
}

std::unique_ptr<TextureCanvas> shifted(const TextureCanvas& canvas, Point by) {
    const Size size{canvas.width(), canvas.height()};
    std::unique_ptr<TextureCanvas> made = canvasLike(canvas, size);
    if (made == nullptr)
        return nullptr;
    const std::int32_t right = wrapped(by.x, size.width);
    const std::int32_t down = wrapped(by.y, size.height);
    const ReadRows from(canvas);
    const WriteRows to(*made);
    visitDepth<PixelRuns>(canvas.bitsPerPixel(), [&](auto pixels) {
        for (std::int64_t y = size.height - 1; y >= 0; --y) {
            const std::uint8_t* source = from[y < down ? y - down + size.height : y - down];
            pixels.copy(to[y], right, source, 0, size.width - right);
            pixels.copy(to[y], 0, source, size.width - right, right);
        }
    });
    return made;
}

} // namespace dyeworks
