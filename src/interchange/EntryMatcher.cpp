#include "interchange/EntryMatcher.h"

#include "interchange/EntryColour.h"

#include <algorithm>

namespace dyeworks {

namespace {

/// Of the number of a cell along each axis.
constexpr unsigned kCellBits = 6;

std::size_t cellOf(float coordinate) noexcept {
    return static_cast<std::size_t>(std::clamp(coordinate, 0.0F, 63.0F));
}

} // namespace

EntryMatcher::Candidates EntryMatcher::candidatesOf(ColourType type, std::span<const std::uint16_t> entries) {
    const auto isVisible = [type](std::uint16_t entry) {
        return type == ColourType::Ia || (entry & 1U) != 0;
    };
    const bool anyVisible = std::ranges::any_of(entries, isVisible);
    Candidates candidates;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (anyVisible && !isVisible(entries[i]))
            continue;
        candidates.indices.push_back(static_cast<std::uint8_t>(i));
        candidates.points.push_back(entryPoints(type)[entries[i]]);
        candidates.values.push_back(valuesOf(type, colourOf(type, entries[i])));
    }
    return candidates;
}

EntryMatcher::Search::Search(std::span<const Triple> points, Triple origin, float side)
    : origin_(origin)
    , side_(side)
    , nearest_(points)
    , guesses_(std::size_t{1} << (3 * kCellBits)) {}

std::size_t EntryMatcher::Search::find(Triple point) noexcept {
    const Triple at = (point - origin_) * (1 / side_);
    const std::size_t cell = cellOf(at.x) << (2 * kCellBits) | cellOf(at.y) << kCellBits | cellOf(at.z);
    const std::size_t found = nearest_.find(point, guesses_[cell]).index;
    guesses_[cell] = static_cast<std::uint8_t>(found);
    return found;
}

EntryMatcher::EntryMatcher(ColourType type, std::span<const std::uint16_t> entries, bool forMixing)
    : type_(type)
    , candidates_(candidatesOf(type, entries))
    , looks_(candidates_.points, {0, -64, -64}, 2)
    , exact_(65536, -1) {
    if (forMixing)
        mixes_.emplace(candidates_.values, Triple{}, 4.0F);
    for (auto index = candidates_.indices.rbegin(); index != candidates_.indices.rend(); ++index)
        exact_[entries[*index]] = *index;
    const auto first = std::ranges::find_if(entries, [](std::uint16_t entry) { return (entry & 1U) == 0; });
    if (type == ColourType::Rgba && first != entries.end())
        transparent_ = static_cast<int>(first - entries.begin());
    lastIndex_ = candidates_.indices[looks_.find(pointOf(type, lightOf(type, lastColour_)))];
}

EntryMatcher::Found EntryMatcher::findToMix(Values values) noexcept {
    const std::size_t found = mixes_->find(values);
    return {candidates_.indices[found], candidates_.values[found]};
}

int EntryMatcher::findExact(Colour colour) const noexcept {
    if (type_ == ColourType::Rgba)
        colour.alpha = 255; // As far as it is visible.
    return isExact(type_, colour) ? exact_[entryOf(type_, colour)] : -1;
}

std::uint8_t EntryMatcher::find(Colour colour) noexcept {
    if (!(colour == lastColour_)) {
        lastColour_ = colour;
        lastIndex_ = candidates_.indices[looks_.find(pointOf(type_, lightOf(type_, colour)))];
    }
    return lastIndex_;
}

std::uint8_t EntryMatcher::findTransparent(Colour colour) noexcept {
    return transparent_ >= 0 ? static_cast<std::uint8_t>(transparent_) : find(colour);
}

} // namespace dyeworks
