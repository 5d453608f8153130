#pragma once

#include "ui/controls/dispatch/Dispatch.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QVariant>

#include <memory>

namespace dyeworks {

/// Registers a class with the running application. False when there is none. The texts are copied: they must
/// not lie in a library that is unloaded.
inline bool registerControlClass(const char* className, const char* fileName) {
    QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr)
        return false;
    application->setProperty(QByteArray(kControlPropertyPrefix).append(className).constData(),
                             QVariant(QString::fromUtf8(fileName)));
    return true;
}

} // namespace dyeworks

/// Defines the two functions that the library of a control exports: `Class`, a Control, is registered by the
/// name `name`, and `name`.ocx is the library's file.
#define DYEWORKS_CONTROL_ENTRY_POINTS(name, Class)                                                           \
    extern "C" __attribute__((visibility("default"))) std::int32_t DllRegisterServer() {                     \
        return ::dyeworks::registerControlClass(name, name ".ocx") ? 0 : 1;                                  \
    }                                                                                                        \
    extern "C" __attribute__((visibility("default"))) ::dyeworks::Control* DyeworksCreateControl() {         \
        return std::make_unique<Class>().release();                                                          \
    }
