#include "framework/widgets/WindowListMenu.h"

#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/MdiFrame.h"

#include <QAction>
#include <QActionGroup>
#include <QMdiArea>
#include <QMenu>

namespace dyeworks {

namespace {

/// "&1 sky.tmf": the first nine windows have a digit to press.
QString labelOf(int number, QString title) {
    title.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return (number < 10 ? QStringLiteral("&%1 %2") : QStringLiteral("%1 %2")).arg(number).arg(title);
}

void rebuild(QMenu& menu, MdiFrame& frame, QActionGroup& list) {
    for (QAction* old : list.actions())
        delete old;
    int number = 0;
    for (QMdiSubWindow* window : frame.area().subWindowList(QMdiArea::CreationOrder)) {
        auto* child = qobject_cast<ChildFrame*>(window);
        if (child == nullptr || child->document() == nullptr)
            continue;
        if (number == 0)
            list.addAction(menu.addSeparator());
        QAction* action = list.addAction(menu.addAction(labelOf(++number, child->windowTitle())));
        action->setCheckable(true);
        action->setChecked(child == frame.activeChild());
        QObject::connect(action, &QAction::triggered, child,
                         [&frame, child] { frame.activateChild(*child); });
    }
}

} // namespace

void appendWindowList(QMenu& menu, MdiFrame& frame) {
    auto* list = new QActionGroup(&menu);
    QObject::connect(&menu, &QMenu::aboutToShow, list,
                     [&menu, &frame, list] { rebuild(menu, frame, *list); });
}

} // namespace dyeworks
