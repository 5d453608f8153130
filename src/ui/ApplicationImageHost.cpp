#include "ui/ApplicationImageHost.h"

#include "framework/CommandRouter.h"
#include "paint/widgets/ImageView.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/Workspace.h"
#include "ui/sheets/AskImageWork.h"
#include "ui/sheets/AskUseProject.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/CFileNewTexturePage.h"
#include "ui/sheets/CUseProjectDlg.h"

namespace dyeworks {

PaletteSet* ApplicationImageHost::paletteSet() {
    return workspace_.paletteSet();
}

std::int32_t ApplicationImageHost::paletteBarFirstEntry() const {
    return workspace_.hasMainFrame() ? workspace_.mainFrame().GetPaletteBarFirstEntry() : 0;
}

std::int32_t ApplicationImageHost::paletteBarCell() const {
    return workspace_.hasMainFrame() ? workspace_.mainFrame().GetPaletteBarCell() : -1;
}

void ApplicationImageHost::selectPaletteBarCell(std::int32_t cell) {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().SelectPaletteBarCell(cell);
}

void ApplicationImageHost::refreshPaletteBar() {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().RefreshPaletteBar();
}

std::optional<std::string> ApplicationImageHost::savePaletteAs(const std::string& key) {
    return workspace_.savePaletteAs(key);
}

void ApplicationImageHost::setStatusText(const std::string& text, int pane) {
    if (workspace_.hasMainFrame())
        workspace_.mainFrame().SetStatusText(text, pane);
}

bool ApplicationImageHost::isActiveImage(const CDyeworksDoc& document) const {
    const CDyeworksView* view = activeView();
    return view != nullptr && &view->document() == &document;
}

CDyeworksView* ApplicationImageHost::activeView() const {
    ImageView* view = workspace_.hasMainFrame() ? workspace_.mainFrame().activeImageView() : nullptr;
    return view == nullptr ? nullptr : &view->view();
}

OpenProject* ApplicationImageHost::openProject() {
    return workspace_.currentProject().document();
}

std::optional<NewImage> ApplicationImageHost::askNewImage() {
    CFileNewSheet sheet(&workspace_.mainFrame());
    const CFileNewTexturePage& page = sheet.texturePage();
    sheet.keepOnly(page);
    if (sheet.exec() != QDialog::Accepted)
        return std::nullopt;
    return NewImage{page.imageWidth(), page.imageHeight(), static_cast<std::uint16_t>(page.bitsPerPixel())};
}

std::optional<ImageWork> ApplicationImageHost::askImageWork(const ImageWork& proposed,
                                                            const TextureCanvas& image) {
    return dyeworks::askImageWork(proposed, image, &workspace_.mainFrame());
}

void ApplicationImageHost::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    workspace_.imageChanged(image, texels);
}

void ApplicationImageHost::imageClosed() {
    workspace_.imageClosed();
}

void ApplicationImageHost::AskUseProject() {
    UseProjectParts parts;
    parts.projectIsOpen = workspace_.currentProject().document() != nullptr;
    parts.ask = [this](bool& notifyNextTime) {
        return CUseProjectDlg::ask(notifyNextTime, &workspace_.mainFrame());
    };
    parts.newProject = [this] { workspace_.router().run(ID_PROJECT_NEW); };
    parts.openProject = [this] { workspace_.router().run(ID_PROJECT_OPEN); };
    askUseProject(parts);
}

} // namespace dyeworks
