#include "framework/widgets/WidgetPlacement.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace dyeworks {

namespace {

/// Of the title bar, which must be in sight for the window to be moved by it.
constexpr int kHold = 64;

/// What the window system puts around the window, as far as that can be told before it has.
QMargins frameOf(const QWidget& window) {
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    if (outer != inner)
        return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
                outer.bottom() - inner.bottom()};
    const QStyle& style = *window.style();
    const int side = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    return {side, style.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window), side, side};
}

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

bool canBeReached(const QRect& geometry) {
    const QRect top(geometry.topLeft(), QSize(geometry.width(), 1));
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool held = std::ranges::any_of(screens, [&](const QScreen* screen) {
        return (screen->availableGeometry() & top).width() >= std::min(kHold, geometry.width());
    });
    // A window may well reach over several screens.
    const QSize all = QGuiApplication::primaryScreen()->virtualSize();
    return held && geometry.width() <= all.width() && geometry.height() <= all.height();
}

/// `geometry`, moved and shrunk until it is inside the screen together with the window's frame.
QRect insideScreen(const QRect& geometry, const QWidget& window) {
    const QRect room = screenFor(geometry).marginsRemoved(frameOf(window));
    QRect fitted(geometry.topLeft(), geometry.size().boundedTo(room.size()).expandedTo(window.minimumSize()));
    fitted.moveLeft(std::max(room.left(), std::min(fitted.left(), room.right() + 1 - fitted.width())));
    fitted.moveTop(std::max(room.top(), std::min(fitted.top(), room.bottom() + 1 - fitted.height())));
    return fitted;
}

} // namespace

void placeInsideScreen(QWidget& window, QPoint corner) {
    const QMargins frame = frameOf(window);
    const QPoint inner(frame.left(), frame.top());
    const QRect fitted = insideScreen(QRect(corner + inner, window.size()), window);
    window.resize(fitted.size());
    window.move(fitted.topLeft() - inner);
}

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
    if (placement.hasRectangle()) {
        const QRect normal(placement.left, placement.top, placement.right - placement.left,
                           placement.bottom - placement.top);
        window.setGeometry(canBeReached(normal) ? normal : insideScreen(normal, window));
    }
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
