#include "Program.h"

#include <cmath>
#include <deque>

namespace dyeworks {
namespace {

constexpr unsigned kInk = 9;
constexpr int kSide = 24;

/// Something to draw on whose regions a fill can leave at an edge.
Texels ground() {
    return texels(kSide, kSide, [](int x, int y) { return x < 12 ? (y < 9 ? 1U : 2U) : 3U; });
}

void put(Texels& image, int x, int y) {
    if (x >= 0 && y >= 0 && x < kSide && y < kSide)
        image[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = kInk;
}

void drawSteps(Texels& image, QPoint from, QPoint to) {
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
    for (int i = 0; i <= steps; ++i)
        put(image, from.x() + static_cast<int>(std::lround(1.0 * way.x() * i / std::max(steps, 1))),
            from.y() + static_cast<int>(std::lround(1.0 * way.y() * i / std::max(steps, 1))));
}

void drawBox(Texels& image, const QRect& box, bool filled) {
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            if (filled || x == box.left() || x == box.right() || y == box.top() || y == box.bottom())
                put(image, x, y);
        }
    }
}

void fillFrom(Texels& image, QPoint seed) {
    const auto value = [&](QPoint p) {
        return image[static_cast<std::size_t>(p.y())][static_cast<std::size_t>(p.x())];
    };
    const unsigned old = value(seed);
    std::deque<QPoint> waiting{seed};
    const QRect all(0, 0, kSide, kSide);
    while (!waiting.empty()) {
        const QPoint p = waiting.front();
        waiting.pop_front();
        if (!all.contains(p) || value(p) != old)
            continue;
        put(image, p.x(), p.y());
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            waiting.push_back(p + step);
    }
}

struct Stroke {
    const char* name;
    CommandId tool;
    std::vector<QPoint> path;
    void (*expected)(Texels&);
    Qt::KeyboardModifiers modifiers = {};
};

void PrintTo(const Stroke& stroke, std::ostream* out) {
    *out << stroke.name;
}

class Drawing : public Program, public testing::WithParamInterface<Stroke> {};

TEST_P(Drawing, IsSavedUndoneAndRedoneTexelByTexel) {
    const Stroke& stroke = GetParam();
    openAttached(ground(), 8, 256);
    ASSERT_TRUE(run(ID_ZOOM_X4));
    app_.selectPaletteBarCell(kInk);
    ASSERT_TRUE(run(stroke.tool));
    drag(stroke.path, stroke.modifiers);

    Texels expected = ground();
    stroke.expected(expected);
    EXPECT_EQ(canvas(), expected);
    EXPECT_EQ(image().title(), "pic.tmf [pic] * ");

    ASSERT_TRUE(run(ID_EDIT_UNDO)) << "one stroke, one step";
    EXPECT_FALSE(enabled(ID_EDIT_UNDO));
    EXPECT_EQ(canvas(), ground());
    EXPECT_EQ(image().title(), "pic.tmf [pic]");

    ASSERT_TRUE(run(ID_EDIT_REDO));
    ASSERT_TRUE(run(ID_FILE_SAVE));
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\pic.tmf"), imageFile(expected, 8));
    EXPECT_FALSE(image().isModified());
    EXPECT_THAT(fake_.messages.shown, testing::IsEmpty());

    ASSERT_TRUE(run(ID_FILE_CLOSE));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
    EXPECT_EQ(canvas(), expected);
}

const Stroke kStrokes[] = {
    Stroke{"Pixel", ID_TOOL_PIXEL, {{5, 6}}, [](Texels& t) { put(t, 5, 6); }},
    Stroke{"Pen",
           ID_TOOL_PEN,
           {{2, 2}, {8, 2}, {12, 6}, {12, 11}},
           [](Texels& t) {
               drawSteps(t, {2, 2}, {8, 2});
               drawSteps(t, {8, 2}, {12, 6});
               drawSteps(t, {12, 6}, {12, 11});
           }},
    Stroke{"Line",
           ID_TOOL_LINE,
           {{2, 3}, {20, 1}, {11, 6}},
           [](Texels& t) {
               drawSteps(t, {2, 3}, {11, 6});
           }},
    Stroke{"LineFromItsCentre",
           ID_TOOL_LINE,
           {{10, 10}, {14, 14}},
           [](Texels& t) {
               drawSteps(t, {6, 6}, {14, 14});
           },
           Qt::AltModifier},
    Stroke{"Box",
           ID_TOOL_BOX,
           {{15, 14}, {3, 20}, {4, 5}},
           [](Texels& t) { drawBox(t, QRect(QPoint(4, 5), QPoint(15, 14)), false); }},
    Stroke{"BoxFill",
           ID_TOOL_BOX_FILL,
           {{4, 5}, {15, 14}},
           [](Texels& t) { drawBox(t, QRect(QPoint(4, 5), QPoint(15, 14)), true); }},
    Stroke{"CircleFill",
           ID_TOOL_CIRCLE_FILL,
           {{4, 5}, {6, 7}},
           // The smallest one, a cross.
           [](Texels& t) {
               drawSteps(t, {4, 6}, {6, 6});
               drawSteps(t, {5, 5}, {5, 7});
           }},
    Stroke{"Circle",
           ID_TOOL_CIRCLE,
           {{4, 5}, {6, 7}},
           [](Texels& t) {
               for (const QPoint p : {QPoint(4, 6), QPoint(6, 6), QPoint(5, 5), QPoint(5, 7)})
                   put(t, p.x(), p.y());
           }},
    Stroke{"Paint", ID_TOOL_PAINT, {{3, 20}}, [](Texels& t) {
               fillFrom(t, {3, 20});
           }}};

INSTANTIATE_TEST_SUITE_P(WithEachTool, Drawing, testing::ValuesIn(kStrokes),
                         [](const auto& test) { return test.param.name; });

using DrawingRules = Program;

TEST_F(DrawingRules, ABankOfTheFourBitImageShowsItsEntriesAndStoresLowBits) {
    openAttached(texels(10, 6, [](int x, int) { return static_cast<unsigned>(x); }), 4, 256);
    const std::vector<unsigned char> before(image().canvas().colourTable().begin(),
                                            image().canvas().colourTable().end());
    app_.mainFrame().SetPaletteBarNumber(3);
    EXPECT_EQ(app_.paletteBarFirstEntry(), 48);
    const auto table = image().canvas().colourTable();
    for (int i = 0; i < 16; ++i) {
        std::uint8_t red = 0, green = 0, blue = 0, flags = 0;
        ASSERT_TRUE(image().GetAttachedPalette()->toPaletteEntry(48 + i, red, green, blue, flags));
        const std::size_t at = 4 * static_cast<std::size_t>(i);
        EXPECT_EQ(std::vector(table.begin() + 4 * i, table.begin() + 4 * i + 3),
                  (std::vector<std::uint8_t>{blue, green, red}))
            << i;
        EXPECT_NE(table[at], before[at]) << i;
    }

    app_.selectPaletteBarCell(48 + 13);
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    drag({{2, 2}});
    EXPECT_EQ(canvas()[2][2], 13U);
}

TEST_F(DrawingRules, AHalfPixelOfAScaledDisplayBelongsToThePixelItLiesIn) {
    openAttached(ground(), 8, 256);
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.selectPaletteBarCell(kInk);
    const QPointF position(5.75, 6.5);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, position, view().viewport()->mapToGlobal(position), Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
    EXPECT_EQ(canvas()[6][5], kInk);
}

} // namespace
} // namespace dyeworks
