#include "Require.h"
#include "interchange/JpegFile.h"

#include <cstddef>
#include <cstdint>
#include <span>

using namespace dyeworks;

namespace {

/// What a few bytes can claim takes the memory and the time of many runs: a start of frame, and the sides.
bool isHuge(std::span<const std::uint8_t> file) {
    for (std::size_t at = 0; at + 9 <= file.size(); ++at) {
        if (file[at] == 0xff && file[at + 1] >= 0xc0 && file[at + 1] <= 0xcf &&
            (file[at + 5] * 256U + file[at + 6]) * (file[at + 7] * 256U + file[at + 8]) > 1U << 18U)
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span input(data, size);
    if (isHuge(input))
        return 0;
    const auto picture = readJpeg(std::as_bytes(input));
    if (!picture)
        return 0;
    const Picture& read = picture.value();
    require(isPictureSize(read.width, read.height) && !read.isIndexed(), "a picture of colours");
    require(read.pixels.size() ==
                static_cast<std::size_t>(read.width) * static_cast<std::size_t>(read.height),
            "each pixel is there");
    for (const Colour& pixel : read.pixels)
        require(pixel.alpha == 255, "each pixel is opaque");
    return 0;
}
