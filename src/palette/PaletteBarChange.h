#pragma once

#include "palette/PaletteBarState.h"

namespace dyeworks {

class PaletteBarState::Change {
public:
    enum What : unsigned { kValues = 1, kLayout = 2, kTabs = 4 };

    Change(PaletteBarState& state, unsigned what)
        : state_(state) {
        ++state_.changeDepth_;
        state_.changed_ |= what;
    }
    ~Change() {
        if (--state_.changeDepth_ > 0)
            return;
        const unsigned changed = state_.changed_;
        state_.changed_ = 0;
        if ((changed & kTabs) != 0)
            state_.view_.tabsChanged();
        if ((changed & kLayout) != 0)
            state_.view_.layoutChanged();
        if ((changed & kValues) != 0)
            state_.view_.valuesChanged();
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

private:
    PaletteBarState& state_;
};

} // namespace dyeworks
