#include "ui/ApplicationProjectHost.h"

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "paint/CDyeworksDoc.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/Workspace.h"
#include "ui/sheets/CFileNewProjectPage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/CPictureDlg.h"
#include "ui/sheets/ProjectPropertySheet.h"

namespace dyeworks {

CTPFDocument* ApplicationProjectHost::projectDocument() const {
    return workspace_.currentProject().document();
}

void ApplicationProjectHost::setProjectDocument(CTPFDocument* project) {
    workspace_.currentProject().setDocument(project);
    ProjectChanged();
}

bool ApplicationProjectHost::CloseProject() {
    return workspace_.CloseProject();
}

void ApplicationProjectHost::ProjectChanged() {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().ProjectChanged();
}

void ApplicationProjectHost::ProjectRenamed() {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().OnUpdateFrameTitle();
}

void ApplicationProjectHost::SelectPicture(const std::string& name) {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().SelectPicture(name);
}

bool ApplicationProjectHost::askNewProject(ProjectSettings& settings) {
    CFileNewSheet sheet(&workspace_.mainFrame());
    CFileNewProjectPage& page = sheet.projectPage();
    sheet.keepOnly(page);
    page.setValues(settings);
    if (sheet.exec() != QDialog::Accepted)
        return false;
    settings = page.values();
    return true;
}

bool ApplicationProjectHost::askProjectProperties(ProjectSettings& settings) {
    ProjectPropertySheet sheet(settings, &workspace_.mainFrame());
    if (sheet.exec() != QDialog::Accepted)
        return false;
    settings = sheet.values();
    return true;
}

bool ApplicationProjectHost::askPicture(PictureSettings& settings,
                                        const std::function<PictureField(const PictureSettings&)>& check) {
    CPictureDlg dialog(settings, check, &workspace_.mainFrame());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    settings = dialog.settings();
    return true;
}

bool ApplicationProjectHost::openPalette(const std::string& path) {
    return static_cast<bool>(workspace_.OpenDocumentFile(path));
}

CDyeworksDoc* ApplicationProjectHost::openImage(const std::string& path) {
    return dynamic_cast<CDyeworksDoc*>(workspace_.OpenDocumentFile(path).document());
}

std::vector<std::string> ApplicationProjectHost::openFiles() {
    std::vector<std::string> files;
    for (const CDocument* const document : workspace_.documents())
        files.push_back(document->pathName());
    for (const auto& [key, palette] : workspace_.paletteSet()->palettes)
        files.push_back(key);
    return files;
}

bool ApplicationProjectHost::ClosePictureDocuments(const std::vector<std::string>& paths,
                                                   const std::function<bool()>& mayGoOn) {
    return workspace_.ClosePictureDocuments(paths, mayGoOn);
}

void ApplicationProjectHost::SetPaletteBarNumber(std::int32_t number) {
    if (!workspace_.hasMainFrame())
        return;
    workspace_.mainFrame().RefreshPaletteBar();
    workspace_.mainFrame().SetPaletteBarNumber(number);
}

void ApplicationProjectHost::runCommand(std::uint32_t command) {
    workspace_.router().run(command);
}

} // namespace dyeworks
