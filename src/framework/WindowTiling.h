#pragma once

#include <vector>

namespace dyeworks {

/// A place in the document area, in its pixels.
struct TilePlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const TilePlace&) const = default;
};

enum class TileDirection {
    Horizontal, ///< Few windows lie one above the other.
    Vertical    ///< Few windows stand side by side.
};

/// Places for `count` windows that together cover `width` by `height` pixels without a gap. Up to three form
/// one column (or row), more of them a table that is about as high as it is wide.
[[nodiscard]] std::vector<TilePlace> tilePlaces(int count, int width, int height, TileDirection direction);

} // namespace dyeworks
