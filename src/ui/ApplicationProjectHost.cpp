#include "ui/ApplicationProjectHost.h"

#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/sheets/CFileNewProjectPage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/CPictureDlg.h"
#include "ui/sheets/ProjectPropertySheet.h"

namespace dyeworks {

ProjectPlugIns& ApplicationProjectHost::projectPlugIns() {
    return application_.projectPlugIns();
}

ProjectDocument* ApplicationProjectHost::projectDocument() const {
    return application_.projectDocument();
}

void ApplicationProjectHost::setProjectDocument(ProjectDocument* project) {
    application_.setProjectDocument(project);
}

bool ApplicationProjectHost::CloseProject() {
    return application_.CloseProject();
}

void ApplicationProjectHost::ProjectChanged() {
    if (application_.hasMainFrame())
        application_.mainFrame().ProjectChanged();
}

void ApplicationProjectHost::ProjectRenamed() {
    if (application_.hasMainFrame())
        application_.mainFrame().ProjectRenamed();
}

void ApplicationProjectHost::SelectPicture(const std::string& name) {
    if (application_.hasMainFrame())
        application_.mainFrame().SelectPicture(name);
}

bool ApplicationProjectHost::askNewProject(ProjectSettings& settings) {
    CFileNewSheet sheet(&application_.mainFrame());
    CFileNewProjectPage& page = sheet.projectPage();
    sheet.keepOnly(page);
    page.setValues(settings);
    if (sheet.exec() != QDialog::Accepted)
        return false;
    settings = page.values();
    return true;
}

bool ApplicationProjectHost::askProjectProperties(ProjectSettings& settings) {
    ProjectPropertySheet sheet(settings, &application_.mainFrame());
    if (sheet.exec() != QDialog::Accepted)
        return false;
    settings = sheet.values();
    return true;
}

bool ApplicationProjectHost::askPicture(PictureSettings& settings,
                                        const std::function<PictureField(const PictureSettings&)>& check) {
    CPictureDlg dialog(settings, check, &application_.mainFrame());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    settings = dialog.settings();
    return true;
}

bool ApplicationProjectHost::openPalette(const std::string& path) {
    return static_cast<bool>(application_.OpenDocumentFile(path));
}

CDyeworksDoc* ApplicationProjectHost::openImage(const std::string& path) {
    return dynamic_cast<CDyeworksDoc*>(application_.OpenDocumentFile(path).document());
}

bool ApplicationProjectHost::ClosePictureDocuments(const std::vector<std::string>& paths) {
    return application_.ClosePictureDocuments(paths);
}

void ApplicationProjectHost::SetPaletteBarNumber(std::int32_t number) {
    if (!application_.hasMainFrame())
        return;
    application_.mainFrame().RefreshPaletteBar();
    application_.mainFrame().SetPaletteBarNumber(number);
}

void ApplicationProjectHost::runCommand(std::uint32_t command) {
    application_.router().run(command);
}

} // namespace dyeworks
