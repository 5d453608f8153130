#include "paint/PixelRuns.h"
#include "paint/ShapeWalk.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <limits>

namespace dyeworks {

/// Draws through the canvas's own pixel write, one pixel after the other in the order of the shape.
class TextureCanvas::PixelPen {
public:
    PixelPen(TextureCanvas& canvas, std::uint32_t value)
        : canvas_(canvas)
        , value_(value) {}

    /// The columns (rows) worth visiting: all that can be named.
    [[nodiscard]] static Range columns() { return kEverything; }
    [[nodiscard]] static Range rows() { return kEverything; }

    bool point(std::int64_t x, std::int64_t y) {
        return kEverything.contains(x) && kEverything.contains(y) &&
               canvas_.SetPixel(static_cast<std::int32_t>(x), static_cast<std::int32_t>(y), value_);
    }

    void span(Range xs, std::int64_t y) {
        for (std::int64_t x = xs.first; x <= xs.last; ++x)
            point(x, y);
    }

    void box(Range xs, Range ys) {
        for (std::int64_t y = ys.first; y <= ys.last; ++y)
            span(xs, y);
    }

    /// The same span in two rows, column by column.
    void twoSpans(Range xs, std::int64_t y1, std::int64_t y2) {
        for (std::int64_t x = xs.first; x <= xs.last; ++x) {
            point(x, y1);
            point(x, y2);
        }
    }

private:
    static constexpr Range kEverything{std::numeric_limits<std::int32_t>::min(),
                                       std::numeric_limits<std::int32_t>::max()};
    TextureCanvas& canvas_;
    std::uint32_t value_;
};

/// Draws whole runs, and only what lies inside the canvas.
class TextureCanvas::SpanPen {
public:
    SpanPen(TextureCanvas& canvas, std::uint32_t value)
        : canvas_(canvas)
        , value_(value) {}

    [[nodiscard]] Range columns() const { return canvas_.columns(); }
    [[nodiscard]] Range rows() const { return canvas_.rows(); }

    bool point(std::int64_t x, std::int64_t y) {
        return columns().contains(x) && rows().contains(y) &&
               canvas_.TextureCanvas::SetPixel(static_cast<std::int32_t>(x), static_cast<std::int32_t>(y),
                                               value_);
    }

    bool line(const shapes::BresenhamLine& line, Range steps, bool isSteep) {
        if (steps.empty())
            return false;
        if (canvas_.bitsPerPixel_ == 24) // A row with its padding need not be whole pixels.
            return line.walk(steps, [&](std::int64_t major, std::int64_t minor) {
                return isSteep ? point(minor, major) : point(major, minor);
            });
        const auto placeAt = [&](std::int64_t step) {
            const auto along = static_cast<std::uint64_t>(step);
            const std::int64_t major = line.major.at(along);
            const std::int64_t minor = line.minorAt(along);
            return Point{static_cast<std::int32_t>(isSteep ? minor : major),
                         static_cast<std::int32_t>(isSteep ? major : minor)};
        };
        const Point first = placeAt(steps.first);
        const Point last = placeAt(steps.last);
        visitDepth<PixelAccess>(canvas_.bitsPerPixel_, [&](auto pixels) {
            // All pixels numbered through from the lowest row up; rows are whole pixels with their padding.
            constexpr int kBits = std::max(decltype(pixels)::kBits, 1);
            const std::int64_t perRow = std::int64_t{canvas_.stride_} * 8 / kBits;
            std::uint8_t* const lowest = canvas_.row(canvas_.height_ - 1);
            const std::int64_t down = -perRow;
            const std::int64_t majorStep = line.major.direction * (isSteep ? down : 1);
            const std::int64_t bothStep = majorStep + line.minor.direction * (isSteep ? 1 : down);
            std::int64_t at = first.x + (canvas_.height_ - 1 - first.y) * perRow;
            const std::uint32_t value = value_;
            line.follow(
                steps, [&] { pixels.set(lowest, at, value); },
                [&](bool both) { at += both ? bothStep : majorStep; });
        });
        const auto columns = std::minmax(first.x, last.x);
        const auto rows = std::minmax(first.y, last.y);
        canvas_.extendChanged({columns.first, columns.second}, {rows.first, rows.second});
        return line.endsWith(steps);
    }

    void span(Range xs, std::int64_t y) {
        const Range inside = overlap(xs, columns());
        if (inside.empty() || !rows().contains(y))
            return;
        std::uint8_t* row = canvas_.row(y);
        visitDepth<PixelRuns>(canvas_.bitsPerPixel_,
                              [&](auto pixels) { pixels.fill(row, inside.first, inside.last + 1, value_); });
        canvas_.extendChanged(inside, {y, y});
    }

    void box(Range xs, Range ys) {
        const Range insideX = overlap(xs, columns());
        const Range insideY = overlap(ys, rows());
        if (insideX.empty() || insideY.empty())
            return;
        visitDepth<PixelRuns>(canvas_.bitsPerPixel_, [&](auto pixels) {
            if (insideX == columns() && canvas_.rowsHaveNoPadding()) {
                // The rows are one run, the lowest one first.
                pixels.fill(canvas_.row(insideY.last), 0, insideX.count() * insideY.count(), value_);
                return;
            }
            for (std::int64_t y = insideY.first; y <= insideY.last; ++y)
                pixels.fill(canvas_.row(y), insideX.first, insideX.last + 1, value_);
        });
        canvas_.extendChanged(insideX, insideY);
    }

    void twoSpans(Range xs, std::int64_t y1, std::int64_t y2) {
        span(xs, y1);
        span(xs, y2);
    }

private:
    TextureCanvas& canvas_;
    std::uint32_t value_;
};

bool TextureCanvas::DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                             std::uint32_t value) {
    return isPlain() ? shapes::drawLine(SpanPen(*this, value), {x1, y1}, {x2, y2})
                     : shapes::drawLine(PixelPen(*this, value), {x1, y1}, {x2, y2});
}

void TextureCanvas::DrawBox(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                            std::uint32_t value) {
    const Rect box = Rect{x1, y1, x2, y2}.normalised();
    isPlain() ? shapes::drawBox(SpanPen(*this, value), box) : shapes::drawBox(PixelPen(*this, value), box);
}

void TextureCanvas::FillBox(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                            std::uint32_t value) {
    const Rect box = Rect{x1, y1, x2, y2}.normalised();
    const Range xs{box.left, box.right};
    const Range ys{box.top, box.bottom};
    isPlain() ? SpanPen(*this, value).box(xs, ys) : PixelPen(*this, value).box(xs, ys);
}

void TextureCanvas::DrawEllipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                                std::uint32_t value) {
    const Rect box = Rect{x1, y1, x2, y2}.normalised();
    isPlain() ? shapes::drawEllipse(SpanPen(*this, value), box)
              : shapes::drawEllipse(PixelPen(*this, value), box);
}

void TextureCanvas::FillEllipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                                std::uint32_t value) {
    const Rect box = Rect{x1, y1, x2, y2}.normalised();
    isPlain() ? shapes::fillEllipse(SpanPen(*this, value), box)
              : shapes::fillEllipse(PixelPen(*this, value), box);
}

} // namespace dyeworks
