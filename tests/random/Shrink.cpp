#include "Shrink.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace dyeworks {

std::vector<Step> shrunk(std::vector<Step> steps,
                         const std::function<bool(const std::vector<Step>&)>& fails) {
    for (std::size_t piece = std::max<std::size_t>(steps.size() / 2, 1); piece > 0;) {
        bool any = false;
        // From the end, because what leads to the failure depends on what comes before it.
        for (std::size_t end = steps.size(); end > 0;) {
            const std::size_t begin = end - std::min(piece, end);
            std::vector<Step> fewer(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(begin));
            fewer.insert(fewer.end(), steps.begin() + static_cast<std::ptrdiff_t>(end), steps.end());
            if (fails(fewer)) {
                steps = std::move(fewer);
                any = true;
            }
            end = begin;
        }
        if (piece > 1 || !any)
            piece /= 2;
    }
    return steps;
}

} // namespace dyeworks
