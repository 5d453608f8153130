#pragma once

#include "core/ColourType.h"
#include "interchange/NearestEntry.h"
#include "interchange/PerceptualSpace.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

/// Which of a palette's entries shows a colour best. It remembers what it found, so each thread has its own.
class EntryMatcher {
public:
    /// 1 to 256 entries. A visible pixel takes a transparent one only if there is no other. `forMixing` when
    /// `findToMix` will be called. Throws bad_alloc.
    EntryMatcher(ColourType type, std::span<const std::uint16_t> entries, bool forMixing = false);

    struct Found {
        std::uint8_t index = 0;
        Values values; ///< Of the entry.
    };
    /// Of a visible pixel, for a dither, which makes up elsewhere for what is missing: nearest is what leaves
    /// the least to be made up for, or it would pile up. The values may lie beside those that colours have.
    [[nodiscard]] Found findToMix(Values values) noexcept;
    /// The entry that a visible pixel is exactly, or -1.
    [[nodiscard]] int findExact(Colour colour) const noexcept;
    /// Of a visible pixel. Quick where the last one was of the same colour.
    [[nodiscard]] std::uint8_t find(Colour colour) noexcept;
    /// Of a transparent pixel: the first transparent entry, or the nearest if there is none.
    [[nodiscard]] std::uint8_t findTransparent(Colour colour) noexcept;

private:
    struct Candidates {
        std::vector<std::uint8_t> indices; ///< Of the entries that visible pixels may take.
        std::vector<ColourPoint> points;
        std::vector<Values> values;
    };
    static Candidates candidatesOf(ColourType type, std::span<const std::uint16_t> entries);

    /// Finds the nearest of some points, beginning at what was found last near by.
    class Search {
    public:
        /// Cells of `side` each way begin at `origin`.
        Search(std::span<const Triple> points, Triple origin, float side);
        [[nodiscard]] std::size_t find(Triple point) noexcept;

    private:
        Triple origin_;
        float side_;
        NearestEntry nearest_;
        std::vector<std::uint8_t> guesses_; ///< What was found last in each cell.
    };

    ColourType type_;
    Candidates candidates_;
    Search looks_;
    std::optional<Search> mixes_;
    std::vector<std::int16_t> exact_; ///< Of each 16-bit value that an entry has: the first such; else -1.
    int transparent_ = -1;            ///< The first transparent entry, or -1.
    Colour lastColour_{0, 0, 0, 0};
    std::uint8_t lastIndex_ = 0;
};

} // namespace dyeworks
