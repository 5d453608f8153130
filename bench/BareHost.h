#pragma once

#include "paint/ImageHost.h"

#include <cstdlib>
#include <optional>
#include <string>

namespace dyeworks {

/// An application without palettes, windows, plug-ins and projects.
class BareHost : public ImageHost {
public:
    PaletteSet* paletteSet() override { return nullptr; }
    std::int32_t paletteBarFirstEntry() const override { return 0; }
    std::int32_t paletteBarCell() const override { return -1; }
    void selectPaletteBarCell(std::int32_t /*cell*/) override {}
    void refreshPaletteBar() override {}
    std::optional<std::string> savePaletteAs(const std::string& /*key*/) override { return std::nullopt; }
    void setStatusText(const std::string& /*text*/, int /*pane*/) override {}
    bool isActiveImage(const CDyeworksDoc& /*document*/) const override { return false; }
    ImageViewer* activeView() const override { return nullptr; }
    ImagePlugIns& imagePlugIns() override { std::abort(); }
    OpenProject* openProject() override { return nullptr; }
    std::optional<NewImage> askNewImage() override { return std::nullopt; }
    std::optional<ImageWork> askImageWork(const ImageWork& /*proposed*/,
                                          const TextureCanvas& /*image*/) override {
        return std::nullopt;
    }
    void AskUseProject() override {}
    const CDyeworksDoc* lastActivatedImage() const override { return nullptr; }
    void setLastActivatedImage(const CDyeworksDoc* /*document*/) override {}
};

} // namespace dyeworks
