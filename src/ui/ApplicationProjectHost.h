#pragma once

#include "project/ProjectHost.h"

namespace dyeworks {

class Workspace;

/// The application as projects see it: dialogs, opening and closing of files, the main window.
class ApplicationProjectHost final : public ProjectHost {
public:
    /// Both must outlive the host.
    ApplicationProjectHost(Workspace& workspace, ProjectPlugIns& plugIns)
        : workspace_(workspace)
        , plugIns_(plugIns) {}

    [[nodiscard]] ProjectPlugIns& projectPlugIns() override { return plugIns_; }
    [[nodiscard]] CTPFDocument* projectDocument() const override;
    void setProjectDocument(CTPFDocument* project) override;
    bool CloseProject() override;
    void ProjectChanged() override;
    void ProjectRenamed() override;
    void SelectPicture(const std::string& name) override;
    bool askNewProject(ProjectSettings& settings) override;
    bool askProjectProperties(ProjectSettings& settings) override;
    bool askPicture(PictureSettings& settings,
                    const std::function<PictureField(const PictureSettings&)>& check) override;
    bool openPalette(const std::string& path) override;
    CDyeworksDoc* openImage(const std::string& path) override;
    std::vector<std::string> openFiles() override;
    bool ClosePictureDocuments(const std::vector<std::string>& paths,
                               const std::function<bool()>& mayGoOn) override;
    void SetPaletteBarNumber(std::int32_t number) override;
    void runCommand(std::uint32_t command) override;

private:
    Workspace& workspace_;
    ProjectPlugIns& plugIns_;
};

} // namespace dyeworks
