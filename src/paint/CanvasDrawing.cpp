#include "paint/CanvasDrawing.h"

#include "paint/Range.h"
#include "paint/ShapeWalk.h"
#include "paint/TextureCanvas.h"
#include "paint/WrapCopies.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace dyeworks {

namespace {

/// Where a range of a direction without edges lies in `size` texels: in one piece or in two.
struct FoldedRange {
    std::array<Range, 2> pieces;

    FoldedRange(Range range, std::int64_t size, bool wrap)
        : pieces{overlap(range, {0, size - 1}), Range{}} {
        if (!wrap || range.empty() || size <= 0)
            return;
        if (range.count() >= size) {
            pieces[0] = {0, size - 1};
            return;
        }
        const std::int64_t first = folded(range.first, size);
        const std::int64_t last = first + range.count() - 1;
        pieces = {Range{first, std::min(last, size - 1)}, Range{0, last - size}};
    }
};

Range mirrored(Range range, std::int32_t size) {
    return {size - 1 - range.last, size - 1 - range.first};
}

} // namespace

/// Draws where the brush, the mirror and the edges that touch lead.
class CanvasDrawing::FoldingPen {
public:
    FoldingPen(CanvasDrawing& drawing, const Brush& brush)
        : canvas_(drawing.canvas_)
        , options_(drawing.options_)
        , brush_(brush)
        , spot_(brush)
        , value_(drawing.value_) {}

    [[nodiscard]] Range columns() const { return reach(canvas_.width()); }
    [[nodiscard]] Range rows() const { return reach(canvas_.height()); }

    bool point(std::int64_t x, std::int64_t y) {
        span({x, x}, y);
        return true;
    }

    void span(Range xs, std::int64_t y) {
        for (const Rect& box : spot_.boxes())
            mirror({xs.first + box.left, xs.last + box.right}, {y + box.top, y + box.bottom});
    }

    void twoSpans(Range xs, std::int64_t y1, std::int64_t y2) {
        span(xs, y1);
        span(xs, y2);
    }

    void mirror(Range xs, Range ys) {
        fold(xs, ys);
        if (options_.mirrorAcross)
            fold(mirrored(xs, canvas_.width()), ys);
        if (options_.mirrorDown)
            fold(xs, mirrored(ys, canvas_.height()));
        if (options_.mirrorAcross && options_.mirrorDown)
            fold(mirrored(xs, canvas_.width()), mirrored(ys, canvas_.height()));
    }

private:
    /// Where a point's brush may touch the image.
    [[nodiscard]] Range reach(std::int32_t size) const {
        if (options_.wrap)
            return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
        return {-std::int64_t{brush_.after()}, std::int64_t{size} - 1 + brush_.before()};
    }

    void fold(Range xs, Range ys) {
        const FoldedRange columns(xs, canvas_.width(), options_.wrap);
        const FoldedRange rows(ys, canvas_.height(), options_.wrap);
        for (const Range& down : rows.pieces) {
            for (const Range& across : columns.pieces) {
                if (!down.empty() && !across.empty())
                    canvas_.FillBox(
                        static_cast<std::int32_t>(across.first), static_cast<std::int32_t>(down.first),
                        static_cast<std::int32_t>(across.last), static_cast<std::int32_t>(down.last), value_);
            }
        }
    }

    TextureCanvas& canvas_;
    const DrawingOptions& options_;
    Brush brush_;
    BrushSpot spot_;
    std::uint32_t value_;
};

void CanvasDrawing::point(Point at) {
    if (options_.plain())
        canvas_.PutPixel(at.x, at.y, value_);
    else
        FoldingPen(*this, options_.brush).point(at.x, at.y);
}

void CanvasDrawing::line(Point from, Point to) {
    if (options_.plain())
        canvas_.DrawLine(from.x, from.y, to.x, to.y, value_);
    else
        shapes::drawLine(FoldingPen(*this, options_.brush), from, to);
}

void CanvasDrawing::box(Point a, Point b) {
    if (options_.plain())
        canvas_.DrawBox(a.x, a.y, b.x, b.y, value_);
    else
        shapes::drawBox(FoldingPen(*this, options_.brush), Rect{a.x, a.y, b.x, b.y}.normalised());
}

void CanvasDrawing::filledBox(Point a, Point b) {
    const Rect box = Rect{a.x, a.y, b.x, b.y}.normalised();
    if (!options_.mirrors() && !options_.wrap)
        canvas_.FillBox(box.left, box.top, box.right, box.bottom, value_);
    else
        FoldingPen(*this, {}).mirror({box.left, box.right}, {box.top, box.bottom});
}

