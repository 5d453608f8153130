#include "paint/CanvasDrawing.h"

#include "CanvasTesting.h"

#include <cmath>
#include <functional>

namespace dyeworks {
namespace {

constexpr std::int32_t kAround = 4; // Images on each side of a plane that shapes are drawn on without edges.

std::int32_t modulo(std::int32_t value, std::int32_t by) {
    return (value % by + by) % by;
}

bool covers(const Brush& brush, std::int32_t i, std::int32_t j) {
    const double middle = (brush.size - 1) / 2.0;
    return !brush.round || std::hypot(i - middle, j - middle) <= brush.size / 2.0 - 0.125;
}

/// An image of random size and texels, with random options and points in it and around it.
class CanvasDrawingCase : public testing::TestWithParam<int> {
protected:
    void newImage(std::int32_t values) {
        const std::uint16_t bits = random.once(2) ? 4 : 8;
        ASSERT_TRUE(canvas.Create(random.between(1, 14), random.between(1, 14), 1, bits));
        for (std::int32_t y = 0; y < canvas.height(); ++y) {
            for (std::int32_t x = 0; x < canvas.width(); ++x)
                canvas.SetPixel(x, y, random.bits() % static_cast<unsigned>(values));
        }
        canvas.ResetChangedRect();
        before = canvas.Clone();
        options = {{random.once(3) ? 1 : random.between(1, 16), random.once(2)},
                   random.once(3),
                   random.once(3),
                   random.once(2)};
        a = somewhere();
        b = somewhere();
    }
    Point somewhere() {
        return {random.between(-canvas.width(), 2 * canvas.width()),
                random.between(-canvas.height(), 2 * canvas.height())};
    }
    std::vector<Point> images(Point at) const {
        std::vector<Point> all;
        for (const std::int32_t y : {at.y, canvas.height() - 1 - at.y}) {
            for (const std::int32_t x : {at.x, canvas.width() - 1 - at.x}) {
                if ((x == at.x || options.mirrorAcross) && (y == at.y || options.mirrorDown))
                    all.push_back({x, y});
            }
        }
        return all;
    }
    void put(TextureCanvas& target, Point at, std::uint32_t value) const {
        if (options.wrap)
            at = {modulo(at.x, target.width()), modulo(at.y, target.height())};
        target.SetPixel(at.x, at.y, value);
    }
    /// What is drawn on a canvas without edges, stamped, mirrored and folded back one texel at a time.
    std::unique_ptr<TextureCanvas> expected(const Brush& brush,
                                            const std::function<void(TextureCanvas&, Point)>& draw) const {
        TextureCanvas plane;
        const Point origin{kAround * canvas.width(), kAround * canvas.height()};
        EXPECT_TRUE(plane.Create(2 * origin.x + canvas.width(), 2 * origin.y + canvas.height(), 1, 4));
        draw(plane, origin);
        auto result = before->Clone();
        for (std::int32_t y = 0; y < plane.height(); ++y) {
            for (std::int32_t x = 0; x < plane.width(); ++x) {
                for (std::int32_t k = 0; plane.GetPixel(x, y) != 0 && k < brush.size * brush.size; ++k) {
                    const std::int32_t i = k % brush.size;
                    const std::int32_t j = k / brush.size;
                    if (!covers(brush, i, j))
                        continue;
                    for (const Point at : images({x - origin.x + i - (brush.size - 1) / 2,
                                                  y - origin.y + j - (brush.size - 1) / 2}))
                        put(*result, at, 9);
                }
            }
        }
        return result;
    }
    void expectSame(const TextureCanvas& wanted) const {
        ASSERT_EQ(rowsOf(canvas), rowsOf(wanted));
        ASSERT_EQ(changedRect(canvas), changedRect(wanted));
    }

