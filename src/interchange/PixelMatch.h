#pragma once

#include "interchange/EntryMatcher.h"
#include "interchange/ReductionOptions.h"
#include "platform/Picture.h"

#include <cstdint>
#include <vector>

namespace dyeworks {

class WorkProgress;

/// The numbers of the entries that stand for the picture's pixels, row by row from the top. Not complete when
/// the progress was stopped. Throws bad_alloc.
[[nodiscard]] std::vector<std::uint8_t> matchPixels(const Picture& picture, EntryMatcher& matcher,
                                                    const ReductionOptions& options, WorkProgress& progress);

} // namespace dyeworks
