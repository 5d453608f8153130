#include "framework/widgets/ScrollView.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace dyeworks;

namespace {

struct ScrollViews : testing::Test {
    ScrollView view;
    ScrollViews() {
        view.resize(200, 150);
        view.setContentSize({1000, 800});
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        QApplication::processEvents();
    }
    QSize room() const { return view.viewport()->size(); }
};

TEST_F(ScrollViews, PositionStaysInsideTheContents) {
    view.scrollTo({-5, 5000});
    EXPECT_EQ(view.scrollPosition(), QPoint(0, 800 - room().height()));
    view.setContentSize({1000, 300});
    EXPECT_EQ(view.scrollPosition(), QPoint(0, 300 - room().height()));
    EXPECT_EQ(view.verticalScrollBar()->maximum(), view.scrollPosition().y());
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
