#include "ControlTest.h"
#include "ui/controls/CFolderPick.h"
#include "ui/controls/CRampSlider.h"
#include "ui/controls/CSwatchGrid.h"
#include "ui/controls/ControlRegistration.h"

#include <QAccessible>

#include <algorithm>
#include <fstream>

namespace dyeworks {
namespace {

using testing::ElementsAre;

/// Whether a file is part of this process at this moment.
bool isMapped(const std::string& fileName) {
    std::ifstream maps("/proc/self/maps");
    std::string line;
    while (std::getline(maps, line)) {
        if (line.ends_with("/" + fileName))
            return true;
    }
    return false;
}

TEST_F(ControlTest, WrongCallsAreRefusedByEveryControl) {
    using enum DispatchKind;
    using enum DispatchStatus;
    std::string text;
    std::string* const nowhere = nullptr;
    const struct {
        const char* control;
        DispatchId id;
        DispatchKind kind;
        std::vector<DispatchValue> arguments;
        DispatchStatus status;
    } cases[] = {
        {"SwatchGrid", 1, Method, {}, MemberNotFound},
        {"SwatchGrid", 2, Get, {}, MemberNotFound},
        {"SwatchGrid", 9, Set, {}, MemberNotFound},
        {"SwatchGrid", 3, Set, {}, BadParameterCount},
        {"SwatchGrid", 4, Method, shortValues({4, 4}), BadParameterCount},
        {"SwatchGrid", 4, Method, shortValues({-1, 4, 0}), BadParameter},
        {"SwatchGrid", 5, Method, {std::string("4")}, BadParameter},
        {"SwatchGrid", 5, Method, {longValue(0x8000)}, BadParameter},
        {"SwatchGrid", 5, Method, {longValue(4)}, Done},
        {"SwatchGrid", 7, Method, {shortValue(-1), longValue(0)}, BadParameter},
        {"SwatchGrid", 14, Method, shortValues({0, 0, 0, 0}), BadParameter},
        {"SwatchGrid", 17, Method, shortValues({0, 0}), Done},
        {"SwatchGrid", 26, Method, {shortValue(9), longValue(0)}, BadParameter},
        {"RampSlider", 3, Method, {longValue(0)}, MemberNotFound},
        {"RampSlider", 3, Set, {&text}, BadParameter},
        {"RampSlider", 8, Method, {longValue(1), longValue(0)}, BadParameter},
        {"FolderPick", 2, Get, {}, MemberNotFound},
        {"FolderPick", 2, Set, {longValue(0)}, BadParameter},
        {"FolderPick", 4, Method, {longValue(0), nowhere}, BadParameter},
        {"FolderPick", 4, Method, {longValue(1), &text}, BadParameter},
        {"FolderPick", 4, Method, {longValue(0), std::string()}, BadParameter},
    };
    for (const auto& c : cases) {
        create(c.control);
        EXPECT_EQ(invoke(c.id, c.kind, c.arguments).status, c.status) << c.control << " " << c.id;
    }
}

TEST_F(ControlTest, LibrariesGoWithTheirLastObjectAndLeaveNothingBehind) {
    QAccessible::setActive(true);
    for (const char* name : {"SwatchGrid", "RampSlider"}) {
        const std::string file = std::string(name) + ".ocx";
        create(name);
        auto second = std::make_unique<CSwatchGrid>();
        QAccessible::queryAccessibleInterface(&widget())->child(0);
        EXPECT_TRUE(isMapped(file));
        destroy();
        EXPECT_TRUE(isMapped("SwatchGrid.ocx"));
        second.reset();
        EXPECT_FALSE(isMapped(file)) << file;
        EXPECT_EQ(fake_.library.loadedCount(), 0);
    }
    // What was installed with the libraries is asked about every new window.
    QWidget other;
    EXPECT_NE(QAccessible::queryAccessibleInterface(&other), nullptr);
    QAccessible::setActive(false);
}

TEST_F(ControlTest, WrappersOfWhatIsNoControlAreEmpty) {
    for (const char* file : {"SwatchGrid.ocx", "RampSlider.ocx", "FolderPick.ocx"})
        fake_.library.forget(file);
    EXPECT_FALSE(registerControl("SwatchGrid.ocx"));
    // A file that lost its factory, which registers nothing and loads all the same.
    fake_.library.define("RampSlider.ocx", {});
    EXPECT_TRUE(registerControl("RampSlider.ocx"));
    CSwatchGrid grid;
    EXPECT_FALSE(grid.exists() || grid.setCellCount(4) || grid.selectedRange());
    EXPECT_EQ(grid.marker(0), CSwatchGrid::kNone);
    CRampSlider slider;
    EXPECT_FALSE(slider.exists());
    slider.setValue(3);
    EXPECT_EQ(slider.value(), 0);
    EXPECT_EQ(CFolderPick::create(), nullptr);
    EXPECT_EQ(fake_.library.loadedCount(), 0);
}

TEST_F(ControlTest, AFileMakesNoClassKnownBeforeItIsRegistered) {
    QCoreApplication::instance()->setProperty("dyeworks.control.RampSlider", QVariant());
    EXPECT_FALSE(CRampSlider().exists());
}

TEST_F(ControlTest, WrappersReachTheMembersOfTheirNames) {
    CSwatchGrid grid;
    ASSERT_TRUE(grid.setCellCount(6));
    grid.setCellLayout(3, 2);
    EXPECT_EQ(grid.cellCount(), 6);
    grid.setCellValue(5, 0xff123456U);
    EXPECT_EQ(grid.cellValue(5), 0xff123456U);
    EXPECT_TRUE(grid.setMarker(2, 4));
    EXPECT_EQ(grid.marker(2), 4);
    grid.setSelectable(1);
    grid.setBankMode(true);
    grid.resize(200, 150);
    grid.show();
    std::vector<std::string> heard;
    QObject::connect(&grid, &CSwatchGrid::clicked, [&] { heard.push_back("click"); });
    QObject::connect(&grid, &CSwatchGrid::doubleClicked, [&] { heard.push_back("double"); });
    QObject::connect(&grid, &CSwatchGrid::rangeSelected, [&](int a, int b, int c, int d) {
        heard.push_back(std::to_string(a * 1000 + b * 100 + c * 10 + d));
    });
    QObject::connect(&grid, &CSwatchGrid::cellsPasted,
                     [&](int first, int last) { heard.push_back(std::to_string(first * 10 + last)); });
    QWidget* const window = grid.controlWindow();
    QTest::keyClick(window, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(window, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(grid.clickedCell(), 5);
    ASSERT_TRUE(grid.hasSelectedRange());
    EXPECT_EQ(grid.selectedRange()->firstColumn, 1);
    EXPECT_EQ(grid.selectedRange()->lastColumn, 2);
    ASSERT_TRUE(grid.copySelected());
    EXPECT_TRUE(grid.hasCopiedCells());
    EXPECT_TRUE(grid.paste(1, 0));
    EXPECT_EQ(grid.cellValue(2), 0xff123456U);
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_THAT(heard, ElementsAre("2121", "click", "1121", "22", "double"));

    CRampSlider slider;
    slider.setRange(0, 31);
    slider.setValue(40);
    EXPECT_EQ(slider.value(), 31);
    int last = -1;
    QObject::connect(&slider, &CRampSlider::valueChanged, [&](int value) { last = value; });
    QTest::keyClick(slider.controlWindow(), Qt::Key_Home);
    EXPECT_EQ(last, 0);
}

} // namespace
} // namespace dyeworks
