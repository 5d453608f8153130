#include "ControlTest.h"

#include <QAccessible>
#include <QImage>
#include <QWheelEvent>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RampSliderTest : public ControlTest {
protected:
    RampSliderTest() {
        create("RampSlider");
        widget().resize(300, 24);
        call(8, {longValue(0), longValue(31)});
    }
    int value() { return number(invoke(3, DispatchKind::Get, {})); }
    QPoint end(bool left) { return {left ? 2 : widget().width() - 3, widget().height() / 2}; }
    void wheel(int eighths) {
        const QPointF middle = widget().rect().center();
        QWheelEvent event(middle, widget().mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget(), &event);
    }
};

TEST_F(RampSliderTest, KeysAndWheelStepWithinTheRange) {
    struct Case {
        Qt::Key key;
        int from, to;
        bool mirrored;
    };
    const Case cases[] = {
        {Qt::Key_Right, 5, 6, false},    {Qt::Key_Right, 31, 31, false},  {Qt::Key_Left, 5, 4, false},
        {Qt::Key_Left, 0, 0, false},     {Qt::Key_Right, 5, 4, true},     {Qt::Key_Left, 5, 6, true},
        {Qt::Key_Up, 5, 6, true},        {Qt::Key_Down, 5, 4, true},      {Qt::Key_PageUp, 5, 9, false},
        {Qt::Key_PageDown, 5, 1, false}, {Qt::Key_PageUp, 30, 31, false}, {Qt::Key_PageDown, 3, 0, false},
        {Qt::Key_Home, 5, 0, true},      {Qt::Key_End, 5, 31, true}};
    for (const Case& c : cases) {
        widget().setLayoutDirection(c.mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        set(3, longValue(c.from));
        EXPECT_THAT(sink_.taken(), IsEmpty());
        QTest::keyClick(&widget(), c.key);
        EXPECT_EQ(value(), c.to) << c.key << " from " << c.from;
        EXPECT_EQ(sink_.taken(), c.from == c.to ? std::vector<std::string>()
                                                : std::vector{"3(" + std::to_string(c.to) + "L)"});
    }
    set(3, longValue(10));
    // Fine wheels turn by parts of a step.
    for (const int part : {40, 40, 40, 240, -120})
        wheel(part);
    EXPECT_THAT(sink_.taken(), ElementsAre("3(11L)", "3(13L)", "3(12L)"));
}

TEST_F(RampSliderTest, DragsReportEachValueAndThenTheEnd) {
    set(3, longValue(7));
    QTest::mousePress(&widget(), Qt::LeftButton, {}, end(true));
    QTest::mouseMove(&widget(), end(true) + QPoint(1, 0));
    QTest::mouseMove(&widget(), end(false) + QPoint(100, 80));
    EXPECT_EQ(value(), 31);
    QTest::mouseRelease(&widget(), Qt::LeftButton, {}, end(false));
    EXPECT_THAT(sink_.taken(), ElementsAre("1(0L)", "1(31L)", "2(31L)"));
    QTest::mouseMove(&widget(), end(true));
    QTest::mouseClick(&widget(), Qt::RightButton, {}, end(true));
    EXPECT_THAT(sink_.taken(), IsEmpty());
    widget().setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(&widget(), Qt::LeftButton, {}, end(false));
    EXPECT_THAT(sink_.taken(), ElementsAre("1(0L)", "2(0L)"));
}

TEST_F(RampSliderTest, ANewRangeBringsTheValueIn) {
    struct Case {
        int minimum, maximum, before, after;
    };
    const Case cases[] = {{0, 1, 31, 1}, {10, 20, 0, 10}, {5, 5, 5, 5}, {INT32_MIN, INT32_MAX, 5, 5}};
    for (const Case& c : cases) {
        call(8, {longValue(0), longValue(31)});
        set(3, longValue(c.before));
        call(8, {longValue(c.minimum), longValue(c.maximum)});
        EXPECT_EQ(value(), c.after);
        EXPECT_FALSE(widget().grab().isNull());
    }
    sink_.taken();
    // The widest range: steps and clicks reach both ends and go no further.
    QTest::keyClick(&widget(), Qt::Key_End);
    QTest::keyClick(&widget(), Qt::Key_PageUp);
    EXPECT_EQ(value(), INT32_MAX);
    QTest::mouseClick(&widget(), Qt::LeftButton, {}, end(true));
    EXPECT_EQ(value(), INT32_MIN);
}

TEST_F(RampSliderTest, PaintsTheRampBetweenItsColoursAndTheMarkerOverIt) {
    set(4, longValue(0x0000ff));
    set(5, longValue(0xff0000));
    set(6, longValue(0x00ff00));
    for (const bool mirrored : {false, true}) {
        widget().setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        set(3, longValue(16));
        const QImage image = widget().grab().toImage();
        const int y = image.height() / 2;
        const QColor left = image.pixelColor(12, y);
        const QColor right = image.pixelColor(image.width() - 13, y);
        const QColor& low = mirrored ? right : left;
        const QColor& high = mirrored ? left : right;
        EXPECT_GT(low.red(), 230);
        EXPECT_LT(low.blue(), 25);
        EXPECT_GT(high.blue(), 230);
        const int marked = mirrored ? 300 - 154 : 154;
        EXPECT_EQ(image.pixelColor(marked, y), QColor(0, 255, 0)) << mirrored;
    }
    EXPECT_EQ(number(invoke(5, DispatchKind::Get, {})), 0xff0000);
}

TEST_F(RampSliderTest, IsASliderToReadersNamedByWhoPlacedIt) {
    QWidget host;
    host.setAccessibleName(QStringLiteral("Red"));
    widget().setParent(&host);
    QAccessibleInterface* const slider = QAccessible::queryAccessibleInterface(&widget());
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    EXPECT_EQ(slider->text(QAccessible::Name), QStringLiteral("Red"));
    ASSERT_NE(slider->valueInterface(), nullptr);
    EXPECT_EQ(slider->valueInterface()->maximumValue(), QVariant(31));
    slider->valueInterface()->setCurrentValue(99);
    EXPECT_EQ(value(), 31);
    EXPECT_THAT(sink_.taken(), ElementsAre("3(31L)"));
    widget().setParent(nullptr);
}

} // namespace
} // namespace dyeworks
