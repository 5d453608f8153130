#include "palette/GradientStrip.h"

#include "palette/Gradient.h"

#include <cstdio>

namespace dyeworks {

void GradientStrip::start(PaletteGrid& cells) {
    for (std::int32_t marker = PaletteGrid::kCurrentCell; marker <= PaletteGrid::kLastMarker; ++marker)
        cells.setMarker(marker, PaletteGrid::kSwitchedOff);
    cells.setCellCount(kGradientSteps);
    cells.setLayout(kGradientSteps, 1);
    cells_ = &cells;
    FillStrip();
}

std::string GradientStrip::textAt(std::int32_t cell) const {
    if (cells_ == nullptr || !isVisible() || cell < 0 || cell >= kGradientSteps)
        return {};
    char digits[9];
    std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned>(cells_->value(cell)));
    return digits;
}

void GradientStrip::takeLeft(std::uint16_t entry) {
    stripLeft_ = entry;
    FillStrip();
}

void GradientStrip::takeRight(std::uint16_t entry) {
    stripRight_ = entry;
    FillStrip();
}

void GradientStrip::FillStrip() {
    if (cells_ == nullptr)
        return;
    const ChannelValues left = channelsOf(ColourType::Rgba, stripLeft_);
    const ChannelValues right = channelsOf(ColourType::Rgba, stripRight_);
    for (std::int32_t i = 0; i < kGradientSteps; ++i) {
        ChannelValues step = left;
        for (const Channel channel : {Channel::Red, Channel::Green, Channel::Blue})
            step[channel] = interpolate(i, left[channel], right[channel]);
        cells_->setValue(i, palette_.ComposeEntry(step));
        cells_->setColour(i,
                          entryColour(ColourType::Rgba, composeEntry(ColourType::Rgba, step), ViewMode::Rgb));
    }
    cells_->redraw();
}

} // namespace dyeworks
