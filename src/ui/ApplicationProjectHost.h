#pragma once

#include "project/ProjectHost.h"
#include "project/ProjectPlugIns.h"

namespace dyeworks {

class CDyeworksApp;

/// The application as projects see it: dialogs, opening and closing of files, the main window.
class ApplicationProjectHost final : public ProjectHost, private ProjectPlugIns {
public:
    /// `application` must outlive the host.
    explicit ApplicationProjectHost(CDyeworksApp& application)
        : application_(application) {}

    [[nodiscard]] ProjectPlugIns& projectPlugIns() override { return *this; }
    [[nodiscard]] ProjectDocument* projectDocument() const override;
    void setProjectDocument(ProjectDocument* project) override;
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
    void ClosePictureDocuments(const std::vector<std::string>& paths, bool force) override;
    [[nodiscard]] bool hasMainFrame() const override;
    [[nodiscard]] bool isClosingMainFrame() const override;
    void SetPaletteBarNumber(std::int32_t number) override;
    void runCommand(std::uint32_t command) override;

private:
    // The plug-ins of projects. None is installed.
    std::size_t TPF_OnNew(PlugInHandles& handles) override { return handles.size(); }
    void TPF_OnUpdate(const PlugInHandles& /*handles*/) override {}
    void TPF_OnUpdateNodes(const PlugInHandles& /*handles*/) override {}
    void TPF_OnDelete(const PlugInHandles& /*handles*/) override {}
    void TPF_OnCommand(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                       NodeCommand /*command*/) override {}
    [[nodiscard]] bool TPF_QueryCommand(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                                        NodeCommand /*command*/) override {
        return false;
    }
    [[nodiscard]] bool TPF_ToString(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                                    std::string& /*text*/) override {
        return false;
    }
    [[nodiscard]] std::uint32_t TPF_IsDroppable(const PlugInHandles& /*handles*/,
                                                const std::string& /*target*/, const std::string& /*dragged*/,
                                                std::uint32_t /*keyState*/) override {
        return drop_effect::kNone;
    }
    bool TPF_OnDrop(const PlugInHandles& /*handles*/, const std::string& /*target*/,
                    const std::string& /*key*/, const std::string& /*value*/,
                    std::uint32_t /*effect*/) override {
        return false;
    }
    [[nodiscard]] std::vector<std::string> projectExportNames() const override { return {}; }
    std::uint32_t TPF_Export(const PlugInHandles& handles, std::int32_t index,
                             const std::string& projectPath) override;

    CDyeworksApp& application_;
};

} // namespace dyeworks
