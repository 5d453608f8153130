#include "Program.h"
#include "framework/widgets/ChildFrame.h"
#include "paint/ViewRenderer.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>

#include <optional>

namespace dyeworks {
namespace {

class Rendering : public Program {
protected:
    /// What the renderer makes of the visible part, its pixels enlarged by `scale`.
    QImage expected(int scale = 1, const std::optional<SelectionLook>& selection = std::nullopt) {
        const QPoint origin = static_cast<ScrollView&>(view()).scrollPosition();
        QImage picture(view().viewport()->size(), QImage::Format_RGB32);
        auto* const pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
        const QSize size = picture.size();
        Surface surface{pixels, size.width(), size.height(), size.width(), origin.x(), origin.y()};
        ViewLook look;
        look.zoom = view().view().zoom();
        look.gridShown = view().view().gridShown();
        look.outsideColour = view().palette().color(QPalette::Button).rgb();
        look.selection = selection;
        const Rect all{origin.x(), origin.y(), origin.x() + size.width(), origin.y() + size.height()};
        ViewRenderer(image().canvas(), look).draw(surface, all);
        QImage enlarged = picture.scaled(picture.size() * scale);
        enlarged.setDevicePixelRatio(scale);
        return enlarged;
    }
    QImage shown(int scale = 1) {
        QImage picture(view().viewport()->size() * scale, QImage::Format_RGB32);
        picture.setDevicePixelRatio(scale);
        view().viewport()->render(&picture);
        return picture;
    }
    void wheel(int turn, Qt::KeyboardModifiers modifiers, QPoint position, int pixels = 0) {
        QWheelEvent event(position, view().viewport()->mapToGlobal(position), {0, pixels}, {0, turn},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
};

TEST_F(Rendering, IsWhatTheRendererDrawsWhereverItIsScrolledAtAnyScale) {
    openAttached(pattern(90, 70), 8, 256);
    const SelectionLook selection{{5, 4, 30, 26}, nullptr, 10, false};
    for (const CommandId zoom : {ID_ZOOM_X1, ID_ZOOM_X3, ID_ZOOM_X16}) {
        ASSERT_TRUE(run(zoom));
        frame().activeChild()->resize(300, 250);
        for (const QPoint scroll : {QPoint(0, 0), QPoint(37, 101), QPoint(9999, 9999)}) {
            static_cast<ScrollView&>(view()).scrollTo(scroll);
            EXPECT_EQ(shown(), expected()) << zoom << " " << scroll.x();
            view().view().selection().select(selection.texels, false);
            for (const int scale : {1, 2})
                EXPECT_EQ(shown(scale), expected(scale, selection)) << zoom << " " << scroll.x();
            view().view().selection().select(std::nullopt, false);
        }
        ASSERT_TRUE(run(ID_VIEW_GRID));
        EXPECT_EQ(shown(), expected()) << zoom;
    }
}

TEST_F(Rendering, TheBorderOfASelectionMovesUntilItIsCleared) {
    openAttached(pattern(40, 30), 8, 256);
    ASSERT_TRUE(run(ID_ZOOM_X6));
    const SelectionLook selection{{5, 4, 20, 16}, nullptr, 10, true};
    view().view().selection().select(selection.texels, true);
    QImage painted;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (painted = shown()) == expected(1, selection); }));
    view().view().selection().select(std::nullopt, true);
    EXPECT_EQ(shown(), expected());
}

TEST_F(Rendering, ARedrawRequestLimitsNothingOutsideItsRectangle) {
    openAttached(pattern(90, 70), 8, 256);
    frame().activeChild()->resize(300, 250);
    const Rect selection{50, 40, 70, 60};
    view().view().selection().select(selection, false);
    view().view().selection().showDragFrame({2, 2, 20, 20}, ImageSelection::kRedrawDrag);
    const QRect elsewhere(45, 35, 35, 35);
    EXPECT_EQ(shown().copy(elsewhere),
              expected(1, SelectionLook{selection, nullptr, 2, false}).copy(elsewhere));
}

TEST_F(Rendering, ReturnsAsItWasLeftWhenTheFileIsOpenedAgain) {
    openAttached(pattern(90, 70), 8, 256);
    ASSERT_TRUE(run(ID_ZOOM_X8));
    const QRect place(40, 30, 311, 257);
    frame().activeChild()->setGeometry(place);
    static_cast<ScrollView&>(view()).scrollTo({203, 120});
    const QImage left = shown();
    for (const bool maximised : {false, true}) {
        if (maximised)
            frame().activeChild()->showMaximized();
        ASSERT_TRUE(run(ID_FILE_CLOSE));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
        ChildFrame& child = *frame().activeChild();
        EXPECT_EQ(child.isMaximized(), maximised);
        if (!maximised) {
            EXPECT_EQ(child.geometry(), place);
            EXPECT_EQ(shown(), left);
        }
    }
}

TEST_F(Rendering, CtrlAndWheelZoomAroundThePointerAndWheelScrolls) {
    openAttached(pattern(200, 150), 8, 256);
    // A frame that follows the zoom would leave nothing to scroll.
    frame().activeChild()->showMaximized();
    ASSERT_TRUE(run(ID_ZOOM_X8));
    auto& scroll = static_cast<ScrollView&>(view());
    scroll.scrollTo({300, 200});
    const QPoint pointer(101, 83);
    wheel(60, Qt::ControlModifier, pointer);
    EXPECT_EQ(view().view().zoom(), 8) << "half a notch";
    wheel(60, Qt::ControlModifier, pointer);
    EXPECT_EQ(view().view().zoom(), 12);
    wheel(-240, Qt::ControlModifier, pointer);
    EXPECT_EQ(view().view().zoom(), 6);
    const QPoint content = scroll.toContent(pointer);
    EXPECT_EQ(QPoint(content.x() / 6, content.y() / 6), QPoint((300 + 101) / 8, (200 + 83) / 8));
    const QPoint before = scroll.scrollPosition();
    wheel(-120, {}, pointer);
    EXPECT_GT(scroll.scrollPosition().y(), before.y());
    EXPECT_EQ(scroll.scrollPosition().x(), before.x());
    EXPECT_EQ(view().view().zoom(), 6);
}

} // namespace
} // namespace dyeworks
