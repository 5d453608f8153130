#include "paint/PixelRuns.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>

namespace dyeworks {

namespace {

std::unique_ptr<TextureCanvas> newCanvas() {
    return std::unique_ptr<TextureCanvas>(new (std::nothrow) TextureCanvas);
}

} // namespace

void TextureCanvas::Flip(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                         std::uint32_t flags) {
    const Rect area = Rect{x1, y1, x2, y2}.normalised();
    if (isPlain())
        flipByRuns(area, flags);
    else
        flipByPixels(area, flags);
}

void TextureCanvas::flipByPixels(const Rect& area, std::uint32_t flags) {
    const auto swapPixels = [this](std::int64_t xA, std::int64_t yA, std::int64_t xB, std::int64_t yB) {
        const auto ax = static_cast<std::int32_t>(xA);
        const auto ay = static_cast<std::int32_t>(yA);
        const auto bx = static_cast<std::int32_t>(xB);
        const auto by = static_cast<std::int32_t>(yB);
        const std::uint32_t a = GetPixel(ax, ay);
        const std::uint32_t b = GetPixel(bx, by);
        SetPixel(ax, ay, b);
        SetPixel(bx, by, a);
    };
    const std::int64_t left = area.left;
    const std::int64_t right = area.right;
    const std::int64_t top = area.top;
    const std::int64_t bottom = area.bottom;
    if ((flags & kFlipHorizontal) != 0) {
        for (std::int64_t y = top; y <= bottom; ++y) {
            for (std::int64_t k = 0; k <= (right - left) / 2; ++k)
                swapPixels(left + k, y, right - k, y);
        }
    }
    if ((flags & kFlipVertical) != 0) {
        for (std::int64_t k = 0; k <= (bottom - top) / 2; ++k) {
            for (std::int64_t x = left; x <= right; ++x)
                swapPixels(x, top + k, x, bottom - k);
        }
    }
}

void TextureCanvas::flipByRuns(const Rect& area, std::uint32_t flags) {
    const Range xs = overlap({area.left, area.right}, columns());
    const Range ys = overlap({area.top, area.bottom}, rows());
    if ((flags & (kFlipHorizontal | kFlipVertical)) == 0 || xs.empty() || ys.empty())
        return;
    // Where the mirror image of the part inside the canvas is inside as well, pixels change places; the
    // others receive the 0 that is read outside.
    const std::int64_t xSum = std::int64_t{area.left} + area.right;
    const std::int64_t ySum = std::int64_t{area.top} + area.bottom;
    const Range mirroredXs = overlap(xs, {xSum - xs.last, xSum - xs.first});
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        const auto mirrored = [&](std::int64_t y) {
            std::uint8_t* pixelRow = row(y);
            if ((flags & kFlipHorizontal) == 0)
                return pixelRow;
            if (mirroredXs.empty()) {
                pixels.fill(pixelRow, xs.first, xs.last + 1, 0);
                return pixelRow;
            }
            pixels.fill(pixelRow, xs.first, mirroredXs.first, 0);
            pixels.reverse(pixelRow, mirroredXs.first, mirroredXs.last + 1);
            pixels.fill(pixelRow, mirroredXs.last + 1, xs.last + 1, 0);
            return pixelRow;
        };
        // Rows are mirrored right before they change places, while they are at hand.
        for (std::int64_t y = ys.last; y >= ys.first; --y) {
            const std::int64_t other = (flags & kFlipVertical) != 0 ? ySum - y : y;
            if (other == y)
                mirrored(y);
            else if (!ys.contains(other))
                pixels.fill(row(y), xs.first, xs.last + 1, 0);
            else if (y < other)
                pixels.swap(mirrored(y), mirrored(other), xs.first, xs.last + 1);
        }
    });
    extendChanged(xs, ys);
}

