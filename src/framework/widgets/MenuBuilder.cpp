#include "framework/widgets/MenuBuilder.h"

#include "framework/CommandTable.h"
#include "framework/widgets/CommandActions.h"
#include "platform/Platform.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>
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

/// Draws the icon of the chosen line in the colours of the selection. Styles take the one that it has on the
/// menu's own ground, whose blue is lost on the blue of most selections.
class MenuStyle : public QProxyStyle {
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* const line = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        const bool chosen = element == CE_MenuItem && line != nullptr &&
                            (line->state & State_Selected) != 0 && (line->state & State_Enabled) != 0 &&
                            !line->icon.isNull();
        if (!chosen) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QStyleOptionMenuItem copy(*line);
        const int side = pixelMetric(PM_SmallIconSize, option, widget);
        const qreal ratio = painter->device()->devicePixelRatioF();
        copy.icon = QIcon(line->icon.pixmap(QSize(side, side), ratio, QIcon::Selected,
                                            line->checked ? QIcon::On : QIcon::Off));
        QProxyStyle::drawControl(element, &copy, painter, widget);
    }
};

/// One for all menus; it ends with the program.
QStyle* menuStyle() {
    static QPointer<MenuStyle> style;
    if (style == nullptr) {
        style = new MenuStyle;
        style->setParent(qApp);
    }
    return style;
}

/// For a menu that is about to show.
void bringUpToDate(QMenu& menu, CommandActions& actions) {
    actions.refresh();
    // A list that has no entries leaves nothing to open.
    for (QAction* entry : menu.actions()) {
        if (const QMenu* submenu = entry->menu())
            entry->setEnabled(std::ranges::any_of(submenu->actions(), &QAction::isVisible));
    }
}

} // namespace

void fillMenu(QMenu& menu, std::span<const MenuItem> items, CommandActions& actions) {
    menu.setStyle(menuStyle());
    fill(menu, items, actions,
         [&](const MenuItem& item) { fillMenu(*menu.addMenu(titleOf(item)), item.items, actions); });
    QObject::connect(&menu, &QMenu::aboutToShow, &actions,
                     [&menu, &actions] { bringUpToDate(menu, actions); });
}

void fillMenuBar(QMenuBar& bar, std::span<const MenuItem> items, CommandActions& actions) {
    for (const MenuItem& item : items) {
        QMenu* menu = bar.addMenu(titleOf(item));
        // Many a menu is never opened, and the window comes up without waiting for any.
        QObject::connect(
            menu, &QMenu::aboutToShow, &actions,
            [menu, entries = item.items, &actions] {
                fillMenu(*menu, entries, actions);
                bringUpToDate(*menu, actions);
            },
            Qt::SingleShotConnection);
    }
}

void fillToolBar(QToolBar& bar, std::span<const MenuItem> items, CommandActions& actions) {
    fill(bar, items, actions, [](const MenuItem&) {});
}

QPoint contextMenuPlace(const QContextMenuEvent& event, const QWidget& area) {
    constexpr QPoint kFromCorner{5, 5};
    return event.reason() == QContextMenuEvent::Keyboard ? area.mapToGlobal(kFromCorner) : event.globalPos();
}

} // namespace dyeworks