/// Ellipses cut fractions off towards zero, and so are other ones left of zero and above it. Where all copies
/// of the image are the same, theirs must not be.
Rect CanvasDrawing::ellipseBox(Point a, Point b) const {
    Rect box = Rect{a.x, a.y, b.x, b.y}.normalised();
    if (!options_.wrap || canvas_.width() <= 0 || canvas_.height() <= 0)
        return box;
    // A flat one may run past its corners by less than its longer side.
    const std::int32_t margin = std::max(box.right - box.left, box.bottom - box.top) + 1;
    const auto wayPast = [margin](std::int32_t from, std::int32_t size) {
        return static_cast<std::int32_t>(folded(from, size)) - from + (margin / size + 1) * size;
    };
    const std::int32_t x = wayPast(box.left, canvas_.width());
    const std::int32_t y = wayPast(box.top, canvas_.height());
    return {box.left + x, box.top + y, box.right + x, box.bottom + y};
}

void CanvasDrawing::ellipse(Point a, Point b) {
    if (options_.plain())
        canvas_.DrawEllipse(a.x, a.y, b.x, b.y, value_);
    else
        shapes::drawEllipse(FoldingPen(*this, options_.brush), ellipseBox(a, b));
}

void CanvasDrawing::filledEllipse(Point a, Point b) {
    if (!options_.mirrors() && !options_.wrap)
        canvas_.FillEllipse(a.x, a.y, b.x, b.y, value_);
    else
        shapes::fillEllipse(FoldingPen(*this, {}), ellipseBox(a, b));
}

std::vector<Point> CanvasDrawing::mirrorImages(Point at) const {
    std::vector<Point> images{at};
    if (options_.mirrorAcross)
        images.push_back({canvas_.width() - 1 - at.x, at.y});
    if (options_.mirrorDown) {
        for (std::size_t count = images.size(), i = 0; i < count; ++i)
            images.push_back({images[i].x, canvas_.height() - 1 - images[i].y});
    }
    return images;
}

void CanvasDrawing::floodFill(Point seed) {
    for (const Point at : mirrorImages(seed)) {
        if (options_.wrap)
            fillAround(at);
        else
            canvas_.FloodFill(at.x, at.y, value_);
    }
}

/// The canvas's own fill, again and again from where what was filled touches the opposite edge.
void CanvasDrawing::fillAround(Point seed) {
    const std::int32_t width = canvas_.width();
    const std::int32_t height = canvas_.height();
    if (width <= 0 || height <= 0)
        return;
    seed = {static_cast<std::int32_t>(folded(seed.x, width)),
            static_cast<std::int32_t>(folded(seed.y, height))};
    const std::uint32_t old = canvas_.GetPixel(seed.x, seed.y);
    const auto isOld = [&](Point at) { return canvas_.GetPixel(at.x, at.y) == old; };
    // Pairs of neighbours across an edge that the fill may cross.
    std::vector<std::pair<Point, Point>> neighbours;
    const auto add = [&](Point first, Point second) {
        if (isOld(first) && isOld(second))
            neighbours.emplace_back(first, second);
    };
    for (std::int32_t y = 0; y < height; ++y)
        add({0, y}, {width - 1, y});
    for (std::int32_t x = 0; x < width; ++x)
        add({x, 0}, {x, height - 1});

    canvas_.FloodFill(seed.x, seed.y, value_);
    if (isOld(seed))
        return;
    for (bool again = true; again;) {
        again = false;
        for (const auto& [first, second] : neighbours) {
            if (isOld(first) == isOld(second))
                continue;
            const Point next = isOld(first) ? first : second;
            canvas_.FloodFill(next.x, next.y, value_);
            again = true;
        }
    }
}

void CanvasDrawing::paste(const TextureCanvas& piece, const Rect& place) {
    const auto pasteAt = [&](Point way) {
        canvas_.StretchPaste(piece, place.left + way.x, place.top + way.y, place.right + 1 + way.x,
                             place.bottom + 1 + way.y);
    };
    if (options_.wrap)
        forEachWrapCopy(place, {canvas_.width(), canvas_.height()}, pasteAt);
    else
        pasteAt({});
}

void CanvasDrawing::completePiece(TextureCanvas& piece, const Rect& place) const {
    const std::int32_t width = canvas_.width();
    const std::int32_t height = canvas_.height();
    if (!options_.wrap || width <= 0 || height <= 0)
        return;
    const auto firstFrom = [](std::int32_t start, std::int32_t size) {
        return -static_cast<std::int32_t>(folded(start, size));
    };
    for (std::int32_t y = firstFrom(place.top, height); y < piece.height(); y += height) {
        for (std::int32_t x = firstFrom(place.left, width); x < piece.width(); x += width)
            piece.StretchPaste(canvas_, x, y, x + width, y + height);
    }
}

} // namespace dyeworks
