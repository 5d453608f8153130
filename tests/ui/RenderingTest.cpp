#include "Program.h"
#include "framework/widgets/ChildFrame.h"
#include "paint/ViewRenderer.h"

#include <QWheelEvent>

namespace dyeworks {
namespace {

class Rendering : public Program {
protected:
    /// What the renderer makes of the visible part.
    QImage expected() {
        const QPoint origin = static_cast<ScrollView&>(view()).scrollPosition();
        QImage picture(view().viewport()->size(), QImage::Format_RGB32);
        Surface surface{reinterpret_cast<std::uint32_t*>(picture.bits()),
                        picture.width(),
                        picture.height(),
                        picture.bytesPerLine() / 4,
                        origin.x(),
                        origin.y()};
        ViewLook look;
        look.zoom = view().view().zoom();
        look.gridShown = view().view().gridShown();
        look.outsideColour = view().palette().color(QPalette::Button).rgb();
        ViewRenderer(image().canvas(), look)
            .draw(surface,
                  {origin.x(), origin.y(), origin.x() + picture.width(), origin.y() + picture.height()});
        return picture;
    }
    QImage shown(int scale = 1) {
        QImage picture(view().viewport()->size() * scale, QImage::Format_RGB32);
        picture.setDevicePixelRatio(scale);
        view().viewport()->render(&picture);
        return picture;
    }
    void wheel(int turn, Qt::KeyboardModifiers modifiers, QPoint position) {
        QWheelEvent event(position, view().viewport()->mapToGlobal(position), {}, {0, turn}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
};

Texels pattern(int width, int height) {
    return texels(width, height, [](int x, int y) { return static_cast<unsigned>(x * 7 + y * 13) & 255U; });
}

TEST_F(Rendering, IsWhatTheRendererDrawsWhereverItIsScrolled) {
    openAttached(pattern(90, 70), 8, 256);
    for (const CommandId zoom : {ID_ZOOM_X1, ID_ZOOM_X3, ID_ZOOM_X16}) {
        ASSERT_TRUE(run(zoom));
        app_.mainFrame().activeChild()->resize(300, 250);
        for (const QPoint scroll : {QPoint(0, 0), QPoint(37, 101), QPoint(9999, 9999)}) {
            static_cast<ScrollView&>(view()).scrollTo(scroll);
            EXPECT_EQ(shown(), expected()) << zoom << " " << scroll.x();
        }
        ASSERT_TRUE(run(ID_VIEW_GRID));
        EXPECT_EQ(shown(), expected()) << zoom;
    }
}

TEST_F(Rendering, AScaleFactorEnlargesPixelsWithoutBlurringThem) {
    openAttached(pattern(40, 30), 8, 256);
    ASSERT_TRUE(run(ID_ZOOM_X3));
    const QImage single = shown();
    const QImage doubled = shown(2);
    for (int y = 0; y < doubled.height(); ++y) {
        for (int x = 0; x < doubled.width(); ++x)
            ASSERT_EQ(doubled.pixel(x, y), single.pixel(x / 2, y / 2)) << x << " " << y;
    }
}

TEST_F(Rendering, AnImageWithoutPaletteSaysSoInTheMiddle) {
    fake_.files.putFile("c:\\a.tmf", imageFile(pattern(120, 80), 8));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tmf"));
    app_.mainFrame().activeChild()->resize(300, 250);
    const QImage picture = shown();
    const QRgb face = view().palette().color(QPalette::Button).rgb();
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != face)
                ink |= QRect(x, y, 1, 1);
        }
    }
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.top(), picture.height() / 2);
    EXPECT_LT(ink.bottom(), picture.height() / 2 + view().fontMetrics().height());
    EXPECT_NEAR(ink.center().x(), picture.width() / 2, 2);
}

TEST_F(Rendering, CtrlAndWheelZoomAroundThePointerAndWheelScrolls) {
    openAttached(pattern(200, 150), 8, 256);
    // A frame that follows the zoom would leave nothing to scroll.
    app_.mainFrame().activeChild()->showMaximized();
    ASSERT_TRUE(run(ID_ZOOM_X8));
    auto& scroll = static_cast<ScrollView&>(view());
    scroll.scrollTo({300, 200});
    const QPoint pointer(101, 83);
    const Point texel{(300 + 101) / 8, (200 + 83) / 8};
    wheel(60, Qt::ControlModifier, pointer);
    EXPECT_EQ(view().view().zoom(), 8) << "half a notch";
    wheel(60, Qt::ControlModifier, pointer);
    EXPECT_EQ(view().view().zoom(), 12);
    wheel(-240, Qt::ControlModifier, pointer);
    EXPECT_EQ(view().view().zoom(), 6);
    const QPoint content = scroll.toContent(pointer);
    EXPECT_EQ((Point{content.x() / 6, content.y() / 6}), texel);

    const QPoint before = scroll.scrollPosition();
    wheel(-120, {}, pointer);
    EXPECT_GT(scroll.scrollPosition().y(), before.y());
    EXPECT_EQ(scroll.scrollPosition().x(), before.x());
    EXPECT_EQ(view().view().zoom(), 6);
}

} // namespace
} // namespace dyeworks
