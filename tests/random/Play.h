#pragma once

#include "Step.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// What a run of the program came to.
struct Played {
    std::size_t steps = 0;
    std::string difference; ///< "" when there was none.
};

/// Starts the program anew and plays the steps.
[[nodiscard]] Played playScript(const std::vector<Step>& steps);

/// Starts the program anew and plays steps of its own choice. `begins` is told each before it is played.
[[nodiscard]] Played playAtRandom(std::uint64_t seed, std::size_t steps,
                                  const std::function<void(const Step&)>& begins);

} // namespace dyeworks
