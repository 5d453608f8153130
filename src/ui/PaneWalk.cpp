#include "ui/PaneWalk.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace dyeworks {

namespace {

bool takesKeys(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.isVisible() && widget.isEnabled();
}

bool isIn(const QWidget* widget, const QWidget& pane) {
    return widget == &pane || pane.isAncestorOf(widget);
}

/// What the keys are to come to in a pane, or null.
QWidget* targetIn(QWidget& pane) {
    QWidget* const last = pane.focusWidget();
    if (last != nullptr && isIn(last, pane) && takesKeys(*last))
        return last;
    // The chain goes round through the whole window.
    QWidget* widget = &pane;
    do {
        if (isIn(widget, pane) && takesKeys(*widget))
            return widget;
        widget = widget->nextInFocusChain();
    } while (widget != &pane);
    return nullptr;
}

} // namespace

void walkPanes(std::span<QWidget* const> panes, bool back) {
    const QWidget* const focus = QApplication::focusWidget();
    const auto now = std::ranges::find_if(
        panes, [focus](const QWidget* pane) { return pane != nullptr && isIn(focus, *pane); });
    const auto count = static_cast<std::ptrdiff_t>(panes.size());
    // From nowhere the next one is the first, and the one before the last.
    const std::ptrdiff_t start = now != panes.end() ? now - panes.begin() : back ? 0 : -1;
    for (std::ptrdiff_t step = 1; step <= count; ++step) {
        const std::ptrdiff_t index = ((back ? start - step : start + step) % count + count) % count;
        QWidget* const pane = panes[static_cast<std::size_t>(index)];
        QWidget* const target = pane != nullptr && pane->isVisible() ? targetIn(*pane) : nullptr;
        if (target == nullptr)
            continue;
        target->window()->activateWindow();
        target->setFocus(Qt::ShortcutFocusReason);
        return;
    }
}

} // namespace dyeworks
