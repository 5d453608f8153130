#pragma once

#include "platform/WaitCursor.h"

namespace dyeworks {

/// The application's override cursor. Without a window system it only counts.
class QtWaitCursor : public WaitCursor {
public:
    void begin() override;
    /// An `end` too many is ignored.
    void end() override;

private:
    int depth_ = 0;
};

/// Shows the ordinary pointer while it lives, so that a dialog that opens in the middle of long work does not
/// look busy.
class OrdinaryPointerScope {
public:
    OrdinaryPointerScope();
    ~OrdinaryPointerScope();
    OrdinaryPointerScope(const OrdinaryPointerScope&) = delete;
    OrdinaryPointerScope& operator=(const OrdinaryPointerScope&) = delete;

private:
    bool overriding_;
};

} // namespace dyeworks
