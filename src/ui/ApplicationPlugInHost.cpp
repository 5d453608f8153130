#include "ui/ApplicationPlugInHost.h"

#include "platform/Text.h"
#include "project/CTPFDocument.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"

#include <QStatusBar>

namespace dyeworks {

CTPFDocument* ApplicationPlugInHost::openProject() const {
    return dynamic_cast<CTPFDocument*>(application_.projectDocument());
}

CDyeworksDoc* ApplicationPlugInHost::findImage(const std::string& path) const {
    return dynamic_cast<CDyeworksDoc*>(application_.FindOpenDocument(path));
}

PaletteSet* ApplicationPlugInHost::paletteSet() const {
    return application_.paletteSet();
}

void ApplicationPlugInHost::refreshPaletteBar() {
    application_.refreshPaletteBar();
}

void ApplicationPlugInHost::showAbout() {
    application_.ShowAbout();
}

void ApplicationPlugInHost::tellPlugInFailed(const std::string& fileName) {
    if (application_.hasMainFrame())
        application_.mainFrame().statusBar()->showMessage(
            QString::fromStdString(text(StringId::PlugInFailed, {fileName})));
}

} // namespace dyeworks
