#pragma once

#include "cli/LoadedPicture.h"
#include "interchange/ReductionOptions.h"
#include "paint/CanvasTransform.h"
#include "paint/Rect.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dyeworks {

/// What becomes of a picture on its way, in this order.
struct PictureWork {
    std::optional<Rect> crop; ///< Inclusive.
    std::optional<Size> size; ///< Nearest neighbour.
    std::optional<Turn> turn;
    std::optional<TlutData> palette;  ///< That it comes into.
    std::optional<std::int32_t> bank; ///< Of a palette of 256 entries: 4 bits, 0 to 15.
    std::optional<std::int32_t> bits; ///< 4 or 8.
    std::optional<std::int32_t> colours;
    std::optional<ColourType> type; ///< Of a palette that is made.
    Dither dither = Dither::None;
};

/// Does it; afterwards the picture is an image. Nothing: done. Otherwise a sentence for the user that does
/// not name the file. Texels without a palette take the one that is given; other pictures get its nearest
/// colours, unless those that they use are the same ones at the same places.
[[nodiscard]] std::optional<std::string> workOn(LoadedPicture& picture, const PictureWork& work);

/// "64x32".
[[nodiscard]] std::optional<Size> parseSize(std::string_view text);
/// "8,0,64x32": the top-left texel, then the size. Inclusive.
[[nodiscard]] std::optional<Rect> parsePart(std::string_view text);

} // namespace dyeworks
