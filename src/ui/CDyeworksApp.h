#pragma once

#include "core/PaletteSet.h"
#include "framework/CommandRouter.h"
#include "framework/DocumentTemplate.h"
#include "paint/CDyeworksDoc.h"
#include "palette/PaletteBarHost.h"
#include "platform/FileDialogs.h"
#include "plugin/ImagePlugInCalls.h"
#include "plugin/PlugInCatalogue.h"
#include "plugin/ProjectPlugInCalls.h"
#include "ui/ApplicationImageHost.h"
#include "ui/ApplicationPlugInHost.h"
#include "ui/ApplicationProjectHost.h"
#include "ui/CrashRecovery.h"
#include "ui/CurrentProject.h"
#include "ui/EntryOrderCommands.h"
#include "ui/MainFrameHost.h"
#include "ui/NewTextureCommands.h"
#include "ui/OpenRequestQueue.h"
#include "ui/OutsideChanges.h"
#include "ui/PaletteFileCommands.h"
#include "ui/PaletteUsage.h"
#include "ui/PastePictureCommands.h"
#include "ui/PictureImport.h"
#include "ui/ProjectChecking.h"
#include "ui/ProjectCommands.h"
#include "ui/RecentFiles.h"
#include "ui/StartPlace.h"
#include "ui/StartUpParts.h"
#include "ui/TerminationSignals.h"
#include "ui/Workspace.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

class CMainFrame;
struct CommandLine;

/// The application: starts and stops the program, owns the open palettes, the kinds of documents, the recent
/// files and the main window, opens files by their kind and carries out the commands that belong to no
/// window. The platform is installed before it is made; there is one at a time.
class CDyeworksApp : public CommandTarget,
                     public Workspace,
                     public MainFrameHost,
                     private PaletteBarHost,
                     private DocumentWindows {
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
    /// Takes back what drags have done in images so far.
    void giveUpDrags();

    [[nodiscard]] CMainFrame& mainFrame() noexcept override { return *mainFrame_; }
    [[nodiscard]] bool hasMainFrame() const noexcept override { return mainFrame_ != nullptr; }
    [[nodiscard]] CommandRouter& router() noexcept override { return router_; }
    /// What commands reach, in routing order.
    [[nodiscard]] std::vector<CommandTarget*> commandChain();
    [[nodiscard]] PaletteSet* paletteSet() override {
        return palettes_ == nullptr ? &noPalettes_ : palettes_.get();
    }
    /// The picture shown at the start while it is up, else null.

    // The kinds of documents.
    /// The kind called exactly so ("Texture", "Project"), or null.
    [[nodiscard]] DocumentTemplate* FindDocTemplate(const std::string& name) const;
    [[nodiscard]] DocumentTemplate& imageTemplate() noexcept override { return *FindDocTemplate("Texture"); }
    [[nodiscard]] DocumentTemplate& projectTemplate() noexcept override {
        return *FindDocTemplate("Project");
    }
    [[nodiscard]] CDocument* FindOpenDocument(const std::string& path) const override;

    [[nodiscard]] std::vector<CDocument*> documents() const override;
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) override;
    void imageClosed() override { usage_.imageChanged(false); }
    void plugInCallBegins(const std::string& fileName) override { recovery_.plugInCallBegins(fileName); }
    void plugInCallEnds() override { recovery_.plugInCallEnds(); }
    void keepAttachments(const std::function<bool()>& save) override;
    [[nodiscard]] std::optional<std::string> savePaletteAs(const std::string& key) override;
    OpenedFile OpenDocumentFile(const std::string& path) override;
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
    void SaveOpenDocuments() override;
    bool SaveAllModified() override;

    /// Makes every image take its palette's colours anew. Called after palettes change.
    void RefreshImagePalettes() override;
    /// The same, of images of other palettes than the current one, too.
    void RefreshAllImages() override;
    void showMessage(const std::string& text) override;
    /// Shows the colours of `palette`, which may be a passing copy, in every image attached to that key.
    void BroadcastPaletteChange(const std::string& key, const TextureLookupTable& palette) override;
    bool ClosePictureDocuments(const std::vector<std::string>& paths,
                               const std::function<bool()>& mayGoOn) override;
    void ShowHelp(const std::string& relativePath) override;

    [[nodiscard]] CurrentProject& currentProject() noexcept override { return project_; }
    [[nodiscard]] CTPFDocument* projectDocument() const noexcept { return project_.document(); }
    [[nodiscard]] const std::string& currentPicture() const noexcept { return project_.picture(); }
    bool CloseProject() override;

    // Who answers what images and the palette bar ask.
    [[nodiscard]] ImageHost& imageHost() noexcept { return imageHost_; }
    [[nodiscard]] PaletteBarHost& paletteBarHost() noexcept override { return *this; }
    [[nodiscard]] const PlugInCatalogue& plugIns() const noexcept { return plugIns_; }

