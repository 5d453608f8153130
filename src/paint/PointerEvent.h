#pragma once

#include "paint/Rect.h"

namespace dyeworks {

enum class PointerButton { None, Left, Right, Middle };

/// A press, move or release of the pointer over a view.
struct PointerEvent {
    Point position; ///< Client pixels; negative or beyond the client size while the pointer is captured.
    bool shift = false;
    bool control = false;
    bool alt = false;
    PointerButton button = PointerButton::None; ///< What was pressed or released; None for a move.
};

} // namespace dyeworks