    Random random{static_cast<unsigned>(GetParam())};
    TextureCanvas canvas;
    std::unique_ptr<TextureCanvas> before;
    DrawingOptions options;
    Point a;
    Point b;
};

TEST_P(CanvasDrawingCase, ShapesAreThoseOfACanvasWithoutEdgesStampedMirroredAndFolded) {
    using Primitive =
        void (TextureCanvas::*)(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::uint32_t);
    for (int round = 0; round < 150; ++round) {
        newImage(16);
        CanvasDrawing drawing(canvas, options, 9);
        Primitive primitive = nullptr; // A line and a point have none of this form.
        // Ellipses are cut off towards zero, which shows where they are not folded.
        if (!options.wrap && round % 2 == 1) {
            a = {std::abs(a.x), std::abs(a.y)};
            b = {std::abs(b.x), std::abs(b.y)};
        }
        switch (round % 6) {
        case 0:
            b = a;
            drawing.point(a);
            break;
        case 1:
            drawing.line(a, b);
            break;
        case 2:
            drawing.box(a, b);
            primitive = &TextureCanvas::DrawBox;
            break;
        case 3:
            drawing.ellipse(a, b);
            primitive = &TextureCanvas::DrawEllipse;
            break;
        case 4:
            drawing.filledBox(a, b);
            primitive = &TextureCanvas::FillBox;
            break;
        default:
            drawing.filledEllipse(a, b);
            primitive = &TextureCanvas::FillEllipse;
            break;
        }
        const auto wanted = expected(round % 6 < 4 ? options.brush : Brush{}, [&](auto& plane, Point origin) {
            const Rect r{a.x + origin.x, a.y + origin.y, b.x + origin.x, b.y + origin.y};
            if (primitive == nullptr)
                plane.DrawLine(r.left, r.top, r.right, r.bottom, 1);
            else
                (plane.*primitive)(r.left, r.top, r.right, r.bottom, 1);
        });
        SCOPED_TRACE(round);
        expectSame(*wanted);
    }
}

TEST_P(CanvasDrawingCase, FillSpreadsAcrossTheEdgesThatTouch) {
    for (int round = 0; round < 150; ++round) {
        newImage(2);
        CanvasDrawing(canvas, options, 9).floodFill(a);
        auto wanted = before->Clone();
        std::function<void(Point, std::uint32_t)> spread = [&](Point at, std::uint32_t old) {
            if (options.wrap)
                at = {modulo(at.x, canvas.width()), modulo(at.y, canvas.height())};
            if (at.x < 0 || at.y < 0 || at.x >= canvas.width() || at.y >= canvas.height() ||
                wanted->GetPixel(at.x, at.y) != old)
                return;
            wanted->SetPixel(at.x, at.y, 9);
            for (const Point next :
                 {Point{at.x - 1, at.y}, {at.x + 1, at.y}, {at.x, at.y - 1}, {at.x, at.y + 1}})
                spread(next, old);
        };
        for (const Point seed : images(a))
            for (const std::uint32_t old : {0U, 1U})
                spread(seed, old);
        SCOPED_TRACE(round);
        expectSame(*wanted);
    }
}

TEST_P(CanvasDrawingCase, PiecesComeInAtTheOtherSide) {
    for (int round = 0; round < 100; ++round) {
        newImage(16);
        options.wrap = true;
        const Rect place = Rect{a.x, a.y, b.x, b.y}.normalised();
        auto piece = canvas.CopyRect(place.left, place.top, place.right, place.bottom);
        CanvasDrawing drawing(canvas, options, 0);
        drawing.completePiece(*piece, place);
        for (std::int32_t y = place.top; y <= place.bottom; ++y) {
            for (std::int32_t x = place.left; x <= place.right; ++x)
                ASSERT_EQ(piece->GetPixel(x - place.left, y - place.top),
                          canvas.GetPixel(modulo(x, canvas.width()), modulo(y, canvas.height())));
        }
        // Scaled, and put elsewhere.
        const Point c = somewhere();
        const Point d = somewhere();
        const Rect target = Rect{c.x, c.y, d.x, d.y}.normalised();
        drawing.paste(*piece, target);
        auto wanted = before->Clone();
        for (std::int32_t copy = 0; copy < 81; ++copy) {
            const Point way{(copy % 9 - kAround) * canvas.width(), (copy / 9 - kAround) * canvas.height()};
            wanted->StretchPaste(*piece, target.left + way.x, target.top + way.y, target.right + 1 + way.x,
                                 target.bottom + 1 + way.y);
        }
        SCOPED_TRACE(round);
        expectSame(*wanted);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CanvasDrawingCase, testing::Range(1, 5));

} // namespace
} // namespace dyeworks
