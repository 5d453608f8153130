#include "framework/widgets/CommandActions.h"

#include "framework/CommandRouter.h"
#include "framework/CommandTable.h"
#include "framework/widgets/CommandIcon.h"
#include "framework/widgets/MenuBuilder.h"
#include "platform/fake/FakePlatform.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QMenu>
#include <gtest/gtest.h>

#include <array>

using namespace dyeworks;

namespace {

class Viewer : public CommandTarget {
public:
    Viewer() {
        on(ID_ZOOM_X2, &Viewer::OnZoom, &Viewer::OnUpdateZoom);
        on(ID_EDIT_UNDO, &Viewer::OnUndo, &Viewer::OnUpdateUndo);
    }
    void takeList() {
        onRange(ID_RECENT_IMAGE_FIRST, ID_RECENT_IMAGE_LAST, &Viewer::OnOpen, &Viewer::OnUpdateOpen);
    }
    int zooms = 0;
    bool canUndo = false;
    std::vector<std::string> names{"&1 sea", "&2 sky"};
    CommandId opened = 0;

private:
    void OnZoom() { ++zooms; }
    void OnUpdateZoom(CommandUi& ui) { ui.checked = zooms > 0; }
    void OnUndo() { canUndo = false; }
    void OnUpdateUndo(CommandUi& ui) {
        ui.enabled = canUndo;
        if (canUndo)
            ui.text = "&Undo Line";
    }
    void OnOpen(CommandId id) { opened = id; }
    void OnUpdateOpen(CommandUi& ui) {
        const std::size_t index = ui.id - ID_RECENT_IMAGE_FIRST;
        ui.visible = index < names.size();
        if (ui.visible)
            ui.text = names[index];
    }
};

struct Actions : testing::Test {
    FakePlatform fake;
    Viewer viewer;
    CommandRouter router{[this] { return std::vector<CommandTarget*>{&viewer}; }};
    CommandActions actions{router};
};

TEST_F(Actions, CheckMarkFollowsTheStateAndNotTheClick) {
    actions.refresh();
    QAction& zoom = *actions.action(ID_ZOOM_X2);
    EXPECT_FALSE(zoom.isChecked());
    zoom.trigger();
    EXPECT_TRUE(zoom.isChecked());
    zoom.trigger(); // The click alone would take the mark away.
    EXPECT_TRUE(zoom.isChecked());
    EXPECT_EQ(viewer.zooms, 2);
}

TEST_F(Actions, StatesAreFreshWhenAMenuOpensAndWhenIdle) {
    constexpr std::array kItems{MenuItem{ID_EDIT_UNDO}};
    QMenu menu;
    fillMenu(menu, kItems, actions);
    QAction& undo = *actions.action(ID_EDIT_UNDO);
    actions.refresh();
    EXPECT_FALSE(undo.isEnabled());

    viewer.canUndo = true;
    Q_EMIT menu.aboutToShow();
    EXPECT_TRUE(undo.isEnabled());
    EXPECT_EQ(undo.text(), QStringLiteral("&Undo Line"));

    viewer.canUndo = false;
    Q_EMIT QAbstractEventDispatcher::instance()->aboutToBlock();
    EXPECT_FALSE(undo.isEnabled());
    EXPECT_EQ(undo.text(), QStringLiteral("&Undo"));
}

QStringList shownIn(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        if (action->isVisible())
            texts += action->text();
    }
    return texts;
}

TEST_F(Actions, MenuShowsTheEntriesOfAListAndCannotOpenAnEmptyOne) {
    static constexpr std::array kList{MenuItem{ID_RECENT_IMAGE_FIRST}};
    constexpr std::array kItems{MenuItem{ID_EDIT_UNDO}, MenuItem{0, "&Recent", kList}};
    QMenu menu;
    fillMenu(menu, kItems, actions);
    const QAction& opener = *menu.actions().back();
    const QMenu& list = *opener.menu();
    EXPECT_EQ(list.actions().size(), ID_RECENT_IMAGE_LAST - ID_RECENT_IMAGE_FIRST + 1);

    Q_EMIT menu.aboutToShow();
    const QStringList placeholder{QString::fromStdString(menuText(*findCommand(ID_RECENT_IMAGE_FIRST)))};
    EXPECT_EQ(shownIn(list), placeholder) << "nobody takes them";
    viewer.takeList();
    Q_EMIT menu.aboutToShow();
    const QStringList entries{QStringLiteral("&1 sea"), QStringLiteral("&2 sky")};
    EXPECT_EQ(shownIn(list), entries);
    EXPECT_TRUE(opener.isEnabled());
    list.actions()[1]->trigger();
    EXPECT_EQ(viewer.opened, ID_RECENT_IMAGE_FIRST + 1);

    viewer.names.clear();
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(shownIn(list), QStringList());
    EXPECT_FALSE(opener.isEnabled());
}

TEST_F(Actions, EveryShortcutAndIconOfTheTableIsUnderstood) {
    for (const CommandRow& row : commandTable()) {
        const QAction& action = *actions.action(row.id);
        EXPECT_EQ(action.shortcuts().isEmpty(), row.shortcut[0] == '\0') << row.id;
        for (const QKeySequence& keys : action.shortcuts())
            EXPECT_FALSE(keys.isEmpty() || keys[0].key() == Qt::Key_unknown) << row.shortcut;
        EXPECT_EQ(commandIcon(QString::fromUtf8(row.icon)).isNull(), row.icon[0] == '\0') << row.icon;
    }
    EXPECT_TRUE(actions.action(ID_ZOOM_IN)->shortcuts().contains(QKeySequence(QStringLiteral("Ctrl++"))));
}

} // namespace
