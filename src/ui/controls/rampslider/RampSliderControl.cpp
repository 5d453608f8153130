#include "ui/controls/rampslider/RampSliderControl.h"

#include "ui/controls/dispatch/EntryPoints.h"

#include <memory>

namespace dyeworks {

namespace {

QColor fromReference(std::int32_t colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    return {static_cast<int>(bits & 255U), static_cast<int>(bits >> 8U & 255U),
            static_cast<int>(bits >> 16U & 255U)};
}

std::int32_t toReference(const QColor& colour) {
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

} // namespace

RampSliderControl::RampSliderControl() {
    members_.get(3, [this] { return std::int32_t{slider_.value()}; });
    members_.set(3, [this](std::int32_t value) { slider_.setValue(value); });
    members_.get(4, [this] { return toReference(slider_.lowColour()); });
    members_.set(4, [this](std::int32_t colour) { slider_.setLowColour(fromReference(colour)); });
    members_.get(5, [this] { return toReference(slider_.highColour()); });
    members_.set(5, [this](std::int32_t colour) { slider_.setHighColour(fromReference(colour)); });
    members_.get(6, [this] { return toReference(slider_.markerColour()); });
    members_.set(6, [this](std::int32_t colour) { slider_.setMarkerColour(fromReference(colour)); });
    members_.method(8, [this](std::int32_t minimum, std::int32_t maximum) -> OrBadParameter<std::monostate> {
        if (minimum > maximum)
            return BadParameter{};
        slider_.setRange(minimum, maximum);
        return std::monostate{};
    });
    slider_.setListener([this](RampSlider::Change change) { tell(change); });
}

DispatchResult RampSliderControl::invoke(DispatchId member, DispatchKind kind, DispatchArguments arguments) {
    return members_.invoke(member, kind, arguments);
}

void RampSliderControl::tell(RampSlider::Change change) {
    if (sink_ == nullptr)
        return;
    const DispatchValue value = std::int32_t{slider_.value()};
    switch (change) {
    case RampSlider::Change::Dragging:
        return sink_->controlEvent(1, {&value, 1});
    case RampSlider::Change::Dragged:
        return sink_->controlEvent(2, {&value, 1});
    case RampSlider::Change::Stepped:
        return sink_->controlEvent(3, {&value, 1});
    }
}

} // namespace dyeworks

DYEWORKS_CONTROL_ENTRY_POINTS("RampSlider", dyeworks::RampSliderControl)
