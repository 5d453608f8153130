#pragma once

#include "paint/Rect.h"
#include "ui/OpenedFile.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CDocument;
class CDyeworksDoc;
class CMainFrame;
class CommandRouter;
class CurrentProject;
class DocumentTemplate;
class PaletteSet;

/// What is open in the program and the window that shows it, for those who answer what images, projects and
/// plug-ins ask of the application.
class Workspace {
public:
    virtual ~Workspace() = default;

    [[nodiscard]] virtual CMainFrame& mainFrame() noexcept = 0;
    /// False before the main window is made and after it has gone.
    [[nodiscard]] virtual bool hasMainFrame() const noexcept = 0;
    [[nodiscard]] virtual CommandRouter& router() noexcept = 0;
    /// The open palettes; before there are any, an empty set.
    [[nodiscard]] virtual PaletteSet* paletteSet() = 0;
    [[nodiscard]] virtual CurrentProject& currentProject() noexcept = 0;

    /// The open document of any kind with this path, both made full paths and compared without regard to
    /// case; null when there is none.
    [[nodiscard]] virtual CDocument* FindOpenDocument(const std::string& path) const = 0;
    /// The kind of documents that images are.
    [[nodiscard]] virtual DocumentTemplate& imageTemplate() noexcept = 0;
    /// The kind that projects are.
    [[nodiscard]] virtual DocumentTemplate& projectTemplate() noexcept = 0;
    /// Opens a palette (".tlf") in the palette set, any other file as a document of the kind that has its
    /// extension, as an image when no kind has; pictures of other programs become new images. Failures have
    /// been reported.
    virtual OpenedFile OpenDocumentFile(const std::string& path) = 0;
    /// All that are open, the project first.
    [[nodiscard]] virtual std::vector<CDocument*> documents() const = 0;
    // As images tell it: see `ImageHost`.
    virtual void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) = 0;
    virtual void imageClosed() = 0;
    // As calls to plug-ins tell it: see `PlugInFailures`.
    virtual void plugInCallBegins(const std::string& fileName) = 0;
    virtual void plugInCallEnds() = 0;
    /// Saving may give palettes new keys; images stay attached to theirs. `save` answers whether they are to
    /// be shown anew.
    virtual void keepAttachments(const std::function<bool()>& save) = 0;
    /// As `ImageHost::savePaletteAs`.
    [[nodiscard]] virtual std::optional<std::string> savePaletteAs(const std::string& key) = 0;
    /// As `ProjectHost::ClosePictureDocuments`: one question, then one for each with unsaved changes, before
    /// any is closed.
    virtual bool ClosePictureDocuments(const std::vector<std::string>& paths,
                                       const std::function<bool()>& mayGoOn) = 0;
    /// Closes the project after asking about its changes. True when none is open afterwards.
    virtual bool CloseProject() = 0;
};

} // namespace dyeworks
