#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/sheets/AskUseProject.h"
#include "ui/sheets/CFileNewPalettePage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/CFileNewTexturePage.h"
#include "ui/sheets/COptionPropertySheet.h"
#include "ui/sheets/CUseProjectDlg.h"

namespace dyeworks {

std::optional<NewImage> CDyeworksApp::askNewImage() {
    CFileNewSheet sheet(mainFrame_.get());
    const CFileNewTexturePage& page = sheet.texturePage();
    sheet.keepOnly(page);
    if (sheet.exec() != QDialog::Accepted)
        return std::nullopt;
    return NewImage{page.imageWidth(), page.imageHeight(), static_cast<std::uint16_t>(page.bitsPerPixel())};
}

void CDyeworksApp::AskUseProject() {
    UseProjectParts parts;
    parts.projectIsOpen = project_ != nullptr;
    parts.ask = [this](bool& notifyNextTime) {
        return CUseProjectDlg::ask(notifyNextTime, mainFrame_.get());
    };
    parts.newProject = [this] { NewProject(); };
    parts.openProject = [this] { OpenProjectFile(); };
    askUseProject(parts);
}

void CDyeworksApp::OnPaletteNew() {
    CFileNewSheet sheet(mainFrame_.get());
    const CFileNewPalettePage& page = sheet.palettePage();
    sheet.keepOnly(page);
    if (sheet.exec() == QDialog::Accepted)
        palettes_->newPalette(page.entryCount(), page.colourType(), page.defaultAlpha());
}

void CDyeworksApp::OnOptions() {
    OptionsCommand(mainFrame_.get());
}

} // namespace dyeworks
