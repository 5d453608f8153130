#pragma once

#include "ui/controls/ControlClient.h"

#include <QWidget>

namespace dyeworks {

/// A widget that holds the window of a companion control. When the control is missing the widget stays empty,
/// and calls do nothing.
class ControlFrame : public QWidget {
public:
    /// Whether there is a control.
    [[nodiscard]] bool exists() const noexcept { return control_.exists(); }
    /// The control's own window, which has the mouse and the keyboard; null when there is no control.
    [[nodiscard]] QWidget* controlWindow() const { return control_.widget(); }

protected:
    /// Creates a control of the class ("SwatchGrid").
    ControlFrame(const char* className, QWidget* parent);

    virtual void hearEvent(DispatchId event, DispatchArguments arguments) = 0;

    [[nodiscard]] const ControlClient& control() const noexcept { return control_; }

private:
    ControlClient control_;
};

} // namespace dyeworks
