#include "paint/PixelRuns.h"
#include "paint/ShapeWalk.h"
#include "paint/TextureCanvas.h"

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
