#pragma once

#include <span>

class QWidget;

namespace dyeworks {

/// Gives the keys to the pane after the one that has them, or with `back` to the one before: to what had them
/// there last, or else to its first control that takes keys. A pane that is hidden or has no such control is
/// passed over; null is none. A pane may be a window of its own.
void walkPanes(std::span<QWidget* const> panes, bool back);

} // namespace dyeworks
