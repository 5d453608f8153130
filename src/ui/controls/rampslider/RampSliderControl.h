#pragma once

#include "ui/controls/dispatch/AccessibleFactory.h"
#include "ui/controls/dispatch/MemberTable.h"
#include "ui/controls/rampslider/RampSlider.h"
#include "ui/controls/rampslider/RampSliderAccessible.h"

namespace dyeworks {

/// RampSlider through numbers. Colours are 0x00BBGGRR.
///
///     3, long property                  the value; setting it raises no event
///     4, 5, 6, long properties          colour at the minimum, at the maximum, of the marker
///     8, void (long min, long max)      the range, both inclusive
///
/// Events, each with the value as a long: 1 while the marker is dragged, 2 when it is let go, 3 when a key or
/// the wheel has changed the value.
class RampSliderControl final : public Control {
public:
    RampSliderControl();

    [[nodiscard]] DispatchResult invoke(DispatchId member, DispatchKind kind,
                                        DispatchArguments arguments) override;
    void setSink(ControlSink* sink) override { sink_ = sink; }
    [[nodiscard]] QWidget* widget() override { return &slider_; }

private:
    void tell(RampSlider::Change change);

    MemberTable members_;
    ControlSink* sink_ = nullptr;
    AccessibleFactory accessible_{makeRampSliderAccessible};
    RampSlider slider_;
};

} // namespace dyeworks
