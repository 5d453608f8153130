#include "ui/ApplicationPlugInHost.h"

#include "framework/CommandRouter.h"
#include "paint/CDyeworksDoc.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/Workspace.h"

#include <QStatusBar>

namespace dyeworks {

CTPFDocument* ApplicationPlugInHost::openProject() const {
    return workspace_.currentProject().document();
}

CDyeworksDoc* ApplicationPlugInHost::findImage(const std::string& path) const {
    return dynamic_cast<CDyeworksDoc*>(workspace_.FindOpenDocument(path));
}

PaletteSet* ApplicationPlugInHost::paletteSet() const {
    return workspace_.paletteSet();
}

void ApplicationPlugInHost::refreshPaletteBar() {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().RefreshPaletteBar();
}

void ApplicationPlugInHost::showAbout() {
    workspace_.router().run(ID_APP_ABOUT);
}

void ApplicationPlugInHost::plugInCallBegins(const std::string& fileName) {
    workspace_.plugInCallBegins(fileName);
}

void ApplicationPlugInHost::plugInCallEnds() {
    workspace_.plugInCallEnds();
}

void ApplicationPlugInHost::tellPlugInFailed(const std::string& fileName) {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().statusBar()->showMessage(
            QString::fromStdString(text(StringId::PlugInFailed, {fileName})));
}

} // namespace dyeworks
