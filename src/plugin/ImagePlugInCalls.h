#pragma once

#include "paint/ImagePlugIns.h"
#include "plugin/PlugInCatalogue.h"
#include "plugin/PlugInHost.h"

#include <array>

namespace dyeworks {

/// Hands images and their palettes to the plug-ins of the catalogue.
class ImagePlugInCalls : public ImagePlugIns {
public:
    /// Both must outlive the calls.
    ImagePlugInCalls(const PlugInCatalogue& catalogue, PlugInHost& host)
        : catalogue_(catalogue)
        , host_(host) {}

    [[nodiscard]] std::vector<std::string> importNames() const override {
        return menuNames(catalogue_.importers());
    }
    [[nodiscard]] std::vector<std::string> exportNames() const override {
        return menuNames(catalogue_.exporters());
    }
    [[nodiscard]] std::unique_ptr<TextureCanvas>
    ImportImage(std::int32_t index, TmfImage* image, TlutData* palette, std::int32_t paletteNumber) override;
    bool ExportImage(std::int32_t index, TmfImage* image, TlutData* palette,
                     std::int32_t paletteNumber) override;
    [[nodiscard]] std::uint32_t PreviewImage(TmfImage* image, TlutData* palette, std::int32_t paletteNumber,
                                             std::int32_t which) override;
    void PreviewOff(std::int32_t which) override;

private:
    bool takeUpPalette(const TlutData& brought, TlutData* palette);

    const PlugInCatalogue& catalogue_;
    PlugInHost& host_;
    std::array<bool, 2> shown_{}; ///< Previews that were called and have not been told that they are off.
};

} // namespace dyeworks
