#include "framework/widgets/ControlHelp.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QWhatsThis>
#include <QWidget>

namespace dyeworks {

namespace {

/// A field inside a control leaves it to the control.
const QWidget* speakerFor(const QWidget* control) {
    while (control != nullptr && !control->isWindow() && helpOf(*control).isEmpty())
        control = control->parentWidget();
    return control;
}

bool answerKey(const QKeyEvent& key) {
    QWidget* const focus = QApplication::focusWidget();
    if (key.key() != Qt::Key_F1 || QApplication::activeModalWidget() == nullptr || focus == nullptr)
        return false;
    if (key.modifiers() == Qt::ShiftModifier) {
        QWhatsThis::enterWhatsThisMode();
        return true;
    }
    const QWidget* const speaker = speakerFor(focus);
    if (key.modifiers() != Qt::NoModifier || speaker == nullptr || helpOf(*speaker).isEmpty())
        return false;
    QWhatsThis::showText(focus->mapToGlobal(focus->rect().center()), helpOf(*speaker), focus);
    return true;
}

} // namespace

QString helpOf(const QWidget& control) {
    return control.whatsThis().isEmpty() ? control.toolTip() : control.whatsThis();
}

ControlHelp::ControlHelp(QObject* parent)
    : QObject(parent) {
    qApp->installEventFilter(this);
}

bool ControlHelp::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::QueryWhatsThis && type != QEvent::WhatsThis && type != QEvent::KeyPress)
        return false;
    const auto* const control = qobject_cast<const QWidget*>(watched);
    if (control == nullptr)
        return false;
    if (type == QEvent::KeyPress)
        return answerKey(*static_cast<QKeyEvent*>(event));
    if (!control->whatsThis().isEmpty() || control->toolTip().isEmpty())
        return false;
    if (type == QEvent::WhatsThis)
        QWhatsThis::showText(static_cast<QHelpEvent*>(event)->globalPos(), control->toolTip());
    event->accept();
    return true;
}

} // namespace dyeworks
