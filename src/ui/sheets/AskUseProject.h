#pragma once

#include <functional>

namespace dyeworks {

/// The setting whether making an image asks about using the project: "Settings", "UseNotify_AskUseProject",
/// on unless its number is 0.
[[nodiscard]] bool asksUseProject();
void setAsksUseProject(bool asks);

/// What a person who has made an image wants with it. The numbers are those of the dialog's buttons.
enum class UseProjectAnswer { Cancel = 2, NewProject = 6, OpenProject = 7 };

/// What the question needs of the program.
struct UseProjectParts {
    bool projectIsOpen = false;
    /// Asks the person. `notifyNextTime` comes in as the setting and goes out as the person wants it,
    /// unchanged on Cancel. CUseProjectDlg::ask does this.
    std::function<UseProjectAnswer(bool& notifyNextTime)> ask;
    std::function<void()> newProject;  ///< Makes a new project document.
    std::function<void()> openProject; ///< Runs the Open Project command.
};

/// After a new image has been made: asks whether to use a project, keeps whether to ask again, and does what
/// was answered. Does nothing when a project is open or the setting is off.
void askUseProject(const UseProjectParts& parts);

} // namespace dyeworks
