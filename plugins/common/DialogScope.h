#pragma once

#include <QApplication>

namespace dyeworks::plugins {

/// The ordinary pointer while a plug-in asks something: the program shows its wait cursor during the call.
class DialogScope {
public:
    DialogScope() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~DialogScope() { QApplication::restoreOverrideCursor(); }
    DialogScope(const DialogScope&) = delete;
    DialogScope& operator=(const DialogScope&) = delete;
};

} // namespace dyeworks::plugins
