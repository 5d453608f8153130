#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "interchange/Texture.h"
#include "platform/Picture.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace dyeworks {

/// A picture as its file brings it: texels with a palette, texels alone, or colours.
struct LoadedPicture {
    TmfImage image;
    std::optional<TlutData> palette; ///< That the texels have their colours from.
    std::int32_t firstEntry = 0;     ///< Of the palette: that value 0 of an image of 4 bits shows.
    Picture direct;                  ///< In place of the image.
    TextureReport report;            ///< What was not taken over as it stood.

    [[nodiscard]] bool isDirect() const noexcept { return !direct.pixels.empty(); }
    /// Same for both.
    [[nodiscard]] std::int32_t width() const noexcept { return isDirect() ? direct.width : image.width; }
    [[nodiscard]] std::int32_t height() const noexcept { return isDirect() ? direct.height : image.height; }
};

/// Reads an image (TMF) or a picture (PNG, BMP, JPEG); otherwise a sentence for the user that does not name
/// the file.
[[nodiscard]] Result<LoadedPicture, std::string> loadPicture(std::span<const std::byte> file,
                                                             const std::string& name);

/// Reads a palette: TLF, a palette file of another program, or, of a picture, the one that it brings. A
/// palette of another program gets 16 or 256 entries, of the type that keeps most of it.
[[nodiscard]] Result<TlutData, std::string> loadPalette(std::span<const std::byte> file,
                                                        const std::string& name);

/// The bytes of the TLF file of a palette of 16 or 256 entries; none for another.
[[nodiscard]] std::string tlfBytes(const TlutData& palette);

} // namespace dyeworks