private:
    [[nodiscard]] std::optional<Image> activeImage() const override;
    void setActivePaletteValue(std::int32_t firstEntry) override;

    void addDocTemplate(std::unique_ptr<DocumentTemplate> kind);
    [[nodiscard]] std::vector<CDyeworksDoc*> imageDocuments() const;
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

    [[nodiscard]] bool askToSaveAll();
    void keepProgress();
    void tellProfileTrouble() const;
    void keepSettings() const;
    void keepUnsavedWork();
    [[noreturn]] void endAtOnce(int signal);
    void raiseMainFrame();
    void openHandedOver(const std::vector<std::string>& request);

    void fillCommands();
    void openWithDialog(const char* defaultExtension, int filterIndex);
    void openWithDialog(FileDialogRequest request);
    void updateNeedsPalette(CommandUi& ui);
    void OnFileNew();
    void OnFileOpen();
    void OnFileImportBmp();
    void OnProjectNew();
    void OnProjectOpen();
    void OnPaletteNew();
    void OnPaletteOpen();
    void OnPaletteClose();
    void OnPaletteSave();
    void OnPaletteSaveAs();
    void OnOptions();
    void OnAppAbout();
    void OnAppExit();

    StartUpParts parts_;
    PlugInCatalogue plugIns_;
    ApplicationPlugInHost plugInHost_{*this};
    ImagePlugInCalls imagePlugIns_{plugIns_, plugInHost_};
    ProjectPlugInCalls projectPlugIns_{plugIns_, plugInHost_};
    ApplicationImageHost imageHost_{*this, imagePlugIns_};
    ApplicationProjectHost projectHost_{*this, projectPlugIns_};
    CommandRouter router_;
    RecentFiles recentFiles_{[this](const std::string& path) { OpenDocumentFile(path); }};
    std::string programFolder_;
    PaletteSet noPalettes_; ///< Seen until the set is made.
    std::unique_ptr<PaletteSet> palettes_;
    CurrentProject project_;
    ProjectCommands projectCommands_{*this};
    ProjectChecking projectChecking_{*this};
    PictureImport pictures_{*this};
    PastePictureCommands pastePictures_{*this, pictures_};
    PaletteFileCommands paletteFiles_{*this};
    PaletteUsage usage_{*this};
    CrashRecovery recovery_{*this};
    OutsideChanges outside_{*this};
    std::unique_ptr<TerminationSignals> signals_;
    EntryOrderCommands entryOrder_{*this};
    NewTextureCommands newTexture_{*this};
    StartPlace startPlace_{
        recentFiles_,
        {[this](const std::vector<std::string>& paths, bool attach) { OpenFiles(paths, attach); },
         [this](const std::string& page) { ShowHelp(page); }}};
    std::vector<std::unique_ptr<DocumentTemplate>> templates_;
    std::unique_ptr<CMainFrame> mainFrame_;
    QPointer<QWidget> splash_;
    OpenRequestQueue openRequests_;
    QTimer progress_;
    bool waitsForFiles_ = false; ///< There is somebody who can stop it.
    bool keepsSettings_ = false; ///< Not before they have been read.
    int exitCode_ = 0;
};

} // namespace dyeworks