bool TextureCanvas::CopyTo(TextureCanvas& target, std::int32_t x, std::int32_t y) const {
    if (sharesRunsWith(target)) {
        copyToByRuns(target, x, y);
        return true;
    }
    constexpr Range kNameable{std::numeric_limits<std::int32_t>::min(),
                              std::numeric_limits<std::int32_t>::max()};
    const auto valueAt = [this, kNameable](std::int64_t atX, std::int64_t atY) {
        return kNameable.contains(atX) && kNameable.contains(atY)
                   ? GetPixel(static_cast<std::int32_t>(atX), static_cast<std::int32_t>(atY))
                   : 0;
    };
    for (std::int32_t j = 0; j < target.height_; ++j) {
        for (std::int32_t i = 0; i < target.width_; ++i)
            target.SetPixel(i, j, valueAt(std::int64_t{x} + i, std::int64_t{y} + j));
    }
    return true;
}

void TextureCanvas::copyToByRuns(TextureCanvas& target, std::int32_t x, std::int32_t y) const {
    const Range all = target.columns();
    if (all.empty())
        return;
    // The target's columns that this canvas has; those beside them become 0.
    const Range inside = overlap(all, shifted(columns(), x));
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        for (std::int64_t j = 0; j < target.height_; ++j) {
            std::uint8_t* to = target.row(j);
            if (inside.empty() || !rows().contains(y + j)) {
                pixels.fill(to, 0, all.count(), 0);
                continue;
            }
            pixels.fill(to, 0, inside.first, 0);
            pixels.copy(to, inside.first, row(y + j), x + inside.first, inside.count());
            pixels.fill(to, inside.last + 1, all.count(), 0);
        }
    });
    target.extendChanged(all, target.rows());
}

std::unique_ptr<TextureCanvas> TextureCanvas::CopyRect(std::int32_t x1, std::int32_t y1, std::int32_t x2,
                                                       std::int32_t y2) const {
    constexpr std::int64_t kLongestCopy = std::numeric_limits<std::int32_t>::max();
    const std::int64_t width = std::int64_t{x2} - x1 + 1;
    const std::int64_t height = std::int64_t{y2} - y1 + 1;
    // Every byte of the rows is written once when all of them come from this canvas.
    const bool inside = isPlain() && depthMask() != 0 && x1 >= 0 && y1 >= 0 && x2 < width_ && y2 < height_;
    std::unique_ptr<TextureCanvas> copy = newCanvas();
    if (copy == nullptr || width < 0 || height < 0 || width > kLongestCopy || height > kLongestCopy ||
        !copy->allocate(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), planes_,
                        bitsPerPixel_, inside ? BlockContents::Undefined : BlockContents::Zeroed))
        return nullptr;
    copy->copyColourTableFrom(*this);
    if (inside)
        copy->cutRows(*this, x1, y1);
    else
        CopyTo(*copy, x1, y1);
    return copy;
}

/// Fills this canvas, whose rows may hold anything, with the part of `source` at (x, y).
void TextureCanvas::cutRows(const TextureCanvas& source, std::int64_t x, std::int64_t y) {
    if (columns().empty() || rows().empty())
        return;
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        constexpr std::size_t kWord = 4;
        for (std::int64_t j = std::int64_t{height_} - 1; j >= 0; --j) {
            std::uint8_t* to = row(j);
            // What pads a row lies in its last word.
            std::memset(to + stride_ - kWord, 0, kWord);
            pixels.copy(to, 0, source.row(y + j), x, width_);
        }
    });
    extendChanged(columns(), rows());
}

std::unique_ptr<TextureCanvas> TextureCanvas::Clone() const {
    std::unique_ptr<TextureCanvas> copy = newCanvas();
    if (copy == nullptr || !copy->allocate(width_, height_, planes_, bitsPerPixel_, BlockContents::Undefined))
        return nullptr;
    copy->copyColourTableFrom(*this);
    const std::span<const std::uint8_t> from = pixelRows();
    std::copy(from.begin(), from.end(), copy->row(std::int64_t{height_} - 1));
    return copy;
}

