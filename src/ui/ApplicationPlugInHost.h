#pragma once

#include "plugin/PlugInHost.h"

namespace dyeworks {

class Workspace;

/// The application as plug-ins see it.
class ApplicationPlugInHost final : public PlugInHost {
public:
    /// `workspace` must outlive the host.
    explicit ApplicationPlugInHost(Workspace& workspace)
        : workspace_(workspace) {}

    [[nodiscard]] CTPFDocument* openProject() const override;
    [[nodiscard]] CDyeworksDoc* findImage(const std::string& path) const override;
    [[nodiscard]] PaletteSet* paletteSet() const override;
    void refreshPaletteBar() override;
    void showAbout() override;
    void plugInCallBegins(const std::string& fileName) override;
    void plugInCallEnds() override;
    void tellPlugInFailed(const std::string& fileName) override;

private:
    Workspace& workspace_;
};

} // namespace dyeworks
