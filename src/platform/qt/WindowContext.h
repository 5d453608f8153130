#pragma once

#include <QPointer>
#include <QWidget>

namespace dyeworks {

/// What every dialog of this folder needs to know about the program's windows.
struct WindowContext {
    QPointer<QWidget> mainWindow; ///< Null until there is one.
    bool interactive = true;      ///< False: nobody is there to answer, so no dialog may wait.

    /// Whether a dialog can be shown and answered: somebody is there and the process has a window system.
    [[nodiscard]] bool canAsk() const;

    /// The window that a dialog belongs to: the dialog on top, else the active window, else the main window.
    [[nodiscard]] QWidget* owner() const;
};

} // namespace dyeworks
