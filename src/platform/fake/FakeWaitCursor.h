#pragma once

#include "platform/WaitCursor.h"

namespace dyeworks {

class FakeWaitCursor final : public WaitCursor {
public:
    int depth = 0;      ///< More than 0 while the wait cursor shows; back at 0 when every scope has ended.
    int shownCount = 0; ///< How often it came up.

    void begin() override { shownCount += depth++ == 0 ? 1 : 0; }
    void end() override { --depth; }
};

} // namespace dyeworks
