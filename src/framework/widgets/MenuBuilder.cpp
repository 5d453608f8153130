#include "framework/widgets/MenuBuilder.h"

#include "framework/widgets/CommandActions.h"
#include "platform/Platform.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace dyeworks {

namespace {

QString titleOf(const MenuItem& item) {
    return QString::fromStdString(platform().texts().translate(kMenuContext, item.title));
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
        if (action != nullptr)
            bar.addAction(action);
        else
            addSubmenu(item);
    }
}

} // namespace

void fillMenu(QMenu& menu, std::span<const MenuItem> items, CommandActions& actions) {
    fill(menu, items, actions,
         [&](const MenuItem& item) { fillMenu(*menu.addMenu(titleOf(item)), item.items, actions); });
    QObject::connect(&menu, &QMenu::aboutToShow, &actions, &CommandActions::refresh, Qt::UniqueConnection);
}

void fillMenuBar(QMenuBar& bar, std::span<const MenuItem> items, CommandActions& actions) {
    for (const MenuItem& item : items)
        fillMenu(*bar.addMenu(titleOf(item)), item.items, actions);
}

void fillToolBar(QToolBar& bar, std::span<const MenuItem> items, CommandActions& actions) {
    fill(bar, items, actions, [](const MenuItem&) {});
}

} // namespace dyeworks
