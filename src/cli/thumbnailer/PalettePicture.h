#pragma once

#include "cli/thumbnailer/ReducedImage.h"
#include "core/TlutData.h"
#include "platform/Picture.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

/// What an image of so many bits a texel shows through a palette, of which one of 4 bits has 16 entries from
/// `firstEntry` on; greys without one. Alpha that is 0 everywhere is none, for so many programs write it.
[[nodiscard]] TexelColours texelColours(const std::optional<TlutData>& palette, std::int32_t bits,
                                        std::int32_t firstEntry);

/// The palette as a square of swatches, 4 by 4 or 16 by 16, that just fits into `side` pixels. A swatch shows
/// its colour in the upper left half and what is seen of it through its alpha in the lower right one;
/// swatches too small for that show the colour alone.
[[nodiscard]] Picture palettePicture(const TlutData& palette, std::int32_t side);

} // namespace dyeworks
