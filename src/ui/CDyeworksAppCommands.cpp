#include "platform/AskForFile.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/qt/QtWaitCursor.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/ShortcutOptions.h"
#include "ui/sheets/AboutDialog.h"
#include "ui/sheets/CFileNewPalettePage.h"
#include "ui/sheets/CFileNewSheet.h"
#include "ui/sheets/COptionPropertySheet.h"
#include "ui/sheets/CShortcutsPage.h"

namespace dyeworks {

namespace {

constexpr const char* kOpenFilter = "Project Files (*.tpf)|*.tpf|Image Files (*.tmf)|*.tmf|"
                                    "Palette Files (*.tlf)|*.tlf|All Files (*.*)|*.*||";
// Positions in the filter, counted from 1.
constexpr int kProjectFilter = 1;
constexpr int kImageFilter = 2;
constexpr int kPaletteFilter = 3;

} // namespace

void CDyeworksApp::fillCommands() {
    on(ID_FILE_NEW, &CDyeworksApp::OnFileNew);
    on(ID_FILE_OPEN, &CDyeworksApp::OnFileOpen);
    on(ID_FILE_IMPORT_BMP, &CDyeworksApp::OnFileImportBmp);
    on(ID_PROJECT_NEW, &CDyeworksApp::OnProjectNew);
    on(ID_PROJECT_OPEN, &CDyeworksApp::OnProjectOpen);
    on(ID_PALETTE_NEW, &CDyeworksApp::OnPaletteNew);
    on(ID_PALETTE_OPEN, &CDyeworksApp::OnPaletteOpen);
    on(ID_PALETTE_CLOSE, &CDyeworksApp::OnPaletteClose, &CDyeworksApp::updateNeedsPalette);
    on(ID_PALETTE_SAVE, &CDyeworksApp::OnPaletteSave, &CDyeworksApp::updateNeedsPalette);
    on(ID_PALETTE_SAVE_AS, &CDyeworksApp::OnPaletteSaveAs, &CDyeworksApp::updateNeedsPalette);
    on(ID_OPTIONS, &CDyeworksApp::OnOptions);
    on(ID_APP_ABOUT, &CDyeworksApp::OnAppAbout);
    on(ID_APP_EXIT, &CDyeworksApp::OnAppExit);
}

void CDyeworksApp::openWithDialog(const char* defaultExtension, int filterIndex) {
    openWithDialog({.filter = kOpenFilter, .filterIndex = filterIndex, .defaultExtension = defaultExtension});
}

void CDyeworksApp::openWithDialog(FileDialogRequest request) {
    request.fileMustExist = true;
    if (const auto path = askForFileToOpen(std::move(request)))
        OpenDocumentFile(*path);
}

void CDyeworksApp::updateNeedsPalette(CommandUi& ui) {
    ui.require(paletteSet()->lookup("") != nullptr, StringId::WhyNoPalette);
}

void CDyeworksApp::OnFileNew() {
    imageTemplate().newDocument();
}

void CDyeworksApp::OnFileOpen() {
    openWithDialog(".tmf", kImageFilter);
}

void CDyeworksApp::OnFileImportBmp() {
    openWithDialog({.title = text(StringId::ImportBmpCaption),
                    .filter = text(StringId::BitmapFiles) + " (*.bmp)|*.bmp||",
                    .defaultExtension = ".bmp"});
}

void CDyeworksApp::OnProjectNew() {
    FindDocTemplate("Project")->newDocument();
}

void CDyeworksApp::OnProjectOpen() {
    openWithDialog(".tpf", kProjectFilter);
}

void CDyeworksApp::OnPaletteOpen() {
    openWithDialog(".tlf", kPaletteFilter);
}

void CDyeworksApp::OnPaletteClose() {
    if (palettes_->closePalette("", true))
        RefreshImagePalettes();
    imageHost_.refreshPaletteBar();
}

void CDyeworksApp::OnPaletteSave() {
    keepAttachments([this] { return palettes_->savePalette("", true); });
}

void CDyeworksApp::OnPaletteSaveAs() {
    keepAttachments([this] { return palettes_->savePaletteAs("", true); });
}

void CDyeworksApp::OnPaletteNew() {
    CFileNewSheet sheet(mainFrame_.get());
    const CFileNewPalettePage& page = sheet.palettePage();
    sheet.keepOnly(page);
    if (sheet.exec() == QDialog::Accepted)
        palettes_->newPalette(page.entryCount(), page.colourType(), page.defaultAlpha());
}

void CDyeworksApp::OnOptions() {
    OptionsCommand(mainFrame_.get(), shortcutOptions(mainFrame_->commandActions()));
}

void CDyeworksApp::OnAppAbout() {
    const OrdinaryPointerScope pointer;
    AboutDialog(plugIns_, mainFrame_.get()).exec();
}

void CDyeworksApp::OnAppExit() {
    mainFrame_->close();
}

} // namespace dyeworks
