#pragma once

#include "core/ColourType.h"
#include "interchange/EntryMatcher.h"
#include "interchange/PerceptualSpace.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace dyeworks {

/// Each colour becomes a mixture of entries, sorted from dark to light, of which a matrix (Bayer 1973) picks
/// one by place (after Knoll, US patent 6606166, 1999, which has run out). It suits any palette: the mixture
/// of a colour that has an entry is this entry alone.
class OrderedDither {
public:
    /// The matcher is for mixing. Throws bad_alloc.
    OrderedDither(EntryMatcher& matcher, ColourType type);

    [[nodiscard]] std::uint8_t find(std::size_t x, std::size_t y, Colour colour) noexcept;

private:
    static constexpr std::size_t kShares = 16;
    struct Mixture {
        bool known = false;
        std::array<std::uint8_t, kShares> entries{};
    };
    /// Colours that differ by less than half a step of five bits share a mixture: that of the first of them.
    [[nodiscard]] std::size_t cellOf(Colour colour) const noexcept;
    void mix(Mixture& mixture, Colour colour) noexcept;

    EntryMatcher& matcher_;
    ColourType type_;
    std::vector<Mixture> mixtures_; ///< By cell.
};

} // namespace dyeworks
