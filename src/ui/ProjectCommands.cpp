#include "ui/ProjectCommands.h"

#include "platform/StringId.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/Workspace.h"
#include "ui/sheets/CRulesPage.h"

#include <optional>
#include <string>

namespace dyeworks {

ProjectCommands::ProjectCommands(Workspace& workspace)
    : workspace_(workspace) {
    on(ID_PROJECT_CLOSE, &ProjectCommands::OnProjectClose, &ProjectCommands::updateNeedsProject);
    on(ID_PROJECT_SAVE, &ProjectCommands::OnProjectSave, &ProjectCommands::updateNeedsProject);
    on(ID_PROJECT_SAVE_AS, &ProjectCommands::OnProjectSaveAs, &ProjectCommands::updateNeedsProject);
    on(ID_PROJECT_PROPERTY, &ProjectCommands::OnProjectProperty, &ProjectCommands::updateNeedsProject);
    on(ID_PROJECT_RULES, &ProjectCommands::OnProjectRules, &ProjectCommands::updateNeedsProject);
    on(ID_PICTURE_ADD, &ProjectCommands::OnPictureAdd, &ProjectCommands::updateNeedsProject);
    on(ID_PICTURE_CHANGE, &ProjectCommands::OnPictureChange, &ProjectCommands::updateNeedsPicture);
    on(ID_PICTURE_REMOVE, &ProjectCommands::OnPictureRemove, &ProjectCommands::updateNeedsPicture);
}

void ProjectCommands::updateNeedsProject(CommandUi& ui) {
    ui.require(workspace_.currentProject().document() != nullptr, StringId::WhyNoProject);
}

void ProjectCommands::updateNeedsPicture(CommandUi& ui) {
    const CurrentProject& project = workspace_.currentProject();
    ui.require(project.document() != nullptr, StringId::WhyNoProject);
    ui.require(!project.picture().empty(), StringId::WhyNoPicture);
}

void ProjectCommands::OnProjectClose() {
    workspace_.CloseProject();
}

void ProjectCommands::OnProjectSave() {
    workspace_.currentProject().document()->save();
}

void ProjectCommands::OnProjectSaveAs() {
    workspace_.currentProject().document()->saveAs();
}

void ProjectCommands::OnProjectProperty() {
    workspace_.currentProject().document()->EditProperties();
}

void ProjectCommands::OnProjectRules() {
    CTPFDocument& project = *workspace_.currentProject().document();
    if (const auto rules = askProjectRules(project.rules(), &workspace_.mainFrame()))
        project.SetRules(*rules);
}

void ProjectCommands::OnPictureAdd() {
    workspace_.currentProject().document()->AddPicture(std::nullopt, std::nullopt, std::nullopt, 0,
                                                       std::nullopt, false);
}

void ProjectCommands::OnPictureChange() {
    workspace_.currentProject().document()->ChangePicture(workspace_.currentProject().picture());
}

void ProjectCommands::OnPictureRemove() {
    // A copy, because the project bar chooses another picture meanwhile.
    const std::string name = workspace_.currentProject().picture();
    workspace_.currentProject().document()->RemovePicture(name);
}

} // namespace dyeworks
