#include "project/PictureImage.h"

#include "core/TextureLookupTable.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "platform/Platform.h"

#include <array>
#include <cstddef>
#include <new>
#include <span>

namespace dyeworks {

namespace {

/// Entries of a palette that a 4-bit image shows.
/// Bytes that are read while somebody waits for a small picture.
constexpr std::uint64_t kLargestImage = std::uint64_t{65} << 20;

} // namespace

std::unique_ptr<TextureCanvas> readPicture(const std::string& imagePath, const std::string& palettePath,
                                           std::int32_t paletteNumber) {
    const auto imageFile = platform().files().openForReading(imagePath);
    const auto paletteFile = platform().files().openForReading(palettePath);
    if (!imageFile || !paletteFile || imageFile.value()->size() > kLargestImage)
        return nullptr;
    std::array<std::byte, kLargestTlfSize> bytes;
    const std::size_t count = paletteFile.value()->read(bytes);
    const Result<TmfImage, TmfError> image = parseTmf(*imageFile.value());
    const Result<TlutData, TlfError> table = parseTlf(std::span(bytes).first(count));
    if (!image || !table)
        return nullptr;
    auto canvas = std::unique_ptr<TextureCanvas>(new (std::nothrow) TextureCanvas(image.value()));
    if (canvas == nullptr || canvas->block().empty())
        return nullptr;
    // A palette without such a bank shows its first.
    const bool isBank = paletteNumber >= 0 && paletteNumber < table.value().count / kBankSize;
    canvas->ApplyPalette(TextureLookupTable(table.value()), isBank ? kBankSize * paletteNumber : 0);
    return canvas;
}

} // namespace dyeworks
