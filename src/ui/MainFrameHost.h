#pragma once

#include "ui/OpenedFile.h"

#include <string>

namespace dyeworks {

class CommandRouter;
class CurrentProject;
class PaletteBarHost;

/// What the main window asks of the application, for itself and for its bars.
class MainFrameHost {
public:
    virtual ~MainFrameHost() = default;

    [[nodiscard]] virtual CommandRouter& router() noexcept = 0;
    [[nodiscard]] virtual CurrentProject& currentProject() noexcept = 0;
    [[nodiscard]] virtual PaletteBarHost& paletteBarHost() noexcept = 0;

    /// Opens a file of any kind. Failures have been reported.
    virtual OpenedFile OpenDocumentFile(const std::string& path) = 0;
    /// Opens a file with the desktop's program for it, such as a help page. `relativePath` starts from the
    /// program's folder.
    virtual void ShowHelp(const std::string& relativePath) = 0;

    // The steps of leaving.
    /// Keeps which palettes and documents are open, for the next start.
    virtual void SaveOpenDocuments() = 0;
    /// Before the program is left: asks for every palette, for the project and for every other document with
    /// unsaved changes whether to save it, also for changes that plug-ins make meanwhile, as when they hear
    /// of the project's end. False, with all of it still open, as soon as the user cancels or a file cannot
    /// be saved.
    virtual bool SaveAllModified() = 0;
};

} // namespace dyeworks
