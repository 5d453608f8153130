#pragma once

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "framework/DocumentTemplate.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/ImageHost.h"
#include "palette/PaletteBarHost.h"
#include "platform/FileDialogs.h"
#include "plugin/ImagePlugInCalls.h"
#include "plugin/PlugInCatalogue.h"
#include "plugin/ProjectPlugInCalls.h"
#include "ui/ApplicationPlugInHost.h"
#include "ui/ApplicationProjectHost.h"
#include "ui/OpenRequestQueue.h"
#include "ui/OpenedFile.h"
#include "ui/RecentFiles.h"
#include "ui/StartUpParts.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

class CMainFrame;
class ProjectDocument;
struct CommandLine;

/// The application: starts and stops the program, owns the open palettes, the kinds of documents, the recent
/// files and the main window, opens files by their kind and carries out the commands that belong to no
/// window. The platform is installed before it is made; there is one at a time.
class CDyeworksApp : public CommandTarget, public ImageHost, public PaletteBarHost, private DocumentWindows {
public:
    explicit CDyeworksApp(StartUpParts parts = {});
    ~CDyeworksApp() override;

    /// Brings the program up: settings, controls, kinds of documents, main window, palettes, and what the
    /// command line asks for. False ends the program: something that it needs is missing, a file of the
    /// command line could not be opened, or all that was asked for has been done. Then, too, ExitInstance
    /// is called.
    [[nodiscard]] bool InitInstance(const CommandLine& commandLine);
    /// Keeps the settings and lets go of the window and the palettes. The result is the process's exit code.
    int ExitInstance();

    [[nodiscard]] CMainFrame& mainFrame() noexcept { return *mainFrame_; }
    /// False before the main window is made and after it has gone.
    [[nodiscard]] bool hasMainFrame() const noexcept { return mainFrame_ != nullptr; }
    [[nodiscard]] CommandRouter& router() noexcept { return router_; }
    /// What commands reach, in routing order.
    [[nodiscard]] std::vector<CommandTarget*> commandChain();
    /// The open palettes; before there are any, an empty set.
    PaletteSet* paletteSet() override { return palettes_ == nullptr ? &noPalettes_ : palettes_.get(); }
    /// The picture shown at the start while it is up, else null.
    [[nodiscard]] QWidget* splashScreen() const noexcept { return splash_; }
    /// With a trailing "\".
    [[nodiscard]] const std::string& programFolder() const noexcept { return programFolder_; }
    [[nodiscard]] const std::string& helpPath() const noexcept { return helpPath_; }

    // The kinds of documents.
    void addDocTemplate(std::unique_ptr<DocumentTemplate> kind);
    /// The kind called exactly so ("Texture", "Project"), or null.
    [[nodiscard]] DocumentTemplate* FindDocTemplate(const std::string& name) const;
    [[nodiscard]] DocumentTemplate& imageTemplate() noexcept { return *FindDocTemplate("Texture"); }
    /// The open document of any kind with this path, both made full paths and compared without regard to
    /// case; null when there is none.
    [[nodiscard]] CDocument* FindOpenDocument(const std::string& path) const;

    /// All that are open, the project first.
    [[nodiscard]] std::vector<CDocument*> documents() const;
    /// Saving may give palettes new keys; images stay attached to theirs. `save` answers whether they are to
    /// be shown anew.
    void keepAttachments(const std::function<bool()>& save);

    /// Opens a palette (".tlf") in the palette set, any other file as a document of the kind that has its
    /// extension, as an image when no kind has. Failures have been reported.
    OpenedFile OpenDocumentFile(const std::string& path);
    /// Opens the files one after the other. With `attach`, each image is attached to the palette that is
    /// current when it opens, or, when none is open yet, to the one that is current in the end. False when
    /// any file could not be opened.
    bool OpenFiles(const std::vector<std::string>& paths, bool attach);

    /// Puts the path first in the list of its kind.
    void AddToRecentFileList(const std::string& path);
    [[nodiscard]] const RecentFiles& recentFiles() const noexcept { return recentFiles_; }

    /// Opens what was open when the program was left last. False when anything of it could not be opened; the
    /// rest is open then.
    bool ResumeDocuments();
    /// Keeps which palettes and documents are open, for the next start.
    void SaveOpenDocuments();
    /// Before the program is left: asks for every palette, for the project and for every other document with
    /// unsaved changes whether to save it, also for changes that plug-ins make meanwhile, as when they hear
    /// of the project's end. False, with all of it still open, as soon as the user cancels or a file cannot
    /// be saved.
    bool SaveAllModified();

    /// Makes every image take its palette's colours anew. Called after palettes change.
    void RefreshImagePalettes() override;
    /// The same, of images of other palettes than the current one, too.
    void RefreshAllImages() override;
    /// Shows the colours of `palette`, which may be a passing copy, in every image attached to that key.
    void BroadcastPaletteChange(const std::string& key, const TextureLookupTable& palette) override;
    /// Closes the images and palettes of these paths that are open after one question; No leaves them open.
    /// Each with unsaved changes is asked for once, before any is closed: false when the user cancels there.
    bool ClosePictureDocuments(const std::vector<std::string>& paths);
    /// Shows the About box until the user closes it.
    void ShowAbout();
    /// Opens a file with the desktop's program for it, such as a help page. `relativePath` starts from the
    /// program's folder.
    void ShowHelp(const std::string& relativePath);

