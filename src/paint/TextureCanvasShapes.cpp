#include "paint/PixelRuns.h"
#include "paint/TextureCanvas.h"

#include <limits>
#include <optional>
#include <utility>

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

namespace {

/// One coordinate of a line from its start to its end.
struct LineAxis {
    LineAxis(std::int32_t from, std::int32_t to)
        : start(from)
        , direction(from < to ? 1 : -1)
        , length(static_cast<std::uint64_t>((std::int64_t{to} - from) * (from < to ? 1 : -1))) {}

    [[nodiscard]] std::int64_t at(std::uint64_t step) const {
        return start + direction * static_cast<std::int64_t>(step);
    }

    /// The steps, of 0 to `length`, that lie inside `range`.
    [[nodiscard]] Range stepsInside(Range range) const {
        const Range steps = direction > 0 ? Range{range.first - start, range.last - start}
                                          : Range{start - range.last, start - range.first};
        return overlap(steps, {0, static_cast<std::int64_t>(length)});
    }

    std::int64_t start;
    std::int64_t direction;
    std::uint64_t length;
};

/// Bresenham's line: at step k along the major axis the minor one has made
/// (major.length / 2 + k * minor.length) / major.length steps. This fits in 64 bits for any coordinates.
struct BresenhamLine {
    LineAxis major;
    LineAxis minor;

    [[nodiscard]] std::uint64_t sum(std::uint64_t step) const {
        return major.length / 2 + step * minor.length;
    }

    /// The steps whose pixels lie inside both ranges.
    [[nodiscard]] Range stepsInside(Range majorRange, Range minorRange) const {
        Range steps = major.stepsInside(majorRange);
        const Range minorSteps = minor.stepsInside(minorRange);
        if (minorSteps.empty())
            return {};
        const std::uint64_t half = major.length / 2;
        const auto first = static_cast<std::uint64_t>(minorSteps.first);
        const auto last = static_cast<std::uint64_t>(minorSteps.last);
        if (first > 0) {
            const std::uint64_t missing = first * major.length - half;
            const std::uint64_t reached = missing / minor.length + (missing % minor.length != 0 ? 1 : 0);
            steps.first = std::max(steps.first, static_cast<std::int64_t>(reached));
        }
        if (last < minor.length) {
            const std::uint64_t left = ((last + 1) * major.length - half - 1) / minor.length;
            steps.last = std::min(steps.last, static_cast<std::int64_t>(left));
        }
        return steps;
    }

    /// Calls plot(major coordinate, minor coordinate) for each of the steps; false unless the last call, for
    /// the end point of the line, gave true.
    template <typename Plot>
    bool walk(Range steps, Plot&& plot) const {
        if (steps.empty())
            return false;
        if (major.length == 0)
            return plot(major.start, minor.start);
        std::uint64_t minorStep = sum(static_cast<std::uint64_t>(steps.first)) / major.length;
        std::uint64_t error = sum(static_cast<std::uint64_t>(steps.first)) % major.length;
        bool written = false;
        for (std::int64_t step = steps.first; step <= steps.last; ++step) {
            written = plot(major.at(static_cast<std::uint64_t>(step)), minor.at(minorStep));
            error += minor.length;
            if (error >= major.length) {
                ++minorStep;
                error -= major.length;
            }
        }
        return written && steps.last == static_cast<std::int64_t>(major.length);
    }
};

template <typename Pen>
bool drawLine(Pen pen, const LineAxis& x, const LineAxis& y) {
    if (x.length >= y.length) {
        const BresenhamLine line{x, y};
        return line.walk(line.stepsInside(pen.columns(), pen.rows()),
                         [&](std::int64_t atX, std::int64_t atY) { return pen.point(atX, atY); });
    }
    const BresenhamLine line{y, x};
    return line.walk(line.stepsInside(pen.rows(), pen.columns()),
                     [&](std::int64_t atY, std::int64_t atX) { return pen.point(atX, atY); });
}

template <typename Pen>
void drawBox(Pen pen, const Rect& box) {
    const Range xs{box.left, box.right};
    pen.span(xs, box.top);
    pen.span(xs, box.bottom);
    const Range ys = overlap({box.top, box.bottom}, pen.rows());
    for (const std::int64_t x : {box.left, box.right}) {
        if (!pen.columns().contains(x))
            continue;
        for (std::int64_t y = ys.first; y <= ys.last; ++y)
            pen.point(x, y);
    }
}

/// An ellipse's centre and, while it is walked, the distances from it: u in x, w in y.
struct EllipsePoint {
    double cx = 0;
    double cy = 0;
    double u = 0;
    double w = 0;

