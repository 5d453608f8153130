#pragma once

#include "ui/controls/ControlFrame.h"

#include <cstdint>

namespace dyeworks {

/// A bar with a colour gradient and a marker on it: places a RampSlider control and calls it. When the
/// control is missing the widget stays empty, the operations do nothing, and the value is 0.
class CRampSlider : public ControlFrame {
    Q_OBJECT

public:
    explicit CRampSlider(QWidget* parent = nullptr);
    ~CRampSlider() override;

    /// Brought into the range. Raises no signal.
    void setValue(std::int32_t value);        // 3
    [[nodiscard]] std::int32_t value() const; // 3
    // Colours are 0x00BBGGRR.
    void setLowColour(std::int32_t colour);    // 4: at the minimum; black at first.
    void setHighColour(std::int32_t colour);   // 5: at the maximum; white at first.
    void setMarkerColour(std::int32_t colour); // 6: of the marker; 192, a dark red, at first.
    /// Both inclusive. Refused when `minimum` is above `maximum`. 0 to 255 at first.
    void setRange(std::int32_t minimum, std::int32_t maximum); // 8

Q_SIGNALS:
    /// The value while the marker is being dragged (event 1).
    void dragging(int value);
    /// The value at the end of a drag that changed it, or after a click (event 2).
    void dragged(int value);
    /// The value after a key or the wheel changed it (event 3).
    void stepped(int value);
    /// Any of the three.
    void valueChanged(int value);

private:
    void hearEvent(DispatchId event, DispatchArguments arguments) override;
};

} // namespace dyeworks
