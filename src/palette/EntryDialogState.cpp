#include "palette/EntryDialogState.h"

#include "palette/NumberText.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::int32_t kPage = 2;

Rgb5 gradientStep(std::int32_t step) {
    return interpolate(step, gradientEnds().left, gradientEnds().right);
}

} // namespace

bool EntryDialogState::typed(Channel channel, std::string_view text) {
    const auto number = parseNumber(text);
    if (number)
        set(channel, *number);
    return number.has_value();
}

void EntryDialogState::scrolled(Channel channel, ScrollCode code, std::int32_t thumb) {
    const std::int64_t now = value(channel);
    switch (code) {
    case ScrollCode::LineLeft:
    case ScrollCode::LeftEnd:
        return set(channel, now - 1);
    case ScrollCode::LineRight:
    case ScrollCode::RightEnd:
        return set(channel, now + 1);
    case ScrollCode::PageLeft:
        return set(channel, now - kPage);
    case ScrollCode::PageRight:
        return set(channel, now + kPage);
    case ScrollCode::ThumbPosition:
    case ScrollCode::ThumbTrack:
        return set(channel, thumb);
    case ScrollCode::Other:
        return;
    }
}

ColourRef EntryDialogState::stepColour(std::int32_t step) {
    const Rgb5 colour = gradientStep(step);
    const auto patch = [](std::int32_t fiveBits) { return static_cast<std::uint32_t>(fiveBits) << 3U; };
    return colourRef(patch(colour.red), patch(colour.green), patch(colour.blue));
}

void EntryDialogState::takeStep(std::int32_t step) {
    const Rgb5 colour = gradientStep(step);
    set(Channel::Red, colour.red);
    set(Channel::Green, colour.green);
    set(Channel::Blue, colour.blue);
}

void EntryDialogState::set(Channel channel, std::int64_t value) {
    channels_[channel] = static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, highest(channel)));
}

} // namespace dyeworks
