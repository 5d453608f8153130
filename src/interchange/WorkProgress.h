#pragma once

#include "interchange/Progress.h"

#include <cstdint>

namespace dyeworks {

/// Tells a `Progress` of the stages of some work, at most once a hundredth.
class WorkProgress {
public:
    explicit WorkProgress(const Progress& progress)
        : progress_(progress) {}

    /// The next calls of `reach` lie between these thousandths of the whole.
    void stage(int from, int to) noexcept {
        from_ = from;
        to_ = to;
    }

    /// `done` of `all` of the stage. False from the first time on that the work shall stop.
    [[nodiscard]] bool reach(std::int64_t done, std::int64_t all) {
        const int now = from_ + static_cast<int>((to_ - from_) * done / all);
        if (stopped_ || !progress_ || now < told_ + 10)
            return !stopped_;
        told_ = now;
        stopped_ = !progress_(now);
        return !stopped_;
    }

    [[nodiscard]] bool stopped() const noexcept { return stopped_; }

private:
    const Progress& progress_;
    int from_ = 0;
    int to_ = 1000;
    int told_ = 0;
    bool stopped_ = false;
};

} // namespace dyeworks
