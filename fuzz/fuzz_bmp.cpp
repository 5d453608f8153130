#include "Require.h"
#include "paint/BmpFormat.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cstdint>
#include <span>

using namespace dyeworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto image = parseBmp(std::as_bytes(std::span(data, size)));
    TextureCanvas canvas;
    if (!image || !canvas.CreateFrom(image.value()))
        return 0;
    // A canvas is a BMP file as it stands, so reading it gives the same canvas.
    const auto again = parseBmp(canvas.block());
    TextureCanvas canvasAgain;
    require(again && canvasAgain.CreateFrom(again.value()), "a canvas can be read as a file");
    require(std::ranges::equal(canvas.block(), canvasAgain.block()), "a canvas comes back as it was");
    return 0;
}
