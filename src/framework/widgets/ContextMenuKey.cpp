#include "framework/widgets/ContextMenuKey.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWidget>

namespace dyeworks {

namespace {

bool isMenuKey(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
}

} // namespace

ContextMenuKey::ContextMenuKey(QObject* parent)
    : QObject(parent) {
    qApp->installEventFilter(this);
}

bool ContextMenuKey::eventFilter(QObject* watched, QEvent* event) {
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || !isMenuKey(*event) || QApplication::activePopupWidget() != nullptr)
        return QObject::eventFilter(watched, event);
    const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &asked);
    return true;
}

} // namespace dyeworks
