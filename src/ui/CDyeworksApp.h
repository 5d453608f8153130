#pragma once

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "framework/DocumentTemplate.h"
#include "paint/CDyeworksDoc.h"
#include "paint/ImageHost.h"
#include "paint/ImagePlugIns.h"
#include "ui/OpenedFile.h"
#include "ui/PalettePanelHost.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

class CMainFrame;

/// The application: owns the open palettes, the kinds of documents and the main window, opens files by their
/// kind and carries out the commands that belong to no window. The platform is installed before it is made;
/// there is one at a time.
class CDyeworksApp : public CommandTarget,
                     public ImageHost,
                     public ImagePlugIns,
                     public PalettePanelHost,
                     private DocumentWindows {
public:
    CDyeworksApp();
    ~CDyeworksApp() override;

    [[nodiscard]] CMainFrame& mainFrame() noexcept { return *mainFrame_; }
    [[nodiscard]] CommandRouter& router() noexcept { return router_; }
    PaletteSet* paletteSet() override { return &palettes_; }
    [[nodiscard]] DocumentTemplate& imageTemplate() noexcept { return images_; }

    /// Opens a palette (".tlf") in the palette set, any other file as an image. Failures have been reported.
    OpenedFile OpenDocumentFile(const std::string& path);
    /// Opens the files one after the other. With `attach`, each image is attached to the palette that is
    /// current when it opens, or, when none is open yet, to the one that is current in the end. False when
    /// any file could not be opened.
    bool OpenFiles(const std::vector<std::string>& paths, bool attach);

    /// Makes every image take its palette's colours anew. Called after palettes change.
    void RefreshImagePalettes();
    /// Asks for every palette and document with unsaved changes whether to save it. False as soon as the user
    /// cancels or a file cannot be saved.
    bool SaveAllModified();

    // What images ask.
    [[nodiscard]] std::int32_t paletteBarFirstEntry() const override;
    [[nodiscard]] std::int32_t paletteBarCell() const override;
    void selectPaletteBarCell(std::int32_t cell) override;
    void refreshPaletteBar() override;
    void setStatusText(const std::string& text, int pane) override;
    [[nodiscard]] bool isActiveImage(const CDyeworksDoc& document) const override;
    [[nodiscard]] CDyeworksView* activeView() const override;
    [[nodiscard]] ImagePlugIns& imagePlugIns() override { return *this; }
    [[nodiscard]] OpenProject* openProject() override { return nullptr; }
    [[nodiscard]] std::optional<NewImage> askNewImage() override;
    /// There is nothing to offer: projects are not among the kinds of documents.
    void AskUseProject() override {}

    // The image plug-ins. None is installed.
    [[nodiscard]] std::vector<std::string> importNames() const override { return {}; }
    [[nodiscard]] std::vector<std::string> exportNames() const override { return {}; }
    [[nodiscard]] std::unique_ptr<TextureCanvas>
    ImportImage(std::int32_t index, TmfImage* image, TlutData* palette, std::int32_t paletteNumber) override;
    bool ExportImage(std::int32_t index, TmfImage* image, TlutData* palette,
                     std::int32_t paletteNumber) override;
    [[nodiscard]] std::uint32_t PreviewImage(TmfImage* image, TlutData* palette, std::int32_t paletteNumber,
                                             std::int32_t which) override;

    // What the palette panel asks.
    [[nodiscard]] std::optional<PalettePanelState::Image> panelImage() const override;
    void bankChosen(std::int32_t firstEntry) override;

private:
    [[nodiscard]] std::vector<CommandTarget*> commandChain();
    [[nodiscard]] std::vector<CDyeworksDoc*> imageDocuments() const;
    [[nodiscard]] CDyeworksDoc* activeImage() const;
    /// The active image if the panel shows its palette; null otherwise.
    [[nodiscard]] CDyeworksDoc* activeImageOfCurrentPalette() const;

    bool openWindow(CDocument& document) override;
    void activate(CDocument& document) override;

    OpenedFile openPalette(const std::string& path);
    /// Saving may give palettes new keys; images stay attached to theirs.
    void keepAttachments(const std::function<void()>& save);
    void openWithDialog(const char* defaultExtension, int filterIndex);
    void updateNeedsPalette(CommandUi& ui);
    void OnFileNew();
    void OnFileOpen();
    void OnPaletteOpen();
    void OnPaletteClose();
    void OnPaletteSave();
    void OnPaletteSaveAs();
    void OnAppAbout();
    void OnAppExit();

    CommandRouter router_;
    PaletteSet palettes_;
    DocumentTemplate images_;
    std::unique_ptr<CMainFrame> mainFrame_;
};

} // namespace dyeworks
