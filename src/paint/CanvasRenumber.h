#pragma once

#include <array>
#include <cstdint>

namespace dyeworks {

class TextureCanvas;

// The values of all texels of a canvas at once. Canvases of more than 8 bits have colours in the place of
// values and are left alone.

/// What each value becomes. Of a canvas of fewer bits the first 2^bits count and must stay below that.
using ValueMap = std::array<std::uint8_t, 256>;

/// Gives every texel the value that the map has for its own. The whole canvas counts as changed.
void renumber(TextureCanvas& canvas, const ValueMap& map);

/// How many texels have each value.
[[nodiscard]] std::array<std::int64_t, 256> countValues(const TextureCanvas& canvas);

} // namespace dyeworks
