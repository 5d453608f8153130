#pragma once

#include "cli/thumbnailer/TexelRows.h"
#include "paint/Rect.h"
#include "platform/Picture.h"
#include "platform/Result.h"

#include <array>
#include <string>

namespace dyeworks {

/// Colours by value.
using TexelColours = std::array<Colour, 256>;

/// The size at which an image just fits into `room`: a whole number of times its own where it is smaller, for
/// then its texels stay crisp; otherwise reduced, and never to nothing.
[[nodiscard]] Size fitted(Size image, Size room) noexcept;

/// The image in these colours, of the size that `fitted` gives. A pixel of a reduced one is the mean of the
/// texels below it, as light adds up and as much as each of them is seen; of very many, of some that lie
/// evenly. A sentence for the user when the file ends too early.
[[nodiscard]] Result<Picture, std::string> reduced(TexelRows rows, const TexelColours& colours, Size room);

} // namespace dyeworks
