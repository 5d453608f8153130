#pragma once

#include "interchange/InterchangeError.h"
#include "interchange/Progress.h"
#include "interchange/ReductionOptions.h"
#include "platform/Picture.h"
#include "platform/Result.h"

#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks {

/// A picture of few colours: each pixel the number of one of the entries.
struct ReducedPicture {
    std::vector<std::uint8_t> indices; ///< Row by row from the top, without gaps.
    /// Of a new palette: as many as were used or locked, at most as many as were asked for, from dark to
    /// light around the locked ones. All transparent pixels of an RGBA palette share one entry, which comes
    /// first of those not locked and has the value 0, unless a locked one is transparent.
    std::vector<std::uint16_t> entries;
};

/// A new palette for the picture and the picture in it. Colours that fit are kept as they are. The same
/// picture and options always give the same result. Cancelled or NoMemory.
[[nodiscard]] Result<ReducedPicture, InterchangeError>
reduceColours(const Picture& picture, const ReductionOptions& options, const Progress& progress = {});

/// The picture in given entries (1 to 256); `options` counts but for `colours` and `locked`. Among equal
/// entries the first is used.
[[nodiscard]] Result<ReducedPicture, InterchangeError> matchColours(const Picture& picture,
                                                                    std::span<const std::uint16_t> entries,
                                                                    const ReductionOptions& options,
                                                                    const Progress& progress = {});

} // namespace dyeworks
