#pragma once

#include "paint/Brush.h"
#include "paint/Rect.h"
#include "paint/Surface.h"

namespace dyeworks {

/// Area of the outline that `drawBrushOutline` draws; right and bottom exclusive.
[[nodiscard]] Rect brushOutlineArea(const Brush& brush, Point corner, std::int32_t zoom);

/// Draws a line one pixel wide around the texels that the brush would touch, in dots of two colours, one of
/// which is seen on anything. `corner` is where on the surface the texel under the pointer begins. What lies
/// outside `clip` (right and bottom exclusive, on the surface) is left out.
void drawBrushOutline(const Surface& surface, const Rect& clip, const Brush& brush, Point corner,
                      std::int32_t zoom);

} // namespace dyeworks
