#pragma once

class QMenu;

namespace dyeworks {

class MdiFrame;

/// Lets the menu, whenever it opens, end with the frame's windows in their order of opening, the active one
/// checked; choosing one activates it. The frame must outlive the menu.
void appendWindowList(QMenu& menu, MdiFrame& frame);

} // namespace dyeworks
