#include "PlainImage.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>

namespace dyeworks {

namespace {

std::int32_t truncated(double value) {
    return static_cast<std::int32_t>(value);
}

std::size_t placeOf(const PlainImage& image, Point where) {
    return static_cast<std::size_t>(where.y) * static_cast<std::size_t>(image.width) +
           static_cast<std::size_t>(where.x);
}

} // namespace

PlainImage PlainImage::blank(std::int32_t width, std::int32_t height, std::int32_t bits) {
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return {width, height, bits, std::vector<std::uint8_t>(count)};
}

std::uint32_t PlainImage::at(Point where) const {
    return holds(where) ? texels[placeOf(*this, where)] : 0U;
}

void PlainImage::put(Point where, std::uint32_t value) {
    if (holds(where))
        texels[placeOf(*this, where)] = static_cast<std::uint8_t>(value & mask());
}

Point PlainImage::folded(Point where) const {
    return {(where.x % width + width) % width, (where.y % height + height) % height};
}

std::vector<Point> PlainImage::mirrored(Point where, const PlainPen& pen) const {
    std::vector<Point> all;
    for (const bool down : {false, true}) {
        for (const bool across : {false, true}) {
            if (across <= pen.across && down <= pen.down)
                all.push_back(
                    {across ? width - 1 - where.x : where.x, down ? height - 1 - where.y : where.y});
        }
    }
    return all;
}

/// A round one falls short of half its size by an eighth of a texel. An even one reaches farther to the right
/// and down.
void PlainImage::dot(Point where, const PlainPen& pen) {
    const double middle = (pen.size - 1) / 2.0;
    const double radius = pen.size / 2.0 - 0.125;
    for (std::int32_t j = 0; j < pen.size; ++j) {
        for (std::int32_t i = 0; i < pen.size; ++i) {
            const double distance = (i - middle) * (i - middle) + (j - middle) * (j - middle);
            if (pen.round && distance > radius * radius)
                continue;
            const Point touched{where.x + i - (pen.size - 1) / 2, where.y + j - (pen.size - 1) / 2};
            for (const Point at : mirrored(touched, pen))
                put(pen.wrap ? folded(at) : at, pen.value);
        }
    }
}

void PlainImage::line(Point from, Point to, const PlainPen& pen) {
    const std::int32_t dx = std::abs(to.x - from.x);
    const std::int32_t dy = std::abs(to.y - from.y);
    const std::int32_t sx = from.x < to.x ? 1 : -1;
    const std::int32_t sy = from.y < to.y ? 1 : -1;
    const bool flat = dx >= dy;
    const std::int32_t steps = std::max(dx, dy);
    std::int32_t error = steps / 2;
    for (std::int32_t i = 0; i < steps; ++i) {
        dot(from, pen);
        error += std::min(dx, dy);
        const bool aside = error >= steps;
        if (aside)
            error -= steps;
        from.x += flat || aside ? sx : 0;
        from.y += !flat || aside ? sy : 0;
    }
    dot(to, pen);
}

void PlainImage::box(Rect corners, const PlainPen& pen) {
    const Rect r = corners.normalised();
    line({r.left, r.top}, {r.right, r.top}, pen);
    line({r.left, r.bottom}, {r.right, r.bottom}, pen);
    line({r.left, r.top}, {r.left, r.bottom}, pen);
    line({r.right, r.top}, {r.right, r.bottom}, pen);
}

void PlainImage::filledBox(Rect corners, const PlainPen& pen) {
    const Rect r = corners.normalised();
    for (std::int32_t y = r.top; y <= r.bottom; ++y) {
        for (std::int32_t x = r.left; x <= r.right; ++x)
            dot({x, y}, pen.thin());
    }
}

void PlainImage::ellipse(Rect corners, const PlainPen& pen, bool filled) {
    Rect r = corners.normalised();
    if (r.left == r.right || r.top == r.bottom)
        return;
    // Fractions are cut off towards zero. So that all copies of the image get the same, zero is far away
    // then.
    if (pen.wrap)
        r = {r.left + 1000 * width, r.top + 1000 * height, r.right + 1000 * width, r.bottom + 1000 * height};
    const double a = (r.right - r.left) / 2.0;
    const double b = (r.bottom - r.top) / 2.0;
    const double cx = r.left + a;
    const double cy = r.top + b;
    const auto pair = [&](double u, std::int32_t y) {
        const std::int32_t first = truncated(cx - u);
        const std::int32_t last = truncated(cx + 0.5 + u);
        if (!filled) {
            dot({first, y}, pen);
            dot({last, y}, pen);
        }
        for (std::int32_t x = first; filled && x <= last; ++x)
            dot({x, y}, pen.thin());
    };
    double u = a;
    double w = 0;
    double d = -b;
    do {
        pair(u, truncated(cy + 0.5 + w));
        pair(u, truncated(cy - w));
        w += 1;
        d += 2 * w * a / b;
        if (d >= 0) {
            u -= 1;
            d -= 2 * u * b / a;
        }
    } while (d <= 0);
    u = 0;
    w = b;
    d = -a;
    do {
        pair(u, truncated(cy + w));
        pair(u, truncated(cy + 0.5 - w));
        u += 1;
        d += 2 * u * b / a;
        if (d >= 0) {
            w -= 1;
            d -= 2 * w * a / b;
        }
    } while (d <= 0);
}

void PlainImage::flood(Point from, const PlainPen& pen) {
    for (const Point seed : mirrored(from, pen)) {
        std::vector<Point> waiting{pen.wrap ? folded(seed) : seed};
        const std::uint32_t target = at(waiting.front());
        while (target != (pen.value & mask()) && !waiting.empty()) {
            const Point next = pen.wrap ? folded(waiting.back()) : waiting.back();
            waiting.pop_back();
            if (!holds(next) || at(next) != target)
                continue;
            put(next, pen.value);
            for (const Point step : {Point{1, 0}, Point{-1, 0}, Point{0, 1}, Point{0, -1}})
                waiting.push_back({next.x + step.x, next.y + step.y});
        }
    }
}

void PlainImage::replace(Rect area, Point like, std::uint32_t value) {
    const Rect r = area.normalised();
    const std::uint32_t old = at(like);
    if (like.x < r.left || like.x > r.right || like.y < r.top || like.y > r.bottom)
        return;
    for (std::int32_t y = r.top; y <= r.bottom; ++y) {
        for (std::int32_t x = r.left; x <= r.right; ++x) {
            if (at({x, y}) == old)
                put({x, y}, value);
        }
    }
}

/// By pairs, so that of a pair that lies half outside the half inside becomes 0.
void PlainImage::flip(Rect area, bool across, bool down) {
    const Rect r = area.normalised();
    const auto swapped = [this](Point one, Point other) {
        const std::uint32_t of = at(one);
        const std::uint32_t with = at(other);
        put(one, with);
        put(other, of);
    };
    for (std::int32_t y = r.top; across && y <= r.bottom; ++y) {
        for (std::int32_t k = 0; k <= (r.right - r.left) / 2; ++k)
            swapped({r.left + k, y}, {r.right - k, y});
    }
    for (std::int32_t k = 0; down && k <= (r.bottom - r.top) / 2; ++k) {
        for (std::int32_t x = r.left; x <= r.right; ++x)
            swapped({x, r.top + k}, {x, r.bottom - k});
    }
}

PlainImage PlainImage::part(Rect area, bool wrap) const {
    PlainImage cut = blank(area.right - area.left + 1, area.bottom - area.top + 1, bits);
    for (std::int32_t y = 0; y < cut.height; ++y) {
        for (std::int32_t x = 0; x < cut.width; ++x)
            cut.put({x, y},
                    at(wrap ? folded({area.left + x, area.top + y}) : Point{area.left + x, area.top + y}));
    }
    return cut;
}

PlainImage PlainImage::turned(bool right) const {
    PlainImage made = blank(height, width, bits);
    for (std::int32_t y = 0; y < made.height; ++y) {
        for (std::int32_t x = 0; x < made.width; ++x)
            made.put({x, y}, right ? at({y, height - 1 - x}) : at({width - 1 - y, x}));
    }
    return made;
}

PlainImage PlainImage::shifted(Point by) const {
    PlainImage made = blank(width, height, bits);
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x)
            made.put(folded({x + by.x, y + by.y}), at({x, y}));
    }
    return made;
}

