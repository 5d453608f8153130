#pragma once

#include "paint/CDyeworksView.h"
#include "paint/ImageHost.h"

namespace dyeworks {

class Workspace;

/// The application as images see it: palettes and palette bar, status line, which image is active, the sheet
/// of a new one.
class ApplicationImageHost final : public ImageHost {
public:
    /// Both must outlive the host.
    ApplicationImageHost(Workspace& workspace, ImagePlugIns& plugIns)
        : workspace_(workspace)
        , plugIns_(plugIns) {}

    PaletteSet* paletteSet() override;
    [[nodiscard]] std::int32_t paletteBarFirstEntry() const override;
    [[nodiscard]] std::int32_t paletteBarCell() const override;
    void selectPaletteBarCell(std::int32_t cell) override;
    void refreshPaletteBar() override;
    [[nodiscard]] std::optional<std::string> savePaletteAs(const std::string& key) override;
    void setStatusText(const std::string& text, int pane) override;
    [[nodiscard]] bool isActiveImage(const CDyeworksDoc& document) const override;
    [[nodiscard]] CDyeworksView* activeView() const override;
    [[nodiscard]] ImagePlugIns& imagePlugIns() override { return plugIns_; }
    [[nodiscard]] OpenProject* openProject() override;
    [[nodiscard]] std::optional<NewImage> askNewImage() override;
    [[nodiscard]] std::optional<ImageWork> askImageWork(const ImageWork& proposed,
                                                        const TextureCanvas& image) override;
    void AskUseProject() override;
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) override;
    void imageClosed() override;
    [[nodiscard]] bool keepsImageSettings() const override { return keepsSettings_; }
    void setKeepsImageSettings(bool keeps) noexcept { keepsSettings_ = keeps; }
    [[nodiscard]] const CDyeworksDoc* lastActivatedImage() const override { return lastActivated_; }
    void setLastActivatedImage(const CDyeworksDoc* document) override { lastActivated_ = document; }

private:
    Workspace& workspace_;
    ImagePlugIns& plugIns_;
    const CDyeworksDoc* lastActivated_ = nullptr;
    bool keepsSettings_ = true;
};

} // namespace dyeworks
