#include "interchange/ErrorDiffusion.h"

#include <algorithm>

namespace dyeworks {

namespace {

/// More is dropped. Colours that no mixture of the entries gives would else pile their error up and smear it
/// over what follows them.
constexpr float kMostError = 192;

Values bounded(Values error) noexcept {
    const float length = std::sqrt(squared(error));
    return length > kMostError ? error * (kMostError / length) : error;
}

} // namespace

ErrorDiffusion::ErrorDiffusion(EntryMatcher& matcher, ColourType type, std::size_t width)
    : matcher_(matcher)
    , type_(type)
    , here_(width + 2)
    , below_(width + 2) {}

void ErrorDiffusion::beginRow(bool fromRight) noexcept {
    fromRight_ = fromRight;
    here_.swap(below_);
    std::ranges::fill(below_, Values{});
}

std::uint8_t ErrorDiffusion::find(std::size_t x, Colour colour) noexcept {
    const std::size_t at = x + 1;
    const std::size_t ahead = fromRight_ ? at - 1 : at + 1;
    const std::size_t behind = fromRight_ ? at + 1 : at - 1;
    const Values wanted = valuesOf(type_, colour) + here_[at];
    const EntryMatcher::Found found = matcher_.findToMix(wanted);
    const Values error = bounded(wanted - found.values);
    here_[ahead] = here_[ahead] + error * (7.0F / 16);
    below_[behind] = below_[behind] + error * (3.0F / 16);
    below_[at] = below_[at] + error * (5.0F / 16);
    below_[ahead] = below_[ahead] + error * (1.0F / 16);
    return found.index;
}

} // namespace dyeworks