bool TextureCanvas::CopyFrom(const TextureCanvas& source) {
    if (!hasGeometryOf(source))
        return false;
    const std::span<const std::uint8_t> from = source.pixelRows();
    // A canvas may be copied from itself.
    if (!from.empty())
        std::memmove(row(std::int64_t{height_} - 1), from.data(), from.size());
    SetChangedRect(wholeRect());
    written_ = wholeRect();
    return true;
}

bool TextureCanvas::CopyRectFrom(const TextureCanvas& source, const Rect& rectangle) {
    if (!hasGeometryOf(source))
        return false;
    const Range xs = overlap({rectangle.left, rectangle.right}, columns());
    const Range ys = overlap({rectangle.top, rectangle.bottom}, rows());
    if (&source == this || xs.empty() || ys.empty())
        return true;
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        // From the bottom up, as the rows lie.
        for (std::int64_t y = ys.last; y >= ys.first; --y)
            pixels.copy(row(y), xs.first, source.row(y), xs.first, xs.count());
    });
    extendChanged(xs, ys);
    return true;
}

bool TextureCanvas::StretchPaste(const TextureCanvas& source, std::int32_t x1, std::int32_t y1,
                                 std::int32_t x2, std::int32_t y2) {
    const std::int64_t width = std::int64_t{x2} - x1;
    const std::int64_t height = std::int64_t{y2} - y1;
    if (width <= 0 || height <= 0)
        return true;
    const double scaleX = source.width_ / static_cast<double>(width);
    const double scaleY = source.height_ / static_cast<double>(height);
    const auto sourceX = [scaleX](std::int64_t i) {
        return static_cast<std::int32_t>(static_cast<double>(i) * scaleX);
    };
    const auto sourceY = [scaleY](std::int64_t j) {
        return static_cast<std::int32_t>(static_cast<double>(j) * scaleY);
    };
    // Columns and rows of the rectangle that lie inside this canvas.
    const Range is = overlap({0, width - 1}, shifted(columns(), x1));
    const Range js = overlap({0, height - 1}, shifted(rows(), y1));
    if (is.empty() || js.empty())
        return true;

    if (!sharesRunsWith(source) || source.width_ == 0 || source.height_ == 0) {
        for (std::int64_t j = js.first; j <= js.last; ++j) {
            for (std::int64_t i = is.first; i <= is.last; ++i)
                SetPixel(static_cast<std::int32_t>(x1 + i), static_cast<std::int32_t>(y1 + j),
                         source.GetPixel(sourceX(i), sourceY(j)));
        }
        return true;
    }

    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        // The source columns of a few hundred columns at a time, so that any width goes without a heap.
        std::array<std::int32_t, 1024> map;
        for (std::int64_t i = is.first; i <= is.last; i += static_cast<std::int64_t>(map.size())) {
            const std::int64_t count = std::min<std::int64_t>(is.last - i + 1, map.size());
            for (std::int64_t k = 0; k < count; ++k)
                map[static_cast<std::size_t>(k)] = std::min(sourceX(i + k), source.width_ - 1);
            const std::span<const std::int32_t> sourceColumns(map.data(), static_cast<std::size_t>(count));
            std::int32_t drawnY = -1;
            for (std::int64_t j = js.first; j <= js.last; ++j) {
                const std::int32_t fromY = std::min(sourceY(j), source.height_ - 1);
                std::uint8_t* to = row(y1 + j);
                if (fromY == drawnY)
                    pixels.copy(to, x1 + i, row(y1 + j - 1), x1 + i, count);
                else if (width == source.width_)
                    pixels.copy(to, x1 + i, source.row(fromY), i, count);
                else
                    pixels.gather(to, x1 + i, source.row(fromY), sourceColumns);
                drawnY = fromY;
            }
        }
    });
    extendChanged({x1 + is.first, x1 + is.last}, {y1 + js.first, y1 + js.last});
    return true;
}

} // namespace dyeworks
