#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

class TextureCanvas;
struct TlutData;
struct TmfImage;

/// What image documents ask of the image plug-ins. Plug-ins of a kind are numbered from 0 in the order of
/// their names. Failures have been reported. Images and palettes stay the caller's; `palette` may be null,
/// and `image` as well, which fails.
class ImagePlugIns {
public:
    virtual ~ImagePlugIns() = default;

    [[nodiscard]] virtual std::vector<std::string> importNames() const = 0;
    [[nodiscard]] virtual std::vector<std::string> exportNames() const = 0;

    /// What the plug-in brought, or null. It may have changed the image in place, whatever it answers.
    /// `paletteNumber` is the palette entry that the image's value 0 shows, here and below.
    [[nodiscard]] virtual std::unique_ptr<TextureCanvas>
    ImportImage(std::int32_t index, TmfImage* image, TlutData* palette, std::int32_t paletteNumber) = 0;
    virtual bool ExportImage(std::int32_t index, TmfImage* image, TlutData* palette,
                             std::int32_t paletteNumber) = 0;
    /// Shows the image on the target. `which` is 0 for preview 1 and 1 for preview 2; the result is 0 when it
    /// could not be shown.
    [[nodiscard]] virtual std::uint32_t PreviewImage(TmfImage* image, TlutData* palette,
                                                     std::int32_t paletteNumber, std::int32_t which) = 0;
    /// The preview is off. Nothing happens when it has shown nothing since it was last off.
    virtual void PreviewOff(std::int32_t which) = 0;
};

} // namespace dyeworks
