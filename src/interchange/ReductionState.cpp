#include "interchange/ReductionState.h"

#include "interchange/EntryColour.h"
#include "interchange/EntryList.h"
#include "platform/Profile.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::int32_t kLargePalette = 256;

constexpr const char* kSection = "Settings\\Reduce Colours";
constexpr const char* kBitsEntry = "Bits";
constexpr const char* kTargetEntry = "Palette";
constexpr const char* kColoursEntry = "Colours";
constexpr const char* kTypeEntry = "ColourType";
constexpr const char* kKeptEntry = "Keep";
constexpr const char* kThresholdEntry = "AlphaThreshold";
constexpr const char* kDitherEntry = "Dither";

/// The value of an enumeration with this number, or the last one.
template <typename Value>
Value valueOf(int number, Value last) {
    return static_cast<Value>(std::clamp(number, 0, static_cast<int>(last)));
}

} // namespace

ReductionState::ReductionState(TlutData current, std::int32_t firstEntry)
    : current_(std::move(current))
    , shownFirst_(current_.count >= kLargePalette ? firstEntry / kBankSize * kBankSize : 0) {
    choices_.bank = shownFirst_ / kBankSize;
}

void ReductionState::choose(const ReductionChoices& wanted) {
    choices_ = wanted;
    choices_.bits = wanted.bits == 4 ? 4 : 8;
    if (!offers(choices_.target)) {
        // From the whole of a large palette to a bank of it, and back.
        const auto other = choices_.target == ReductionTarget::CurrentBank ? ReductionTarget::CurrentPalette
                                                                           : ReductionTarget::CurrentBank;
        const bool switches = choices_.target != ReductionTarget::NewPalette && offers(other);
        choices_.target = switches ? other : ReductionTarget::NewPalette;
    }
    choices_.bank = std::clamp(wanted.bank, 0, kLastBank);
    choices_.colours = std::clamp(wanted.colours, kFewestColours, mostColours());
    choices_.alphaThreshold = std::clamp(wanted.alphaThreshold, 0, kHighestThreshold);
}

bool ReductionState::offers(ReductionTarget target) const {
    switch (target) {
    case ReductionTarget::NewPalette:
        return true;
    case ReductionTarget::CurrentPalette:
        return current_.count > 0 && current_.count <= mostColours();
    case ReductionTarget::CurrentBank:
        return choices_.bits == 4 && current_.count >= kLargePalette;
    }
    return false;
}

ColourType ReductionState::colourType() const {
    return makesPalette() ? choices_.colourType : current_.colourType;
}

std::optional<std::vector<std::int32_t>> ReductionState::keptNumbers() const {
    if (!offersKept())
        return std::vector<std::int32_t>();
    return parseEntryList(choices_.kept, std::min(choices_.colours, current_.count));
}

ReductionOptions ReductionState::options() const {
    ReductionOptions options;
    options.colourType = colourType();
    options.colours = choices_.colours;
    options.alphaThreshold = choices_.alphaThreshold;
    options.dither = choices_.dither;
    // Of 16 colours the current palette's are those of the bank that is shown.
    const std::int32_t from = choices_.bits == 4 ? shownFirst_ : 0;
    for (const std::int32_t number : keptNumbers().value_or(std::vector<std::int32_t>())) {
        const std::uint16_t entry = current_.getEntry(from + number);
        options.locked.push_back(
            {number, current_.colourType == options.colourType
                         ? entry
                         : entryOf(options.colourType, colourOf(current_.colourType, entry))});
    }
    return options;
}

std::vector<std::uint16_t> ReductionState::givenEntries() const {
    if (makesPalette())
        return {};
    const std::int32_t count = std::min(current_.count, mostColours());
    const std::uint16_t* const first = current_.entries + firstEntry();
    return {first, first + count};
}

std::int32_t ReductionState::firstEntry() const {
    return choices_.target == ReductionTarget::CurrentBank ? choices_.bank * kBankSize : 0;
}

TlutData ReductionState::paletteOf(const ReducedPicture& reduced) const {
    TlutData palette;
    if (!palette.create(mostColours(), choices_.colourType))
        return palette;
    std::fill_n(palette.entries, palette.count, std::uint16_t{0});
    const std::size_t count = std::min(reduced.entries.size(), static_cast<std::size_t>(palette.count));
    std::copy_n(reduced.entries.begin(), count, palette.entries);
    return palette;
}

void ReductionState::load(const Profile& profile) {
    const auto number = [&](const char* entry, int fallback) {
        return profile.integer(kSection, entry, fallback);
    };
    ReductionChoices stored = choices_;
    stored.bits = number(kBitsEntry, stored.bits);
    stored.target =
        valueOf(number(kTargetEntry, static_cast<int>(stored.target)), ReductionTarget::CurrentBank);
    stored.colours = number(kColoursEntry, stored.colours);
    stored.colourType = valueOf(number(kTypeEntry, static_cast<int>(stored.colourType)), ColourType::Ia);
    stored.kept = profile.textOr(kSection, kKeptEntry, stored.kept);
    stored.alphaThreshold = number(kThresholdEntry, stored.alphaThreshold);
    stored.dither = valueOf(number(kDitherEntry, static_cast<int>(stored.dither)), Dither::ErrorDiffusion);
    choose(stored);
    // What was kept of another palette need not be in this one.
    if (!keptIsValid())
        choices_.kept.clear();
}

void ReductionState::save(Profile& profile) const {
    profile.setInteger(kSection, kBitsEntry, choices_.bits);
    profile.setInteger(kSection, kTargetEntry, static_cast<int>(choices_.target));
    profile.setInteger(kSection, kColoursEntry, choices_.colours);
    profile.setInteger(kSection, kTypeEntry, static_cast<int>(choices_.colourType));
    profile.setText(kSection, kKeptEntry, choices_.kept);
    profile.setInteger(kSection, kThresholdEntry, choices_.alphaThreshold);
    profile.setInteger(kSection, kDitherEntry, static_cast<int>(choices_.dither));
}

} // namespace dyeworks
