#include "framework/widgets/WidgetPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace dyeworks {

namespace {

/// The rectangle of the screen that shows most of `window`, or of the main screen when none shows any of it.
QRect screenFor(const QRect& window) {
    const auto shown = [&](const QScreen* screen) {
        const QRect part = screen->availableGeometry() & window;
        return part.isEmpty() ? 0LL : 1LL * part.width() * part.height();
    };
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto best = std::ranges::max_element(screens, {}, shown);
    const QScreen* screen =
        best != screens.end() && shown(*best) > 0 ? *best : QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

QRect ontoScreen(QRect window) {
    const QRect screen = screenFor(window);
    if (window.intersects(screen))
        return window;
    window.setSize(window.size().boundedTo(screen.size()));
    window.moveTo(std::clamp(window.x(), screen.left(), screen.right() + 1 - window.width()),
                  std::clamp(window.y(), screen.top(), screen.bottom() + 1 - window.height()));
    return window;
}

} // namespace

WindowPlacement windowPlacement(const QWidget& window) {
    const Qt::WindowStates state = window.windowState();
    WindowPlacement placement;
    if (state.testFlag(Qt::WindowMinimized)) {
        placement.showCommand = WindowPlacement::kShowMinimized;
        placement.flags = state.testFlag(Qt::WindowMaximized) ? WindowPlacement::kRestoreToMaximized : 0;
    } else if (state.testFlag(Qt::WindowMaximized)) {
        placement.showCommand = WindowPlacement::kShowMaximized;
    }
    const QRect normal = window.normalGeometry().isValid() ? window.normalGeometry() : window.geometry();
    placement.left = normal.left();
    placement.top = normal.top();
    placement.right = normal.left() + normal.width();
    placement.bottom = normal.top() + normal.height();
    return placement;
}

void setWindowPlacement(QWidget& window, const WindowPlacement& placement) {
    const QRect normal(placement.left, placement.top, placement.right - placement.left,
                       placement.bottom - placement.top);
    if (normal.isValid())
        window.setGeometry(ontoScreen(normal));
    Qt::WindowStates state = window.windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (placement.showCommand == WindowPlacement::kShowMinimized) {
        state |= Qt::WindowMinimized;
        if ((placement.flags & WindowPlacement::kRestoreToMaximized) != 0)
            state |= Qt::WindowMaximized;
    } else if (placement.showCommand == WindowPlacement::kShowMaximized) {
        state |= Qt::WindowMaximized;
    }
    window.setWindowState(state);
}

} // namespace dyeworks
