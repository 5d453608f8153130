#pragma once

#include "core/ColourType.h"
#include "interchange/InterchangeError.h"
#include "interchange/Progress.h"
#include "platform/Picture.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks {

enum class Dither { None, Ordered, ErrorDiffusion };

/// An entry that the reduction leaves as it is and where it is, but uses like the others.
struct LockedEntry {
    std::int32_t index = 0; ///< 0 to `colours` - 1.
    std::uint16_t entry = 0;
};

struct ReductionOptions {
    ColourType colourType = ColourType::Rgba;
    std::int32_t colours = 256; ///< Entries of the new palette, locked ones included: 1 to 256.
    std::vector<LockedEntry> locked;
    std::int32_t alphaThreshold = 128; ///< RGBA: pixels of less alpha, 0 to 256, become transparent.
    Dither dither = Dither::None;
};

/// A picture of few colours: each pixel the number of one of the entries.
struct ReducedPicture {
    std::vector<std::uint8_t> indices; ///< Row by row from the top, without gaps.
    /// Of a new palette: as many as were used or locked, at most as many as were asked for. All transparent
    /// pixels of an RGBA palette share one entry, of value 0, the first that is not locked.
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
