#include "Require.h"
#include "paint/BmpFormat.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cstdint>
#include <span>

using namespace dyeworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = std::as_bytes(std::span(data, size));
    // The same bytes may stand on the clipboard; that they are read within their bounds is all to be seen.
    const auto packed = parsePackedBitmap(input);
    static_cast<void>(packed);

    const auto image = parseBmp(input);
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
