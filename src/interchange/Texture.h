#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "platform/Picture.h"

#include <cstdint>

namespace dyeworks {

/// An image with its palette. Of a palette of 256 entries an image of 4 bits uses 16 from `firstEntry` on.
struct Texture {
    TmfImage image;
    TlutData palette;
    std::int32_t firstEntry = 0; ///< A multiple of 16, 0 to 240.
};

/// What was not taken over as it stood.
struct TextureReport {
    std::int32_t rounded = 0; ///< Colours that no entry shows exactly.
    std::int32_t changed = 0; ///< Entries that another program has changed since this one wrote the file.
};

/// The smallest depth, 4 or 8 bits, that holds so many colours (1 to 256).
[[nodiscard]] constexpr std::int32_t depthFor(std::size_t colours) noexcept {
    return colours <= 16 ? 4 : 8;
}

/// An image of the indices, row by row from the top and without gaps, of which each must be below 2^bits.
/// All zero when there is no memory for it.
[[nodiscard]] TmfImage imageOf(std::int32_t width, std::int32_t height, std::int32_t bits,
                               const std::uint8_t* indices);

} // namespace dyeworks
