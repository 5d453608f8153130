#include "platform/WaitCursor.h"

#include "platform/Platform.h"

namespace dyeworks {

WaitCursorScope::WaitCursorScope() {
    platform().waitCursor().begin();
}

WaitCursorScope::~WaitCursorScope() {
    platform().waitCursor().end();
}

} // namespace dyeworks
