#include "Program.h"

#include <cmath>

namespace dyeworks {
namespace {

constexpr unsigned kInk = 9;
constexpr int kSide = 24;

Texels ground() {
    return texels(kSide, kSide, [](int x, int y) { return x < 12 ? (y < 9 ? 1U : 2U) : 3U; });
}

unsigned& texel(Texels& image, QPoint p) {
    return image[static_cast<std::size_t>(p.y())][static_cast<std::size_t>(p.x())];
}

using Draw = std::function<void(Texels&)>;

/// One pixel wide, from each corner to the next.
Draw lines(const std::vector<QPoint>& corners) {
    return [corners](Texels& image) {
        QPoint from = corners.front();
        for (const QPoint to : corners) {
            const QPoint way = to - from;
            const int steps = std::max({std::abs(way.x()), std::abs(way.y()), 1});
            for (int i = 0; i <= steps; ++i)
                texel(image, from + QPoint(static_cast<int>(std::lround(1.0 * way.x() * i / steps)),
                                           static_cast<int>(std::lround(1.0 * way.y() * i / steps)))) = kInk;
            from = to;
        }
    };
}

using Drawing = Program;

TEST_F(Drawing, IsSavedUndoneAndRedoneTexelByTexel) {
    const struct {
        const char* name;
        CommandId tool;
        std::vector<QPoint> path;
        Draw expected;
        Qt::KeyboardModifiers modifiers = {};
    } strokes[] = {
        {"pen", ID_TOOL_PEN, {{2, 2}, {8, 2}, {12, 6}, {12, 11}}, lines({{2, 2}, {8, 2}, {12, 6}, {12, 11}})},
        {"from its centre", ID_TOOL_LINE, {{10, 10}, {14, 14}}, lines({{6, 6}, {14, 14}}), Qt::AltModifier},
        {"box",
         ID_TOOL_BOX,
         {{15, 14}, {3, 20}, {4, 5}},
         lines({{4, 5}, {15, 5}, {15, 14}, {4, 14}, {4, 5}})},
    };
    for (const auto& stroke : strokes) {
        SCOPED_TRACE(stroke.name);
        openAttached(ground(), 8, 256);
        ASSERT_TRUE(run(ID_ZOOM_X4));
        app_.imageHost().selectPaletteBarCell(kInk);
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
        EXPECT_THAT(fake_.messages.shown, IsEmpty());

        ASSERT_TRUE(run(ID_FILE_CLOSE));
        ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
        EXPECT_EQ(canvas(), expected);
        ASSERT_TRUE(run(ID_FILE_CLOSE));
    }
}

using DrawingRules = Program;

TEST_F(DrawingRules, ABankOfTheFourBitImageShowsItsEntriesAndStoresLowBits) {
    openAttached(texels(10, 6, [](int x, int) { return static_cast<unsigned>(x); }), 4, 256);
    const std::vector<std::uint8_t> before(image().canvas().colourTable().begin(),
                                           image().canvas().colourTable().end());
    frame().SetPaletteBarNumber(3);
    EXPECT_EQ(app_.imageHost().paletteBarFirstEntry(), 48);
    const auto table = image().canvas().colourTable();
    for (int i = 0; i < 16; ++i) {
        std::uint8_t red = 0, green = 0, blue = 0, flags = 0;
        ASSERT_TRUE(image().GetAttachedPalette()->toPaletteEntry(48 + i, red, green, blue, flags));
        const std::size_t at = 4 * static_cast<std::size_t>(i);
        EXPECT_THAT(table.subspan(at, 3), ElementsAre(blue, green, red)) << i;
        EXPECT_NE(table[at], before[at]) << i;
    }
    drawPixel({2, 2}, 48 + 13);
    EXPECT_EQ(canvas()[2][2], 13U);
}

TEST_F(DrawingRules, AHalfPixelOfAScaledDisplayBelongsToThePixelItLiesIn) {
    openAttached(ground(), 8, 256);
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.imageHost().selectPaletteBarCell(kInk);
    const QPointF position(5.75, 6.5);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, position, view().viewport()->mapToGlobal(position), Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
    EXPECT_EQ(canvas()[6][5], kInk);
}

} // namespace
} // namespace dyeworks
