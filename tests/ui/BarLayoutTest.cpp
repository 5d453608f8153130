#include "Program.h"

#include <QDebug>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

namespace dyeworks {
namespace {

class BarLayout : public Restart {
protected:
    QToolBar& bar(const char* name) { return *frame().findChild<QToolBar*>(name); }
    CPaletteBar& palette() { return frame().paletteBar(); }
    /// The bars in words, to compare layouts.
    QStringList layout() {
        QStringList words;
        const auto word = [](const auto& value) { return QDebug::toString(value); };
        for (const QToolBar* each : frame().findChildren<QToolBar*>())
            words += each->objectName() + word(frame().toolBarArea(each)) +
                     (each->isVisible() ? word(each->pos()) : "hidden");
        const auto& findings = *frame().findChild<QDockWidget*>("ID_VIEW_FINDINGS");
        words += word(findings.isVisible());
        words += word(palette().isVisible()) + word(palette().geometry());
        words += word(frame().statusBar()->isVisible());
        return words;
    }
    std::map<std::string, std::string>& stored() { return fake_.profile.sections["BarState"]; }
};

TEST_F(BarLayout, AtFirstTheBarsAreAtTheTopWithTheirButtonsAndThePaletteFloats) {
    const struct {
        const char* name;
        const char* title;
        bool flat; // What the project bar holds is no button, and too long to stand upright.
    } cases[] = {{"ID_VIEW_TOOLBAR", "Tool", false},
                 {"ID_VIEW_VIEWBAR", "View", false},
                 {"ID_VIEW_DRAWBAR", "Draw", false},
                 {"ID_VIEW_PROJECTBAR", "Project", true}};
    frame().resize(CMainFrame::kFirstSize);
    for (const auto& [name, title, flat] : cases) {
        SCOPED_TRACE(name);
        const QToolBar& shown = bar(name);
        EXPECT_EQ(shown.windowTitle(), title);
        EXPECT_EQ(frame().toolBarArea(&shown), Qt::TopToolBarArea);
        EXPECT_TRUE(shown.isVisible());
        // A bar that is too long for its place hides buttons.
        EXPECT_GE(shown.width(), shown.sizeHint().width());
        EXPECT_EQ(shown.allowedAreas(),
                  flat ? Qt::TopToolBarArea | Qt::BottomToolBarArea : Qt::AllToolBarAreas);
        for (const QAction* button : shown.actions())
            EXPECT_EQ(button->icon().isNull(), button->isSeparator() || flat);
    }
    const std::unique_ptr<QMenu> menu(static_cast<QMainWindow&>(frame()).createPopupMenu());
    EXPECT_EQ(menu->actions().size(), 10);
    frame().commandActions().refresh();
    for (qsizetype i = 0; i < menu->actions().size(); ++i) {
        const QAction* const item = menu->actions().at(i);
        // The last ones are hidden at first.
        EXPECT_TRUE(item->isChecked() == (i < 6) && !item->isIconVisibleInMenu())
            << item->text().toStdString();
    }
    EXPECT_TRUE(bar("ID_VIEW_BRUSHBAR").isHidden());
    EXPECT_TRUE(palette().isWindow());
    EXPECT_TRUE(palette().isVisible());
    EXPECT_EQ(palette().windowTitle(), "Palette");
    EXPECT_TRUE(frame().screen()->availableGeometry().contains(palette().frameGeometry()));
    EXPECT_EQ(palette().y(), 400) << "where it fits, it stands where it is put";
}

TEST_F(BarLayout, WhatWasMovedAndHiddenComesBackAsItWas) {
    frame().addToolBar(Qt::LeftToolBarArea, &bar("ID_VIEW_DRAWBAR"));
    frame().addToolBar(Qt::BottomToolBarArea, &bar("ID_VIEW_PROJECTBAR"));
    ASSERT_TRUE(run(ID_VIEW_VIEWBAR));
    ASSERT_TRUE(run(ID_VIEW_STATUS_BAR));
    ASSERT_TRUE(run(ID_VIEW_FINDINGS));
    palette().setGeometry(40, 60, 360, 600);
    QCoreApplication::processEvents();
    const QStringList left = layout();
    leaveAndStart();
    EXPECT_EQ(layout(), left);
    ASSERT_TRUE(run(ID_VIEW_PALETTEBAR));
    leaveAndStart();
    EXPECT_FALSE(palette().isVisible());
    EXPECT_EQ(app_->router().state(ID_VIEW_PALETTEBAR).checked, false);
    ASSERT_TRUE(run(ID_VIEW_PALETTEBAR));
    EXPECT_EQ(layout(), left);
}

TEST_F(BarLayout, ClosingThePaletteHidesItUntilItIsAskedFor) {
    ASSERT_TRUE(palette().close());
    EXPECT_EQ(app_->router().state(ID_VIEW_PALETTEBAR).checked, false);
    frame().hide();
    frame().show();
    EXPECT_FALSE(palette().isVisible());
    ASSERT_TRUE(run(ID_VIEW_PALETTEBAR));
    EXPECT_TRUE(palette().isVisible());
    frame().hide();
    EXPECT_FALSE(palette().isVisible()) << "it does not stay behind alone";
}

TEST_F(BarLayout, DamagedSettingsGiveTheFirstLayout) {
    const QStringList first = layout();
    frame().addToolBar(Qt::LeftToolBarArea, &bar("ID_VIEW_DRAWBAR"));
    ASSERT_TRUE(run(ID_VIEW_VIEWBAR));
    palette().setGeometry(40, 60, 360, 600);
    ASSERT_TRUE(frame().close());
    const std::string state = stored().at("Docked");
    std::string flipped = state;
    flipped[flipped.size() / 2] = flipped[flipped.size() / 2] == 'A' ? 'B' : 'A';
    const std::pair<std::string, std::string> cases[] = {
        {"", "palette"},
        {"!", "0:1:-1:-1:-1:-1:40:60:340"},
        {state.substr(0, state.size() / 2), "0:1:-1:-1:-1:-1:340:60:40:410"},
        {flipped, "0:1:-1:-1:-1:-1:-2147483648:60:2147483647:410"},
        {state.substr(4), ""},
    };
    for (const auto& [docked, paletteBar] : cases) {
        stored() = {{"Docked", docked}, {"PaletteBar", paletteBar}, {"StatusBar", "perhaps"}};
        start();
        EXPECT_EQ(layout(), first) << docked << " " << paletteBar;
    }
}

TEST_F(BarLayout, FullScreenHidesAllBarsAndBringsThemBackEvenAfterAnEndThere) {
    ASSERT_TRUE(run(ID_VIEW_VIEWBAR));
    ASSERT_TRUE(run(ID_VIEW_FINDINGS));
    const QStringList before = layout();
    const auto anyShown = [this] {
        bool any =
            palette().isVisible() || frame().statusBar()->isVisible() || frame().menuBar()->isVisible();
        for (const QToolBar* each : frame().findChildren<QToolBar*>())
            any = any || each->isVisible();
        for (const QDockWidget* each : frame().findChildren<QDockWidget*>())
            any = any || each->isVisible();
        return any;
    };
    for (const bool byKey : {false, true}) {
        ASSERT_TRUE(run(ID_VIEW_FULL_SCREEN));
        EXPECT_TRUE(frame().isFullScreen());
        EXPECT_FALSE(anyShown());
        if (byKey)
            QTest::keyClick(&frame(), Qt::Key_Escape);
        else
            ASSERT_TRUE(run(ID_VIEW_FULL_SCREEN));
        EXPECT_FALSE(frame().isFullScreen());
        EXPECT_TRUE(frame().menuBar()->isVisible());
        QCoreApplication::processEvents();
        EXPECT_EQ(layout(), before);
    }
    ASSERT_TRUE(run(ID_VIEW_FULL_SCREEN));
    leaveAndStart();
    EXPECT_FALSE(frame().isFullScreen());
    EXPECT_EQ(layout(), before);
}

TEST_F(BarLayout, ResetBringsBackTheFirstLayout) {
    QStringList first = layout();
    const QPoint place = palette().pos();
    frame().addToolBar(Qt::LeftToolBarArea, &bar("ID_VIEW_DRAWBAR"));
    ASSERT_TRUE(run(ID_VIEW_STATUS_BAR));
    ASSERT_TRUE(run(ID_VIEW_BANKSBAR));
    palette().setGeometry(40, 60, 360, 600);
    leaveAndStart();
    ASSERT_TRUE(run(ID_VIEW_PALETTEBAR));
    ASSERT_TRUE(run(ID_VIEW_RESET_LAYOUT));
    QCoreApplication::processEvents();
    QStringList now = layout();
    // Polished since, the palette bar is a little larger by itself.
    first.removeAt(first.size() - 2);
    now.removeAt(now.size() - 2);
    EXPECT_EQ(now, first);
    EXPECT_TRUE(palette().isVisible());
    EXPECT_LT((palette().pos() - place).manhattanLength(), 20);
}

} // namespace
} // namespace dyeworks
