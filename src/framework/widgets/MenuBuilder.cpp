#include "framework/widgets/MenuBuilder.h"

#include "framework/CommandTable.h"
#include "framework/widgets/CommandActions.h"
#include "platform/Platform.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

namespace dyeworks {

namespace {

QString titleOf(const MenuItem& item) {
    return QString::fromStdString(platform().texts().translate(kMenuContext, item.title));
}

/// The last command that the item stands for.
CommandId lastOf(const MenuItem& item) {
    const CommandRow* row = findCommand(item.id);
    return row == nullptr || row->id != item.id ? item.id : std::max(row->id, row->last);
}

bool isSeparator(const MenuItem& item) {
    return item.id == 0 && item.title == nullptr;
}

/// Adds what the items say; `addSubmenu` adds one submenu.
template <typename Bar, typename AddSubmenu>
void fill(Bar& bar, std::span<const MenuItem> items, const CommandActions& actions, AddSubmenu addSubmenu) {
    bool separate = false;
    for (const MenuItem& item : items) {
        if (isSeparator(item)) {
            separate = !bar.actions().isEmpty();
            continue;
        }
        QAction* action = actions.action(item.id);
        if (item.title == nullptr && action == nullptr)
            continue;
        if (separate)
            bar.addSeparator();
        separate = false;
        if (action == nullptr) {
            addSubmenu(item);
            continue;
        }
        for (CommandId id = item.id; id <= lastOf(item); ++id)
            bar.addAction(actions.action(id));
    }
}

} // namespace

void fillMenu(QMenu& menu, std::span<const MenuItem> items, CommandActions& actions) {
    // First, so that what follows sees fresh states.
    QObject::connect(&menu, &QMenu::aboutToShow, &actions, &CommandActions::refresh, Qt::UniqueConnection);
    fill(menu, items, actions, [&](const MenuItem& item) {
        QMenu* submenu = menu.addMenu(titleOf(item));
        fillMenu(*submenu, item.items, actions);
        // A list that has no entries leaves nothing to open.
        QObject::connect(&menu, &QMenu::aboutToShow, submenu, [submenu] {
            submenu->menuAction()->setEnabled(std::ranges::any_of(
                submenu->actions(), [](const QAction* entry) { return entry->isVisible(); }));
        });
    });
}

void fillMenuBar(QMenuBar& bar, std::span<const MenuItem> items, CommandActions& actions) {
    for (const MenuItem& item : items)
        fillMenu(*bar.addMenu(titleOf(item)), item.items, actions);
}

void fillToolBar(QToolBar& bar, std::span<const MenuItem> items, CommandActions& actions) {
    fill(bar, items, actions, [](const MenuItem&) {});
}

} // namespace dyeworks
