#include "ControlTest.h"
#include "ui/controls/CFolderPick.h"
#include "ui/controls/CRampSlider.h"
#include "ui/controls/CSwatchGrid.h"
#include "ui/controls/ControlRegistration.h"

#include <QAccessible>

#include <fstream>

namespace dyeworks {
namespace {

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

} // namespace
} // namespace dyeworks
