#pragma once

#include "plugin/PlugInHost.h"

namespace dyeworks {

class CDyeworksApp;

/// The application as plug-ins see it.
class ApplicationPlugInHost final : public PlugInHost {
public:
    /// `application` must outlive the host.
    explicit ApplicationPlugInHost(CDyeworksApp& application)
        : application_(application) {}

    [[nodiscard]] CTPFDocument* openProject() const override;
    [[nodiscard]] CDyeworksDoc* findImage(const std::string& path) const override;
    [[nodiscard]] PaletteSet* paletteSet() const override;
    void refreshPaletteBar() override;
    void showAbout() override;
    void tellPlugInFailed(const std::string& fileName) override;

private:
    CDyeworksApp& application_;
};

} // namespace dyeworks
