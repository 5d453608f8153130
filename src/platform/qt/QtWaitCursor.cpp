#include "platform/qt/QtWaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace dyeworks {

namespace {

bool hasPointer() {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

void QtWaitCursor::begin() {
    if (depth_++ == 0 && hasPointer())
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}

void QtWaitCursor::end() {
    if (depth_ == 0)
        return;
    if (--depth_ == 0 && hasPointer())
        QGuiApplication::restoreOverrideCursor();
}

OrdinaryPointerScope::OrdinaryPointerScope()
    : overriding_(hasPointer() && QGuiApplication::overrideCursor() != nullptr) {
    if (overriding_)
        QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor));
}

OrdinaryPointerScope::~OrdinaryPointerScope() {
    if (overriding_)
        QGuiApplication::restoreOverrideCursor();
}

} // namespace dyeworks
