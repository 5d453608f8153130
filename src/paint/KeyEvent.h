#pragma once

namespace dyeworks {

/// The keys that an image view acts on.
enum class Key {
    Other,
    Escape,
    Enter, ///< Either of them.
    Shift,
    Control,
    Left,
    Up,
    Right,
    Down,
    Home,
    End,
    PageUp,
    PageDown,
    Space,
    I,
    O,
    Numpad9,
    NumpadDivide
};

/// A press or release of a key while a view has the focus.
struct KeyEvent {
    Key key = Key::Other;
    int repeatCount = 1; ///< Presses that this event stands for.
    bool shift = false;  ///< After the event: true for the press of Shift itself.
    bool control = false;
    bool alt = false;
    bool repeated = false; ///< The key is held, and has told so before.
};

} // namespace dyeworks
