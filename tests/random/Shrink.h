#pragma once

#include "Step.h"

#include <functional>
#include <vector>

namespace dyeworks {

/// Leaves out of the steps what can be left out so that `fails` still holds, larger pieces first.
[[nodiscard]] std::vector<Step> shrunk(std::vector<Step> steps,
                                       const std::function<bool(const std::vector<Step>&)>& fails);

} // namespace dyeworks
