#include "ui/CDyeworksApp.h"

#include "framework/PathText.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "ui/AboutDialog.h"
#include "ui/CFileNewSheet.h"
#include "ui/CFileNewTexturePage.h"
#include "ui/CMainFrame.h"
#include "ui/PalettePanel.h"

#include <functional>
#include <map>
#include <optional>

namespace dyeworks {

namespace {

constexpr const char* kOpenFilter = "Project Files (*.tpf)|*.tpf|Image Files (*.tmf)|*.tmf|"
                                    "Palette Files (*.tlf)|*.tlf|All Files (*.*)|*.*||";
// Positions in the filter, counted from 1.
constexpr int kImageFilter = 2;
constexpr int kPaletteFilter = 3;

void tellNotInstalled(const char* text) {
    platform().messages().show({text, "", MessageButtons::Ok, MessageIcon::None, MessageOwner::MainWindow});
}

} // namespace

CDyeworksApp::CDyeworksApp()
    : router_([this] { return commandChain(); })
    , images_(
          {"Texture", ".tmf"},
          [this](DocumentTemplate& own) { return std::make_unique<CDyeworksDoc>(*this, &own); }, *this) {
    setApplicationPaletteSet(&palettes_);
    on(ID_FILE_NEW, &CDyeworksApp::OnFileNew);
    on(ID_FILE_OPEN, &CDyeworksApp::OnFileOpen);
    on(ID_PALETTE_OPEN, &CDyeworksApp::OnPaletteOpen);
    on(ID_PALETTE_CLOSE, &CDyeworksApp::OnPaletteClose, &CDyeworksApp::updateNeedsPalette);
    on(ID_PALETTE_SAVE, &CDyeworksApp::OnPaletteSave, &CDyeworksApp::updateNeedsPalette);
    on(ID_PALETTE_SAVE_AS, &CDyeworksApp::OnPaletteSaveAs, &CDyeworksApp::updateNeedsPalette);
    on(ID_APP_ABOUT, &CDyeworksApp::OnAppAbout);
    on(ID_APP_EXIT, &CDyeworksApp::OnAppExit);
    mainFrame_ = std::make_unique<CMainFrame>(*this);
    palettes_.setListener(&mainFrame_->palettePanel());
    // The first idle moment may be long in coming: files are opened before, and each may raise a message.
    mainFrame_->commandActions().refresh();
}

CDyeworksApp::~CDyeworksApp() {
    palettes_.setListener(nullptr);
    mainFrame_.reset();
    setApplicationPaletteSet(nullptr);
}

std::vector<CommandTarget*> CDyeworksApp::commandChain() {
    std::vector<CommandTarget*> chain;
    // Nothing is routed while the window is being made or has gone.
    if (mainFrame_ != nullptr) {
        chain = mainFrame_->commandTargets();
        chain.push_back(&mainFrame_->printing());
    }
    chain.push_back(this);
    return chain;
}

std::vector<CDyeworksDoc*> CDyeworksApp::imageDocuments() const {
    std::vector<CDyeworksDoc*> images;
    for (CDocument* document : images_.documents())
        images.push_back(static_cast<CDyeworksDoc*>(document));
    return images;
}

CDyeworksDoc* CDyeworksApp::activeImage() const {
    const CDyeworksView* view = activeView();
    return view == nullptr ? nullptr : &view->document();
}

CDyeworksDoc* CDyeworksApp::activeImageOfCurrentPalette() const {
    CDyeworksDoc* image = activeImage();
    return image != nullptr && image->IsAttached() && image->attachedName() == palettes_.currentKey ? image
                                                                                                    : nullptr;
}

OpenedFile CDyeworksApp::OpenDocumentFile(const std::string& path) {
    const std::string fullPath = platform().files().fullPath(path);
    if (equalIgnoringCase(extensionOf(fullPath), ".tlf"))
        return openPalette(fullPath);
    return OpenedFile::of(images_.openDocument(path));
}

OpenedFile CDyeworksApp::openPalette(const std::string& path) {
    if (!palettes_.openPalette(path)) {
        applicationMessage(displayPath(path) + " open failed");
        return OpenedFile::failed();
    }
    RefreshImagePalettes();
    return OpenedFile::palette();
}

bool CDyeworksApp::OpenFiles(const std::vector<std::string>& paths, bool attach) {
    bool allOpened = true;
    std::vector<std::string> waiting; // for a palette
    for (const std::string& path : paths) {
        const OpenedFile opened = OpenDocumentFile(path);
        allOpened = static_cast<bool>(opened) && allOpened;
        auto* image = static_cast<CDyeworksDoc*>(opened.document());
        if (!attach || image == nullptr)
            continue;
        image->Attach();
        if (!image->IsAttached())
            waiting.push_back(path);
    }
    for (const std::string& path : waiting) {
        if (auto* image = static_cast<CDyeworksDoc*>(images_.findDocument(path)))
            image->Attach();
    }
    return allOpened;
}

void CDyeworksApp::RefreshImagePalettes() {
    for (CDyeworksDoc* image : imageDocuments())
        image->RefreshPalette();
}

void CDyeworksApp::keepAttachments(const std::function<void()>& save) {
    std::map<CDyeworksDoc*, const TextureLookupTable*> attached;
    for (CDyeworksDoc* image : imageDocuments())
        attached[image] = image->GetAttachedPalette();
    save();
    bool moved = false;
    for (const auto& [image, palette] : attached) {
        if (palette == nullptr || palette->path == image->attachedName())
            continue;
        image->setAttachedName(palette->path);
        moved = true;
    }
    if (moved)
        RefreshImagePalettes();
}

bool CDyeworksApp::SaveAllModified() {
    bool agreed = false;
    keepAttachments([&] { agreed = palettes_.queryCloseAll(); });
    if (!agreed)
        return false;
    for (CDyeworksDoc* image : imageDocuments()) {
        if (!image->saveModified())
            return false;
    }
    return true;
}

std::int32_t CDyeworksApp::paletteBarFirstEntry() const {
    return mainFrame_ == nullptr ? 0 : mainFrame_->palettePanel().firstEntry();
}

std::int32_t CDyeworksApp::paletteBarCell() const {
    return mainFrame_ == nullptr ? -1 : mainFrame_->palettePanel().cell();
}

void CDyeworksApp::selectPaletteBarCell(std::int32_t cell) {
    if (mainFrame_ != nullptr)
        mainFrame_->palettePanel().selectCell(cell);
}

void CDyeworksApp::refreshPaletteBar() {
    if (mainFrame_ != nullptr)
        mainFrame_->palettePanel().currentPaletteChanged();
}

void CDyeworksApp::setStatusText(const std::string& text, int pane) {
    if (mainFrame_ != nullptr)
        mainFrame_->SetStatusText(text, pane);
}

bool CDyeworksApp::isActiveImage(const CDyeworksDoc& document) const {
    return activeImage() == &document;
}

CDyeworksView* CDyeworksApp::activeView() const {
    ImageView* view = mainFrame_ == nullptr ? nullptr : mainFrame_->activeImageView();
    return view == nullptr ? nullptr : &view->view();
}

std::optional<NewImage> CDyeworksApp::askNewImage() {
    CFileNewSheet sheet(mainFrame_.get());
    if (sheet.exec() != QDialog::Accepted)
        return std::nullopt;
    const CFileNewTexturePage& page = sheet.texturePage();
    return NewImage{page.imageWidth(), page.imageHeight(), static_cast<std::uint16_t>(page.bitsPerPixel())};
}

std::unique_ptr<TextureCanvas> CDyeworksApp::ImportImage(std::int32_t /*index*/, TmfImage* /*image*/,
                                                         TlutData* /*palette*/,
                                                         std::int32_t /*paletteNumber*/) {
    tellNotInstalled("TMF Import Plug-In not installed.\n");
    return nullptr;
}

bool CDyeworksApp::ExportImage(std::int32_t /*index*/, TmfImage* /*image*/, TlutData* /*palette*/,
                               std::int32_t /*paletteNumber*/) {
    tellNotInstalled("TMF Export Plug-In not installed.\n");
    return false;
}

std::uint32_t CDyeworksApp::PreviewImage(TmfImage* /*image*/, TlutData* /*palette*/,
                                         std::int32_t /*paletteNumber*/, std::int32_t /*which*/) {
    tellNotInstalled("TMF Preview Plug-In not installed.\n");
    return 0;
}

std::optional<PalettePanelState::Image> CDyeworksApp::panelImage() const {
    const CDyeworksDoc* image = activeImageOfCurrentPalette();
    if (image == nullptr)
        return std::nullopt;
    return PalettePanelState::Image{image->canvas().bitsPerPixel(), image->paletteValue()};
}

void CDyeworksApp::bankChosen(std::int32_t firstEntry) {
    if (CDyeworksDoc* image = activeImageOfCurrentPalette()) {
        image->setPaletteValue(firstEntry);
        image->RefreshPalette();
    }
}

bool CDyeworksApp::openWindow(CDocument& document) {
    mainFrame_->openImageWindow(static_cast<CDyeworksDoc&>(document));
    return true;
}

void CDyeworksApp::activate(CDocument& document) {
    mainFrame_->activateWindowOf(document);
}

void CDyeworksApp::openWithDialog(const char* defaultExtension, int filterIndex) {
    FileDialogRequest request;
    request.filter = kOpenFilter;
    request.filterIndex = filterIndex;
    request.defaultExtension = defaultExtension;
    request.fileMustExist = true;
    request.hideReadOnly = true;
    if (const std::optional<std::string> path = platform().fileDialogs().open(request))
        OpenDocumentFile(*path);
}

void CDyeworksApp::updateNeedsPalette(CommandUi& ui) {
    ui.enabled = palettes_.lookup("") != nullptr;
}

void CDyeworksApp::OnFileNew() {
    images_.newDocument();
}

void CDyeworksApp::OnFileOpen() {
    openWithDialog(".tmf", kImageFilter);
}

void CDyeworksApp::OnPaletteOpen() {
    openWithDialog(".tlf", kPaletteFilter);
}

void CDyeworksApp::OnPaletteClose() {
    if (palettes_.closePalette("", true))
        RefreshImagePalettes();
    refreshPaletteBar();
}

void CDyeworksApp::OnPaletteSave() {
    keepAttachments([this] { palettes_.savePalette("", true); });
}

void CDyeworksApp::OnPaletteSaveAs() {
    keepAttachments([this] { palettes_.savePaletteAs("", true); });
}

void CDyeworksApp::OnAppAbout() {
    AboutDialog(mainFrame_.get()).exec();
}

void CDyeworksApp::OnAppExit() {
    mainFrame_->close();
}

} // namespace dyeworks
