#include "interchange/Texture.h"

#include <algorithm>
#include <cstddef>

namespace dyeworks {

TmfImage imageOf(std::int32_t width, std::int32_t height, std::int32_t bits, const std::uint8_t* indices) {
    TmfImage image;
    if (!image.create(width, height, bits))
        return image;
    const std::int64_t stride = image.stride();
    for (std::int32_t y = 0; y < height; ++y, indices += width) {
        std::uint8_t* const row = image.texels + (height - 1 - y) * stride;
        if (bits == 8) {
            std::copy_n(indices, width, row);
            continue;
        }
        for (std::int32_t x = 0; x < width; x += 2) {
            const unsigned right = x + 1 < width ? indices[x + 1] & 15U : 0U;
            row[x / 2] = static_cast<std::uint8_t>((indices[x] & 15U) << 4U | right);
        }
    }
    return image;
}

} // namespace dyeworks
