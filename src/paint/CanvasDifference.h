#pragma once

#include "paint/Rect.h"

#include <optional>

namespace dyeworks {

class TextureCanvas;

/// The smallest part of `within` that holds all its pixels in which two canvases of the same size and depth
/// differ. Pixels that share a byte count together, so the part may be larger by as many. Both rectangles are
/// inclusive; what of `within` lies outside the canvases is left out. Nothing when no pixel differs.
[[nodiscard]] std::optional<Rect> differingRect(const TextureCanvas& a, const TextureCanvas& b,
                                                const Rect& within);

} // namespace dyeworks