PlainImage PlainImage::resized(Point size, int anchor, std::uint32_t fill) const {
    PlainImage made = blank(size.x, size.y, bits);
    const auto moved = [](std::int32_t room, int part) {
        return part == 0 ? 0 : part == 2 ? room : (room + 1000) / 2 - 500;
    };
    const Point place{moved(size.x - width, anchor % 3), moved(size.y - height, anchor / 3)};
    for (std::int32_t y = 0; y < made.height; ++y) {
        for (std::int32_t x = 0; x < made.width; ++x) {
            const Point old{x - place.x, y - place.y};
            made.put({x, y}, holds(old) ? at(old) : fill);
        }
    }
    return made;
}

PlainImage PlainImage::scaled(Point size) const {
    PlainImage made = blank(size.x, size.y, bits);
    for (std::int32_t y = 0; y < made.height; ++y) {
        for (std::int32_t x = 0; x < made.width; ++x)
            made.put({x, y}, at({(2 * x + 1) * width / (2 * size.x), (2 * y + 1) * height / (2 * size.y)}));
    }
    return made;
}

void PlainImage::paste(const PlainImage& piece, Rect area, bool wrap) {
    const std::int32_t w = area.right - area.left + 1;
    const std::int32_t h = area.bottom - area.top + 1;
    const double sx = static_cast<double>(piece.width) / w;
    const double sy = static_cast<double>(piece.height) / h;
    for (std::int32_t j = h - 1; j >= 0; --j) {
        for (std::int32_t i = w - 1; i >= 0; --i) {
            const Point to{area.left + i, area.top + j};
            put(wrap ? folded(to) : to, piece.at({truncated(i * sx), truncated(j * sy)}));
        }
    }
}

std::string PlainImage::text() const {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string rows;
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::uint32_t value = at({x, y});
            if (bits > 4)
                rows += kDigits[value >> 4];
            rows += kDigits[value & 15U];
        }
        rows += '\n';
    }
    return rows;
}

} // namespace dyeworks
