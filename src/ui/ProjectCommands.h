#pragma once

#include "framework/CommandTarget.h"

namespace dyeworks {

class Workspace;

/// The commands for the open project and its chosen picture, wherever the focus is.
class ProjectCommands : public CommandTarget {
public:
    /// `workspace` must outlive this object.
    explicit ProjectCommands(Workspace& workspace);

private:
    void updateNeedsProject(CommandUi& ui);
    void updateNeedsPicture(CommandUi& ui);
    void OnProjectClose();
    void OnProjectSave();
    void OnProjectSaveAs();
    void OnProjectProperty();
    void OnProjectRules();
    void OnPictureAdd();
    void OnPictureChange();
    void OnPictureRemove();

    Workspace& workspace_;
};

} // namespace dyeworks
