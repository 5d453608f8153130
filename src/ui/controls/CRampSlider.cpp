#include "ui/controls/CRampSlider.h"

namespace dyeworks {

CRampSlider::CRampSlider(QWidget* parent)
    : ControlFrame("RampSlider", parent) {}

CRampSlider::~CRampSlider() = default;

void CRampSlider::setValue(std::int32_t value) {
    control().set(3, value);
}

std::int32_t CRampSlider::value() const {
    return control().get(3, std::int32_t{0});
}

void CRampSlider::setLowColour(std::int32_t colour) {
    control().set(4, colour);
}

void CRampSlider::setHighColour(std::int32_t colour) {
    control().set(5, colour);
}

void CRampSlider::setMarkerColour(std::int32_t colour) {
    control().set(6, colour);
}

void CRampSlider::setRange(std::int32_t minimum, std::int32_t maximum) {
    control().call(8, {minimum, maximum});
}

void CRampSlider::hearEvent(DispatchId event, DispatchArguments arguments) {
    const std::int32_t* value = arguments.empty() ? nullptr : std::get_if<std::int32_t>(&arguments[0]);
    if (value == nullptr)
        return;
    switch (event) {
    case 1:
        Q_EMIT dragging(*value);
        break;
    case 2:
        Q_EMIT dragged(*value);
        break;
    case 3:
        Q_EMIT stepped(*value);
        break;
    default:
        return;
    }
    Q_EMIT valueChanged(*value);
}

} // namespace dyeworks
