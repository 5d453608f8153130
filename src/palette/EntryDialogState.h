#pragma once

#include "palette/EntryFormat.h"
#include "palette/Gradient.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dyeworks {

/// What happened to a scroll bar.
enum class ScrollCode {
    LineLeft,
    LineRight,
    PageLeft,
    PageRight,
    LeftEnd,
    RightEnd,
    ThumbPosition,
    ThumbTrack,
    Other
};

/// The entry that one of the palette entry dialogs edits, channel by channel. It is the same for both: the
/// colour type says which channels there are.
class EntryDialogState {
public:
    explicit EntryDialogState(ColourType type)
        : type_(type) {}

    void setEntry(std::uint16_t entry) { channels_ = channelsOf(type_, entry); }
    [[nodiscard]] std::uint16_t entry() const { return composeEntry(type_, channels_); }

    [[nodiscard]] std::int32_t value(Channel channel) const { return channels_[channel]; }
    [[nodiscard]] std::int32_t highest(Channel channel) const {
        return highestValue(type_, channel).value_or(0);
    }

    /// A text typed for a channel: a number beyond the range is taken as the nearest limit. False, changing
    /// nothing, when it is not a number (yet).
    bool typed(Channel channel, std::string_view text);
    /// A scroll bar was moved; `thumb` is where it was dragged to. Pages are two steps, and the ends are
    /// approached by a single step, so that a slip of the hand does not lose the value.
    void scrolled(Channel channel, ScrollCode code, std::int32_t thumb);

    // The gradient between the process-wide ends; for RGBA entries only. Alpha stays out of it.
    [[nodiscard]] static ColourRef stepColour(std::int32_t step);
    void takeStep(std::int32_t step);
    void storeLeftEnd() const { gradientEnds().left = colour(); }
    void storeRightEnd() const { gradientEnds().right = colour(); }

    [[nodiscard]] ColourRef swatch() const { return entryColour(type_, entry(), ViewMode::Rgb); }

private:
    [[nodiscard]] Rgb5 colour() const {
        return {value(Channel::Red), value(Channel::Green), value(Channel::Blue)};
    }
    void set(Channel channel, std::int64_t value);

    ColourType type_;
    ChannelValues channels_;
};

} // namespace dyeworks