    // The half on one side of each pair makes the shape symmetric for odd and even extents.
    [[nodiscard]] std::int64_t left() const { return static_cast<std::int64_t>(cx - u); }
    [[nodiscard]] std::int64_t right() const { return static_cast<std::int64_t>(cx + 0.5 + u); }
};

/// Walks a quarter of the ellipse inscribed in the box from its left end (`steep`, a step per row) and from
/// its top (`flat`, a step per column) until the slopes meet. A very flat one runs past its corners.
template <typename Steep, typename Flat>
void walkEllipse(const Rect& box, Steep&& steep, Flat&& flat) {
    const double width = static_cast<double>(std::int64_t{box.right} - box.left);
    const double height = static_cast<double>(std::int64_t{box.bottom} - box.top);
    if (width == 0 || height == 0)
        return;
    const double a = width / 2;
    const double b = height / 2;
    EllipsePoint at{box.left + a, box.top + b, a, 0};
    double d = -b;
    do {
        steep(at);
        at.w = at.w + 1;
        d = d + (2 * at.w * a) / b;
        if (d >= 0) {
            at.u = at.u - 1;
            d = d - (2 * at.u * b) / a;
        }
    } while (d <= 0);

    at.u = 0;
    at.w = b;
    d = -a;
    do {
        flat(at);
        at.u = at.u + 1;
        d = d + (2 * at.u * b) / a;
        if (d >= 0) {
            at.w = at.w - 1;
            d = d - (2 * at.w * a) / b;
        }
    } while (d <= 0);
}

/// False when not even a flat one that runs past its corners can reach the canvas: then there is no need to
/// walk what may be billions of steps. A quarter ends where its slopes meet, at most at 1.42 of its half
/// axis.
bool ellipseReaches(const Rect& box, Range columns, Range rows) {
    const auto reaches = [](std::int64_t low, std::int64_t high, Range range) {
        const std::int64_t margin = (high - low) + 2;
        return high + margin >= range.first && low - margin <= range.last;
    };
    return reaches(box.left, box.right, columns) && reaches(box.top, box.bottom, rows);
}

std::int64_t truncated(double value) {
    return static_cast<std::int64_t>(value);
}

template <typename Pen>
void drawEllipse(Pen pen, const Rect& box) {
    walkEllipse(
        box,
        [&](const EllipsePoint& at) {
            pen.point(at.left(), truncated(at.cy + 0.5 + at.w));
            pen.point(at.left(), truncated(at.cy - at.w));
            pen.point(at.right(), truncated(at.cy + 0.5 + at.w));
            pen.point(at.right(), truncated(at.cy - at.w));
        },
        [&](const EllipsePoint& at) {
            pen.point(at.right(), truncated(at.cy + at.w));
            pen.point(at.right(), truncated(at.cy + 0.5 - at.w));
            pen.point(at.left(), truncated(at.cy + at.w));
            pen.point(at.left(), truncated(at.cy + 0.5 - at.w));
        });
}

template <typename Pen>
void fillEllipse(Pen pen, const Rect& box) {
    walkEllipse(
        box,
        [&](const EllipsePoint& at) {
            pen.twoSpans({at.left(), at.right()}, truncated(at.cy - at.w), truncated(at.cy + 0.5 + at.w));
        },
        [&](const EllipsePoint& at) {
            pen.twoSpans({at.left(), at.right()}, truncated(at.cy + 0.5 - at.w), truncated(at.cy + at.w));
        });
}

} // namespace

bool TextureCanvas::DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                             std::uint32_t value) {
    const LineAxis x(x1, x2);
    const LineAxis y(y1, y2);
    return isPlain() ? drawLine(SpanPen(*this, value), x, y) : drawLine(PixelPen(*this, value), x, y);
}

void TextureCanvas::DrawBox(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                            std::uint32_t value) {
    const Rect box = Rect{x1, y1, x2, y2}.normalised();
    isPlain() ? drawBox(SpanPen(*this, value), box) : drawBox(PixelPen(*this, value), box);
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
    if (!isPlain())
        drawEllipse(PixelPen(*this, value), box);
    else if (ellipseReaches(box, columns(), rows()))
        drawEllipse(SpanPen(*this, value), box);
}

void TextureCanvas::FillEllipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                                std::uint32_t value) {
    const Rect box = Rect{x1, y1, x2, y2}.normalised();
    if (!isPlain())
        fillEllipse(PixelPen(*this, value), box);
    else if (ellipseReaches(box, columns(), rows()))
        fillEllipse(SpanPen(*this, value), box);
}

} // namespace dyeworks
