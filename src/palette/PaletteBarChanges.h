#pragma once

#include "palette/PaletteBarHost.h"

namespace dyeworks {

/// Collects what an action changes and tells the view once, when the outermost action ends.
class PaletteBarChanges {
public:
    enum What : unsigned { kValues = 1, kLayout = 2, kTabs = 4 };

    /// `view` must outlive it.
    explicit PaletteBarChanges(PaletteBarView& view)
        : view_(view) {}

    /// An action, from its beginning to its end.
    class Action {
    public:
        Action(PaletteBarChanges& changes, unsigned what)
            : changes_(changes) {
            ++changes_.depth_;
            add(what);
        }
        ~Action() {
            if (--changes_.depth_ == 0)
                changes_.tell();
        }
        Action(const Action&) = delete;
        Action& operator=(const Action&) = delete;

        void add(unsigned what) { changes_.changed_ |= what; }

    private:
        PaletteBarChanges& changes_;
    };

private:
    void tell();

    PaletteBarView& view_;
    int depth_ = 0;
    unsigned changed_ = 0;
};

} // namespace dyeworks