    // The open project; at most one.
    /// Null while none is open.
    [[nodiscard]] ProjectDocument* projectDocument() const noexcept { return project_; }
    /// Told by the project itself when it is open, and with null when it closes, which also leaves no picture
    /// chosen.
    void setProjectDocument(ProjectDocument* project);
    /// Name of the picture chosen in the project bar; empty when none is.
    [[nodiscard]] const std::string& currentPicture() const noexcept { return currentPicture_; }
    void setCurrentPicture(const std::string& name) { currentPicture_ = name; }
    /// Closes the project after asking about its changes. True when none is open afterwards.
    bool CloseProject();
    /// A new project document; null when it was abandoned.
    CDocument* NewProject();
    /// Asks for a project file and opens it.
    void OpenProjectFile();

    // What images ask.
    [[nodiscard]] std::int32_t paletteBarFirstEntry() const override;
    [[nodiscard]] std::int32_t paletteBarCell() const override;
    void selectPaletteBarCell(std::int32_t cell) override;
    void refreshPaletteBar() override;
    [[nodiscard]] std::optional<std::string> savePaletteAs(const std::string& key) override;
    void setStatusText(const std::string& text, int pane) override;
    [[nodiscard]] bool isActiveImage(const CDyeworksDoc& document) const override;
    [[nodiscard]] CDyeworksView* activeView() const override;
    [[nodiscard]] ImagePlugIns& imagePlugIns() override { return imagePlugIns_; }
    [[nodiscard]] OpenProject* openProject() override;
    [[nodiscard]] std::optional<NewImage> askNewImage() override;
    void AskUseProject() override;
    [[nodiscard]] bool keepsImageSettings() const override { return keepsImageSettings_; }

    // The plug-ins.
    [[nodiscard]] const PlugInCatalogue& plugIns() const noexcept { return plugIns_; }
    [[nodiscard]] ProjectPlugIns& projectPlugIns() noexcept { return projectPlugIns_; }

    // What the palette bar asks besides.
    [[nodiscard]] std::optional<Image> activeImage() const override;
    void setActivePaletteValue(std::int32_t firstEntry) override;

private:
    [[nodiscard]] std::vector<CDyeworksDoc*> imageDocuments() const;
    [[nodiscard]] CDyeworksDoc* activeDocument() const;
    /// The active image if the palette bar shows its palette; null otherwise.
    [[nodiscard]] CDyeworksDoc* activeDocumentOfCurrentPalette() const;

    bool openWindow(CDocument& document) override;
    void activate(CDocument& document) override;

    OpenedFile openPalette(const std::string& path);
    void closeFramesOf(const CDocument& document);

    // The steps of starting.
    static void followLocale(const CommandLine& commandLine);
    void showSplashScreen();
    void readSettings();
    [[nodiscard]] static bool registerControls();
    void createTemplates();
    [[nodiscard]] bool createMainFrame();
    void listenForOpenRequests(const CommandLine& commandLine);
    [[nodiscard]] bool createPaletteSet();
    [[nodiscard]] bool processCommandLine(const CommandLine& commandLine);
    [[nodiscard]] bool printFiles(const CommandLine& commandLine);
    void showMainFrame();

    void raiseMainFrame();
    void openHandedOver(const std::vector<std::string>& paths);

    void fillCommands();
    void openWithDialog(const char* defaultExtension, int filterIndex);
    void openWithDialog(FileDialogRequest request);
    void updateNeedsPalette(CommandUi& ui);
    void updateNeedsProject(CommandUi& ui);
    void updateNeedsPicture(CommandUi& ui);
    void OnFileNew();
    void OnFileOpen();
    void OnFileImportBmp();
    void OnProjectNew();
    void OnProjectClose();
    void OnProjectSave();
    void OnProjectSaveAs();
    void OnProjectProperty();
    void OnPictureAdd();
    void OnPictureChange();
    void OnPictureRemove();
    void OnPaletteNew();
    void OnPaletteOpen();
    void OnPaletteClose();
    void OnPaletteSave();
    void OnPaletteSaveAs();
    void OnOptions();
    void OnAppExit();

    StartUpParts parts_;
    PlugInCatalogue plugIns_;
    ApplicationPlugInHost plugInHost_{*this};
    ImagePlugInCalls imagePlugIns_{plugIns_, plugInHost_};
    ProjectPlugInCalls projectPlugIns_{plugIns_, plugInHost_};
    ApplicationProjectHost projectHost_{*this};
    CommandRouter router_;
    RecentFiles recentFiles_{[this](const std::string& path) { OpenDocumentFile(path); }};
    std::string programFolder_;
    std::string helpPath_;
    PaletteSet noPalettes_; ///< Seen until the set is made.
    std::unique_ptr<PaletteSet> palettes_;
    ProjectDocument* project_ = nullptr;
    std::string currentPicture_;
    std::vector<std::unique_ptr<DocumentTemplate>> templates_;
    std::unique_ptr<CMainFrame> mainFrame_;
    QPointer<QWidget> splash_;
    OpenRequestQueue openRequests_;
    bool keepsSettings_ = false; ///< Not before they have been read.
    bool keepsImageSettings_ = true;
    int exitCode_ = 0;
};

} // namespace dyeworks
