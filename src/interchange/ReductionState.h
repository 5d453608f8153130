#pragma once

#include "core/TlutData.h"
#include "interchange/ColourReduction.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class Profile;

/// The colours that a reduced picture is made of.
enum class ReductionTarget {
    NewPalette,
    CurrentPalette, ///< The whole of it.
    CurrentBank     ///< 16 of its 256 entries.
};

/// What a person chose.
struct ReductionChoices {
    std::int32_t bits = 8; ///< Of the image, 4 or 8.
    ReductionTarget target = ReductionTarget::NewPalette;
    std::int32_t bank = 0;      ///< Of the current palette, 0 to 15.
    std::int32_t colours = 256; ///< Of a new palette.
    ColourType colourType = ColourType::Rgba;
    std::string kept; ///< Entries of the current palette that stay in the new one: "0, 4-7".
    std::int32_t alphaThreshold = 128;
    Dither dither = Dither::None;

    bool operator==(const ReductionChoices&) const = default;
};

/// What of a reduction can be chosen when, and what comes of it. The sheet shows it.
class ReductionState {
public:
    static constexpr std::int32_t kFewestColours = 2;
    static constexpr std::int32_t kHighestThreshold = 256;

    /// `current` is the palette that is open, or empty when none is, and `firstEntry` the entry that its
    /// chosen bank begins with.
    explicit ReductionState(TlutData current = {}, std::int32_t firstEntry = 0);

    [[nodiscard]] const ReductionChoices& choices() const noexcept { return choices_; }
    /// What cannot be had together is brought to what can: the depth stays, then the target.
    void choose(const ReductionChoices& wanted);

    /// Whether the colours can be these at the depth that is chosen: a bank is for 4 bits, as a whole palette
    /// of 256 entries is for 8.
    [[nodiscard]] bool offers(ReductionTarget target) const;
    [[nodiscard]] bool offersBank() const { return choices_.target == ReductionTarget::CurrentBank; }
    /// Number of colours, their type and what is kept: questions about a new palette.
    [[nodiscard]] bool makesPalette() const { return choices_.target == ReductionTarget::NewPalette; }
    [[nodiscard]] bool offersKept() const { return makesPalette() && current_.count > 0; }
    /// Where alpha is more than one bit, no threshold decides.
    [[nodiscard]] bool offersThreshold() const { return colourType() == ColourType::Rgba; }
    [[nodiscard]] std::int32_t mostColours() const { return choices_.bits == 4 ? 16 : 256; }
    /// Of the palette that the picture comes to be in.
    [[nodiscard]] ColourType colourType() const;
    /// False while the list of entries that are kept is none, or names one beyond the new palette's or the
    /// current one's last.
    [[nodiscard]] bool keptIsValid() const { return keptNumbers().has_value(); }

    // What is asked of the library; the list of kept entries must be valid.
    [[nodiscard]] ReductionOptions options() const;
    /// The given entries to match the picture with; none for a new palette.
    [[nodiscard]] std::vector<std::uint16_t> givenEntries() const;
    /// Of the image in its palette.
    [[nodiscard]] std::int32_t firstEntry() const;
    /// A new palette of 16 or 256 entries, those that were not used being 0.
    [[nodiscard]] TlutData paletteOf(const ReducedPicture& reduced) const;

    /// What was chosen last, for the next time.
    void load(const Profile& profile);
    void save(Profile& profile) const;

private:
    [[nodiscard]] std::optional<std::vector<std::int32_t>> keptNumbers() const;

    TlutData current_;
    std::int32_t shownFirst_; ///< Of the bank that is shown.
    ReductionChoices choices_;
};

} // namespace dyeworks
