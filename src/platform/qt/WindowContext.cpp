#include "platform/qt/WindowContext.h"

#include <QApplication>

namespace dyeworks {

bool WindowContext::canAsk() const {
    return interactive && qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

QWidget* WindowContext::owner() const {
    if (QWidget* dialog = QApplication::activeModalWidget())
        return dialog;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    return mainWindow;
}

} // namespace dyeworks
