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

void PlainImage::line(Point from, Point to, std::uint32_t value) {
    const std::int32_t dx = std::abs(to.x - from.x);
    const std::int32_t dy = std::abs(to.y - from.y);
    const std::int32_t sx = from.x < to.x ? 1 : -1;
    const std::int32_t sy = from.y < to.y ? 1 : -1;
    const bool flat = dx >= dy;
    const std::int32_t steps = std::max(dx, dy);
    std::int32_t error = steps / 2;
    for (std::int32_t i = 0; i < steps; ++i) {
        put(from, value);
        error += std::min(dx, dy);
        const bool aside = error >= steps;
        if (aside)
            error -= steps;
        from.x += flat || aside ? sx : 0;
        from.y += !flat || aside ? sy : 0;
    }
    put(to, value);
}

void PlainImage::box(Rect corners, std::uint32_t value) {
    const Rect r = corners.normalised();
    line({r.left, r.top}, {r.right, r.top}, value);
    line({r.left, r.bottom}, {r.right, r.bottom}, value);
    line({r.left, r.top}, {r.left, r.bottom}, value);
    line({r.right, r.top}, {r.right, r.bottom}, value);
}

void PlainImage::filledBox(Rect corners, std::uint32_t value) {
    const Rect r = corners.normalised();
    for (std::int32_t y = r.top; y <= r.bottom; ++y) {
        for (std::int32_t x = r.left; x <= r.right; ++x)
            put({x, y}, value);
    }
}

void PlainImage::ellipse(Rect corners, std::uint32_t value, bool filled) {
    const Rect r = corners.normalised();
    if (r.left == r.right || r.top == r.bottom)
        return;
    const double a = (r.right - r.left) / 2.0;
    const double b = (r.bottom - r.top) / 2.0;
    const double cx = r.left + a;
    const double cy = r.top + b;
    const auto pair = [&](double u, std::int32_t y) {
        const std::int32_t first = truncated(cx - u);
        const std::int32_t last = truncated(cx + 0.5 + u);
        if (!filled) {
            put({first, y}, value);
            put({last, y}, value);
        }
        for (std::int32_t x = first; filled && x <= last; ++x)
            put({x, y}, value);
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

void PlainImage::flood(Point from, std::uint32_t value) {
    const std::uint32_t target = at(from);
    if (!holds(from) || target == (value & mask()))
        return;
    std::vector<Point> waiting{from};
    while (!waiting.empty()) {
        const Point next = waiting.back();
        waiting.pop_back();
        if (!holds(next) || at(next) != target)
            continue;
        put(next, value);
        for (const Point step : {Point{1, 0}, Point{-1, 0}, Point{0, 1}, Point{0, -1}})
            waiting.push_back({next.x + step.x, next.y + step.y});
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

PlainImage PlainImage::part(Rect area) const {
    PlainImage cut = blank(area.right - area.left + 1, area.bottom - area.top + 1, bits);
    for (std::int32_t y = 0; y < cut.height; ++y) {
        for (std::int32_t x = 0; x < cut.width; ++x)
            cut.put({x, y}, at({area.left + x, area.top + y}));
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
            made.put({(x + by.x) % width, (y + by.y) % height}, at({x, y}));
    }
    return made;
}

void PlainImage::paste(const PlainImage& piece, Rect area) {
    const std::int32_t w = area.right - area.left + 1;
    const std::int32_t h = area.bottom - area.top + 1;
    const double sx = static_cast<double>(piece.width) / w;
    const double sy = static_cast<double>(piece.height) / h;
    for (std::int32_t j = 0; j < h; ++j) {
        for (std::int32_t i = 0; i < w; ++i)
            put({area.left + i, area.top + j}, piece.at({truncated(i * sx), truncated(j * sy)}));
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
