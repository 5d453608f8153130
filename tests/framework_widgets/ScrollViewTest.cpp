#include "framework/widgets/ScrollView.h"

#include <QApplication>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace dyeworks;

namespace {

class RecordingView : public ScrollView {
public:
    QRegion painted;

protected:
    void paintEvent(QPaintEvent* event) override { painted += event->region(); }
};

struct ScrollViews : testing::Test {
    RecordingView view;
    ScrollViews() {
        view.resize(200, 150);
        view.setContentSize({1000, 800});
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        QApplication::processEvents();
        view.painted = {};
    }
    QSize room() const { return view.viewport()->size(); }
};

TEST_F(ScrollViews, ScrollingRepaintsTheExposedStripAlone) {
    view.scrollTo({0, 10});
    QApplication::processEvents();
    EXPECT_EQ(view.painted, QRegion(0, room().height() - 10, room().width(), 10));
}

TEST_F(ScrollViews, PositionStaysInsideTheContents) {
    view.scrollTo({-5, 5000});
    EXPECT_EQ(view.scrollPosition(), QPoint(0, 800 - room().height()));
    view.setContentSize({1000, 300});
    EXPECT_EQ(view.scrollPosition(), QPoint(0, 300 - room().height()));
    EXPECT_EQ(view.scrollPosition(), QPoint(0, view.maximumScrollPosition().y()));
}

TEST_F(ScrollViews, ContentsThatFitWithoutBarsGetNone) {
    // Shown for larger contents, each bar takes the room whose lack would keep the other one.
    view.setContentSize({200, 150});
    QApplication::processEvents();
    EXPECT_EQ(room(), QSize(200, 150));
    EXPECT_EQ(view.maximumScrollPosition(), QPoint(0, 0));
}

TEST_F(ScrollViews, SmallTurnsOfTheWheelAddUp) {
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event({10, 10}, view.mapToGlobal(QPointF(10, 10)), {}, {0, angle}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    };
    turn(-120, Qt::NoModifier);
    const int notch = view.scrollPosition().y();
    EXPECT_GT(notch, 0);
    for (int i = 0; i < 120; ++i)
        turn(-1, Qt::NoModifier);
    EXPECT_EQ(view.scrollPosition(), QPoint(0, 2 * notch));
    turn(-120, Qt::ShiftModifier);
    EXPECT_EQ(view.scrollPosition(), QPoint(notch, 2 * notch));
}

TEST_F(ScrollViews, MiddleButtonDragsTheContents) {
    view.scrollTo({100, 100});
    QTest::mousePress(view.viewport(), Qt::MiddleButton, {}, {50, 50});
    QTest::mouseMove(view.viewport(), {40, 65});
    EXPECT_EQ(view.scrollPosition(), QPoint(110, 85));
    QTest::mouseRelease(view.viewport(), Qt::MiddleButton, {}, {40, 65});
    QTest::mouseMove(view.viewport(), {90, 90});
    EXPECT_EQ(view.scrollPosition(), QPoint(110, 85));
    EXPECT_FALSE(view.isPanning());
}

} // namespace
