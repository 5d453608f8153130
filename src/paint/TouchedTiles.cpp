#include "paint/TouchedTiles.h"

#include <algorithm>

namespace dyeworks {

namespace {

std::size_t tilesAlong(std::int32_t texels, std::int32_t side) {
    return static_cast<std::size_t>((std::int64_t{texels} + side - 1) / side);
}

} // namespace

TouchedTiles::TouchedTiles(Size image)
    : columns_(tilesAlong(image.width, kSide))
    , touched_(columns_ * tilesAlong(image.height, kSide)) {}

void TouchedTiles::add(const Rect& texels) {
    for (std::int32_t row = texels.top / kSide; row <= texels.bottom / kSide; ++row) {
        const auto first = touched_.begin() + static_cast<std::ptrdiff_t>(indexOf(texels.left / kSide, row));
        std::fill_n(first, texels.right / kSide - texels.left / kSide + 1, true);
    }
}

void TouchedTiles::clear() {
    touched_.assign(touched_.size(), false);
}

} // namespace dyeworks
