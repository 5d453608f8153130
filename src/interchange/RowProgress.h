#pragma once

#include "interchange/Progress.h"

#include <cstdint>

namespace dyeworks {

/// Tells a `Progress` of rows, as seldom as it wants to be told.
class RowProgress {
public:
    RowProgress(const Progress& progress, std::int64_t rows)
        : progress_(progress)
        , rows_(rows) {}

    /// After every row. False: the work is to stop.
    [[nodiscard]] bool next() {
        ++done_;
        if (done_ * kTimes < rows_ * due_)
            return true;
        due_ = done_ * kTimes / rows_ + 1;
        return !progress_ || progress_(static_cast<int>(done_ * 1000 / rows_));
    }

private:
    static constexpr std::int64_t kTimes = 100;

    const Progress& progress_;
    std::int64_t rows_;
    std::int64_t done_ = 0;
    std::int64_t due_ = 1; ///< Of `kTimes` parts: the next one that is told.
};

} // namespace dyeworks
