#pragma once

#include <QAccessible>

namespace dyeworks {

/// Makes the accessible interfaces of a library's windows known to Qt while any of its controls lives; a
/// control has it as a member before its window. It must be gone from Qt's list before the library is
/// unloaded.
class AccessibleFactory {
public:
    /// The same factory each time within a library.
    explicit AccessibleFactory(QAccessible::InterfaceFactory factory)
        : factory_(factory) {
        if (users_++ == 0)
            QAccessible::installFactory(factory_);
    }
    ~AccessibleFactory() {
        if (--users_ == 0)
            QAccessible::removeFactory(factory_);
    }
    AccessibleFactory(const AccessibleFactory&) = delete;
    AccessibleFactory& operator=(const AccessibleFactory&) = delete;

private:
    static inline int users_ = 0;
    QAccessible::InterfaceFactory factory_;
};

} // namespace dyeworks
