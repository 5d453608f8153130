#pragma once

#include "paint/Range.h"
#include "paint/Rect.h"

#include <algorithm>
#include <cstdint>

/// Which pixels a shape consists of, in the order in which they are drawn. A pen draws them:
///
/// - `columns()`, `rows()`: what is worth visiting; the walks leave out what lies beside them where that
/// saves
///   steps, and may call the pen for some of it all the same;
/// - `bool point(x, y)`: one pixel; whether it was drawn;
/// - `bool line(line, steps, isSteep)`, for a pen that knows a better way than points: the steps of a line,
/// none of which
///   lies outside; whether its end point was drawn;
/// - `span(xs, y)`: a run in a row; `twoSpans(xs, y1, y2)`: the same run in two rows.
///
/// Boxes have their right and bottom inside, left <= right and top <= bottom.
namespace dyeworks::shapes {

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

    /// The minor coordinate at a step along the major axis.
    [[nodiscard]] std::int64_t minorAt(std::uint64_t step) const {
        return major.length == 0 ? minor.start : minor.at(sum(step) / major.length);
    }

    /// Whether the end point of the line is the last of the steps.
    [[nodiscard]] bool endsWith(Range steps) const {
        return !steps.empty() && steps.last == static_cast<std::int64_t>(major.length);
    }

    /// From where the first of the steps is, calls mark() for each of them, with advance(false) between two
    /// of them that differ along the major axis alone, and advance(true) where they differ along both.
    template <typename Mark, typename Advance>
    void follow(Range steps, Mark&& mark, Advance&& advance) const {
        if (steps.empty())
            return;
        mark();
        if (major.length == 0)
            return;
        const auto gain = static_cast<std::int64_t>(minor.length);
        const auto loss = static_cast<std::int64_t>(major.length - minor.length);
        auto error = static_cast<std::int64_t>(sum(static_cast<std::uint64_t>(steps.first)) % major.length);
        for (std::int64_t left = steps.last - steps.first; left > 0; --left) {
            const bool both = error >= loss;
            error += both ? -loss : gain;
            advance(both);
            mark();
        }
    }

    /// Calls plot(major coordinate, minor coordinate) for each of the steps; false unless the last call, for
    /// the end point of the line, gave true.
    template <typename Plot>
    bool walk(Range steps, Plot&& plot) const {
        if (steps.empty())
            return false;
        std::uint64_t step = static_cast<std::uint64_t>(steps.first);
        std::int64_t minorCoordinate = minorAt(step);
        bool written = false;
        follow(
            steps, [&] { written = plot(major.at(step), minorCoordinate); },
            [&](bool both) {
                ++step;
                minorCoordinate += both ? minor.direction : 0;
            });
        return written && endsWith(steps);
    }
};

/// Draws a line with the pen's `line`, if it has one, or else with its `point`; the result is that of the
/// last pixel.
template <typename Pen>
bool drawLine(Pen pen, Point from, Point to) {
    const LineAxis x(from.x, to.x);
    const LineAxis y(from.y, to.y);
    const bool isSteep = y.length > x.length;
    const BresenhamLine line = isSteep ? BresenhamLine{y, x} : BresenhamLine{x, y};
    const Range steps =
        isSteep ? line.stepsInside(pen.rows(), pen.columns()) : line.stepsInside(pen.columns(), pen.rows());
    if constexpr (requires { pen.line(line, steps, isSteep); })
        return pen.line(line, steps, isSteep);
    return line.walk(steps, [&](std::int64_t major, std::int64_t minor) {
        return isSteep ? pen.point(minor, major) : pen.point(major, minor);
    });
}

/// The outline of a box, by `span` and `point`.
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

/// False when not even a flat one that runs past its corners can reach the columns and rows: then there is no
/// need to walk what may be billions of steps. A quarter ends where its slopes meet, at most at 1.42 of its
/// half axis.
inline bool ellipseReaches(const Rect& box, Range columns, Range rows) {
    const auto reaches = [](std::int64_t low, std::int64_t high, Range range) {
        const std::int64_t margin = (high - low) + 2;
        return high + margin >= range.first && low - margin <= range.last;
    };
    return reaches(box.left, box.right, columns) && reaches(box.top, box.bottom, rows);
}

inline std::int64_t truncated(double value) {
    return static_cast<std::int64_t>(value);
}

/// The ellipse inscribed in the box, by `point`.
template <typename Pen>
void drawEllipse(Pen pen, const Rect& box) {
    if (!ellipseReaches(box, pen.columns(), pen.rows()))
        return;
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

/// The same filled, by `twoSpans`.
template <typename Pen>
void fillEllipse(Pen pen, const Rect& box) {
    if (!ellipseReaches(box, pen.columns(), pen.rows()))
        return;
    walkEllipse(
        box,
        [&](const EllipsePoint& at) {
            pen.twoSpans({at.left(), at.right()}, truncated(at.cy - at.w), truncated(at.cy + 0.5 + at.w));
        },
        [&](const EllipsePoint& at) {
            pen.twoSpans({at.left(), at.right()}, truncated(at.cy + 0.5 - at.w), truncated(at.cy + at.w));
        });
}

} // namespace dyeworks::shapes
