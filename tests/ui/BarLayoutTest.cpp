#include "Restart.h"

#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

namespace dyeworks {
namespace {

class BarLayout : public Restart {
protected:
    QToolBar& bar(const char* name) { return *frame().findChild<QToolBar*>(QString::fromLatin1(name)); }
    CPaletteBar& palette() { return frame().paletteBar(); }
    /// The bars in words, to compare layouts.
    QStringList layout() {
        QStringList words;
        for (const QToolBar* each : frame().findChildren<QToolBar*>())
            words += QStringLiteral("%1 %2 %3")
                         .arg(each->objectName())
                         .arg(frame().toolBarArea(each))
                         .arg(each->isVisible() ? each->pos().x() * 10000 + each->pos().y() : -1);
        const QRect place = palette().geometry();
        words += QStringLiteral("palette %1 %2 %3 %4 %5")
                     .arg(palette().isVisible())
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height());
        words += frame().statusBar()->isVisible() ? QStringLiteral("status") : QStringLiteral("none");
        return words;
    }
    std::map<std::string, std::string>& stored() { return fake_.profile.sections["BarState"]; }
};

TEST_F(BarLayout, AtFirstTheBarsAreAtTheTopAndThePaletteFloats) {
    const struct {
        const char* name;
        const char* title;
        Qt::ToolBarAreas allowed;
    } cases[] = {
        {"ID_VIEW_TOOLBAR", "Tool", Qt::AllToolBarAreas},
        {"ID_VIEW_VIEWBAR", "View", Qt::AllToolBarAreas},
        {"ID_VIEW_DRAWBAR", "Draw", Qt::AllToolBarAreas},
        {"ID_VIEW_PROJECTBAR", "Project", Qt::TopToolBarArea | Qt::BottomToolBarArea},
    };
    frame().resize(CMainFrame::kFirstSize);
    for (const auto& c : cases) {
        EXPECT_EQ(bar(c.name).windowTitle(), QLatin1String(c.title));
        EXPECT_EQ(bar(c.name).allowedAreas(), c.allowed) << c.name;
        EXPECT_EQ(frame().toolBarArea(&bar(c.name)), Qt::TopToolBarArea) << c.name;
        EXPECT_TRUE(bar(c.name).isVisible()) << c.name;
        // A bar that is too long for its place hides buttons.
        EXPECT_GE(bar(c.name).width(), bar(c.name).sizeHint().width()) << c.name;
    }
    EXPECT_TRUE(palette().isWindow());
    EXPECT_TRUE(palette().isVisible());
    EXPECT_EQ(palette().windowTitle(), QStringLiteral("Palette"));
    EXPECT_TRUE(frame().screen()->availableGeometry().contains(palette().frameGeometry()));
    EXPECT_EQ(palette().y(), 400) << "where it fits, it stands where it is put";
}

TEST_F(BarLayout, EachBarHasItsButtonsInTheirOrder) {
    const struct {
        const char* name;
        std::vector<int> commands; // 0 is a separator.
    } cases[] = {
        {"ID_VIEW_TOOLBAR",
         {57600, 57601, 57603, 0, 57643, 57644, 57635, 57634, 57637, 0, 57607, 57664, 57669}},
        {"ID_VIEW_VIEWBAR", {103, 32793, 32799, 32800}},
        {"ID_VIEW_DRAWBAR",
         {32782, 32935, 0, 32771, 32780, 32781, 32772, 32773, 32774, 32775, 32776, 32978, 0, 32794}},
    };
    for (const auto& c : cases) {
        const QList<QAction*> buttons = bar(c.name).actions();
        ASSERT_EQ(buttons.size(), static_cast<qsizetype>(c.commands.size())) << c.name;
        for (std::size_t i = 0; i < c.commands.size(); ++i) {
            const QAction* expected = frame().commandActions().action(c.commands[i]);
            const QAction* button = buttons[static_cast<qsizetype>(i)];
            EXPECT_TRUE(expected == nullptr ? button->isSeparator() : button == expected) << c.name << i;
        }
    }
}

TEST_F(BarLayout, WhatWasMovedAndHiddenComesBackAsItWas) {
    frame().addToolBar(Qt::LeftToolBarArea, &bar("ID_VIEW_DRAWBAR"));
    frame().addToolBar(Qt::BottomToolBarArea, &bar("ID_VIEW_PROJECTBAR"));
    ASSERT_TRUE(run(ID_VIEW_VIEWBAR));
    ASSERT_TRUE(run(ID_VIEW_STATUS_BAR));
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
    const std::map<std::string, std::string> good = stored();
    const std::string& state = good.at("Docked");
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

} // namespace
} // namespace dyeworks
