#pragma once

namespace dyeworks {

/// The pointer shape that says "working".
class WaitCursor {
public:
    virtual ~WaitCursor() = default;

    /// Calls nest; the pointer is back to normal after as many `end` as `begin`.
    virtual void begin() = 0;
    virtual void end() = 0;
};

/// Shows the installed platform's wait cursor while it lives.
class WaitCursorScope {
public:
    WaitCursorScope();
    ~WaitCursorScope();
    WaitCursorScope(const WaitCursorScope&) = delete;
    WaitCursorScope& operator=(const WaitCursorScope&) = delete;
};

} // namespace dyeworks
