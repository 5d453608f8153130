#pragma once

#include <QAccessible>

namespace dyeworks {

/// The accessible interface of a RampSlider, a slider with a value; null for other objects. Qt owns it.
QAccessibleInterface* makeRampSliderAccessible(const QString& className, QObject* object);

} // namespace dyeworks
