#include "project/PictureImage.h"

#include "core/TextureLookupTable.h"
#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "platform/Platform.h"

#include <new>

namespace dyeworks {

namespace {

/// Entries of a palette that a 4-bit image shows.
constexpr std::int32_t kBankSize = 16;

} // namespace

std::unique_ptr<TextureCanvas> readPicture(const std::string& imagePath, const std::string& palettePath,
                                           std::int32_t paletteNumber) {
    const auto imageFile = platform().files().openForReading(imagePath);
    const auto paletteFile = platform().files().read(palettePath);
    if (!imageFile || !paletteFile)
        return nullptr;
    const Result<TmfImage, TmfError> image = parseTmf(*imageFile.value());
    const Result<TlutData, TlfError> table = parseTlf(paletteFile.value().bytes());
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
