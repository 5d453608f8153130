#pragma once

#include "core/ColourType.h"
#include "interchange/EntryMatcher.h"
#include "interchange/PerceptualSpace.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dyeworks {

/// What an entry shows too much or too little, its neighbours make up for (Floyd and Steinberg 1976), in
/// the channels as they are stored. Rows run to and fro, so that no worms crawl one way.
class ErrorDiffusion {
public:
    /// The matcher is for mixing. Throws bad_alloc.
    ErrorDiffusion(EntryMatcher& matcher, ColourType type, std::size_t width);

    /// Rows come from the top, their pixels in the direction that is told here. Pixels that are left out
    /// neither take an error nor hand one on.
    void beginRow(bool fromRight) noexcept;
    [[nodiscard]] std::uint8_t find(std::size_t x, Colour colour) noexcept;

private:
    EntryMatcher& matcher_;
    ColourType type_;
    bool fromRight_ = false;
    std::vector<Values> here_; ///< Errors that came to the row, with one more at either end.
    std::vector<Values> below_;
};

} // namespace dyeworks
