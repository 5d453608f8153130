#include "Require.h"
#include "paint/BmpFormat.h"
#include "paint/TextureCanvas.h"
#include "platform/PackedDib.h"

#include <algorithm>
#include <cstdint>
#include <span>

using namespace dyeworks;

namespace {

/// Pastes what the clipboard hands over, copies it again and pastes that.
void paste(std::span<const std::byte> dib) {
    const auto image = parsePackedBitmap(dib);
    TextureCanvas canvas;
    if (!image || !canvas.CreateFrom(image.value()))
        return;
    const auto offered = bmpFromDib(canvas.packedBitmap());
    require(offered.has_value(), "a canvas can be offered to other programs");
    const auto taken = dibFromBmp(*offered);
    require(taken && std::ranges::equal(*taken, canvas.packedBitmap()), "an offer comes back bit for bit");
    const auto again = parsePackedBitmap(*taken);
    TextureCanvas canvasAgain;
    require(again && canvasAgain.CreateFrom(again.value()), "a copy can be pasted");
    require(std::ranges::equal(canvas.block(), canvasAgain.block()), "a copy is pasted as it was");
}

} // namespace

/// A packed bitmap, or the BMP file that another program offers in its stead.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = std::as_bytes(std::span(data, size));
    paste(input);
    const auto dib = dibFromBmp(input);
    if (!dib)
        return 0;
    paste(*dib);

    // The program sees the same whether it opens the file or pastes it.
    const auto file = parseBmp(input);
    const auto packed = parsePackedBitmap(*dib);
    TextureCanvas opened;
    TextureCanvas pasted;
    if (!file || !packed || !opened.CreateFrom(file.value()))
        return 0;
    require(pasted.CreateFrom(packed.value()), "what can be opened can be pasted");
    require(std::ranges::equal(opened.block(), pasted.block()), "a file is pasted as it is opened");
    return 0;
}
