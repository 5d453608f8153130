#include "viewer/ViewerWindow.h"

#include "Pictures.h"
#include "viewer/ViewerView.h"

#include <QApplication>
#include <QComboBox>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <memory>

namespace dyeworks::plugins {
namespace {

class ViewerWindowTest : public testing::TestWithParam<const char*> {
protected:
    ViewerWindowTest() {
        qputenv("QT_SCALE_FACTOR", GetParam());
        application_ = std::make_unique<QApplication>(argc_, argv_);
        window_ = std::make_unique<ViewerWindow>(1);
        EXPECT_TRUE(window_->showPicture(source_.record));
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    }
    ~ViewerWindowTest() override {
        window_.reset();
        application_.reset();
        qunsetenv("QT_SCALE_FACTOR");
    }

    ViewerView& view() { return window_->view(); }
    QComboBox& box(const char* name) { return *window_->findChild<QComboBox*>(QLatin1String(name)); }
    void turnWheel(int angle) {
        const QPointF middle(view().viewport()->rect().center());
        QWheelEvent event(middle, view().viewport()->mapToGlobal(middle), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view().viewport(), &event);
    }

    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    RandomPicture source_{12, 10, 8, DW_COLOUR_RGBA, 0};
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<ViewerWindow> window_;
};

INSTANTIATE_TEST_SUITE_P(Scales, ViewerWindowTest, testing::Values("1", "2"),
                         [](const auto& scale) { return std::string("Times") + scale.param; });

TEST_P(ViewerWindowTest, AutomaticZoomShowsSharpTexelsInTheMiddle) {
    view().setTiles(3);
    view().setShowsAlpha(false);
    const QImage shown = view().viewport()->grab().toImage();
    const int scale = QString::fromLatin1(GetParam()).toInt();
    ASSERT_EQ(shown.width(), view().viewport()->width() * scale);
    const int side = std::min(view().viewport()->width() / 36, view().viewport()->height() / 30) * scale;
    const int left = (shown.width() - 36 * side) / 2;
    const int top = (shown.height() - 30 * side) / 2;
    for (int y = 0; y < 30 * side; ++y) {
        for (int x = 0; x < 36 * side; ++x) {
            std::uint8_t rgba[4];
            DW_colour(source_.palette.get(), DW_getTexel(source_.image.get(), x / side % 12, y / side % 10),
                      rgba);
            ASSERT_EQ(shown.pixel(left + x, top + y), qRgb(rgba[0], rgba[1], rgba[2])) << x << ',' << y;
        }
    }
    const QRgb around = view().palette().color(QPalette::Dark).rgb();
    EXPECT_EQ(shown.pixel(left - 1, top), around);
    EXPECT_EQ(shown.pixel(left, top + 30 * side), around);
}

TEST_P(ViewerWindowTest, KeysWheelAndBoxChangeTheZoomTogether) {
    ASSERT_GT(view().effectiveZoom(), ViewerView::kMaxZoom);
    QTest::keyClick(&view(), Qt::Key_Plus);
    EXPECT_EQ(view().zoom(), ViewerView::kAutomatic) << "already larger than the largest";
    QTest::keyClick(&view(), Qt::Key_Minus);
    EXPECT_EQ(view().zoom(), 8);
    turnWheel(-60);
    EXPECT_EQ(view().zoom(), 8) << "half a step";
    turnWheel(-60 - 120);
    EXPECT_EQ(view().zoom(), 6);
    EXPECT_EQ(box("Zoom").currentData().toInt(), 6);
    box("Zoom").setCurrentIndex(box("Zoom").findData(1));
    turnWheel(-120);
    EXPECT_EQ(view().zoom(), 1);
    turnWheel(120);
    EXPECT_EQ(view().zoom(), 2);
    box("Tiles").setCurrentIndex(3);
    box("Zoom").setCurrentIndex(0);
    EXPECT_EQ(view().effectiveZoom(),
              std::min(view().viewport()->width() / 48, view().viewport()->height() / 40));
}

TEST_P(ViewerWindowTest, ContentThatFitsExactlyNeedsNoScrollBars) {
    const QSize frame = window_->size() - view().viewport()->size();
    view().setZoom(8);
    view().setTiles(4);
    ASSERT_EQ(view().viewport()->size(), view().maximumViewportSize()) << "384 by 320 in the first size";
    window_->resize(frame + QSize(300, 300));
    QApplication::processEvents();
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 384 - view().viewport()->width());
    EXPECT_EQ(view().verticalScrollBar()->maximum(), 320 - view().viewport()->height());
    window_->resize(frame + QSize(384, 320));
    QApplication::processEvents();
    EXPECT_EQ(view().viewport()->size(), QSize(384, 320));
}

/// Remembers what a widget has to paint.
class PaintedRegion : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion region;
};

TEST_P(ViewerWindowTest, ChangedRowIsRepaintedInEveryTile) {
    view().setTiles(2);
    QApplication::processEvents();
    PaintedRegion painted;
    view().viewport()->installEventFilter(&painted);
    DW_setTexel(source_.image.get(), 0, 9, DW_getTexel(source_.image.get(), 0, 9) ^ 1u);
    ASSERT_TRUE(window_->showPicture(source_.record));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !painted.region.isEmpty(); }));
    const QSize room = view().viewport()->size();
    const int side = view().effectiveZoom();
    const int left = (room.width() - 24 * side) / 2;
    const int top = (room.height() - 20 * side) / 2;
    const QRegion rows =
        QRegion(left, top + 9 * side, 24 * side, side).united(QRect(left, top + 19 * side, 24 * side, side));
    EXPECT_TRUE(rows.subtracted(painted.region).isEmpty());
    EXPECT_FALSE(painted.region.contains(QPoint(left, top + 8 * side - 2)));
}

TEST_P(ViewerWindowTest, PictureThatCannotBeShownHidesTheWindow) {
    EXPECT_FALSE(window_->showPicture({source_.image.get(), nullptr, 0, 0}));
    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(window_->takeClosedByUser());
    EXPECT_TRUE(window_->showPicture(source_.record));
    EXPECT_TRUE(window_->isVisible());
}

} // namespace
} // namespace dyeworks::plugins
