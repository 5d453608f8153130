#pragma once

#include "cli/BuildPlan.h"

#include <functional>
#include <string>

namespace dyeworks {

/// Makes the pictures of a plan that are not current, on `threads` threads. What becomes of each stands in
/// its job, so that the result does not depend on their number. `told`, on the calling thread, is told how
/// many are done.
void makePictures(BuildPlan& plan, const BuildOptions& options, const std::string& folder,
                  std::int32_t threads, const std::function<void(std::size_t done)>& told);

} // namespace dyeworks
