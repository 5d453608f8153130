#include "ui/controls/ControlFrame.h"

#include <QVBoxLayout>

namespace dyeworks {

ControlFrame::ControlFrame(const char* className, QWidget* parent)
    : QWidget(parent)
    , control_(className,
               [this](DispatchId event, DispatchArguments arguments) { hearEvent(event, arguments); }) {
    QWidget* const shown = controlWindow();
    if (shown == nullptr)
        return;
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(shown);
    setFocusProxy(shown);
}

} // namespace dyeworks
