#pragma once

#include "ui/controls/ControlClient.h"

#include <memory>
#include <string>

namespace dyeworks {

/// Lets the user choose a folder: calls a FolderPick control. Paths are in the program's form.
class CFolderPick {
public:
    /// Null when the control is missing.
    [[nodiscard]] static std::unique_ptr<CFolderPick> create();

    /// The folder to start from. One that does not exist starts at the nearest folder above it that does.
    void setFolder(const std::string& path); // 2
    /// Shows the desktop's dialog over the active window. False, leaving `result` alone, when the user
    /// cancels.
    [[nodiscard]] bool choose(std::string& result); // 4

private:
    CFolderPick();

    ControlClient control_;
};

} // namespace dyeworks
