#include "cli/ContactSheet.h"

#include "cli/CliTexts.h"
#include "cli/NamedFile.h"
#include "cli/ProjectFile.h"
#include "paint/CanvasDepth.h"
#include "paint/IndexThumbnail.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <cmath>

namespace dyeworks {

namespace {

constexpr std::int32_t kGap = 4; ///< Pixels between pictures and around them.
constexpr std::uint32_t kGround = 0xff303030;

/// The picture in its palette, or why there is none.
Result<LoadedPicture, MissingPicture> load(PictureFiles& files, const PictureEntry& entry) {
    const std::string imageName = files.image(entry.tmfFile).path;
    const Result<ByteBuffer, FileError> imageFile = readNamed(imageName);
    if (!imageFile)
        return MissingPicture{imageName, describe(imageFile.error())};
    Result<LoadedPicture, std::string> picture = loadPicture(imageFile.value().bytes(), imageName);
    if (!picture)
        return MissingPicture{imageName, picture.error()};
    if (entry.tlfFile.empty())
        return std::move(picture).value();
    const std::string& paletteName = files.palette(entry.tlfFile).path;
    const Result<ByteBuffer, FileError> paletteFile = readNamed(paletteName);
    if (!paletteFile)
        return MissingPicture{paletteName, describe(paletteFile.error())};
    Result<TlutData, std::string> palette = loadPalette(paletteFile.value().bytes(), paletteName);
    if (!palette)
        return MissingPicture{paletteName, palette.error()};
    const std::int32_t banks = palette.value().count / kBankSize;
    picture.value().firstEntry =
        entry.paletteNo > 0 && entry.paletteNo < banks ? kBankSize * entry.paletteNo : 0;
    picture.value().palette = std::move(palette).value();
    return std::move(picture).value();
}

void put(PixelSheet& sheet, Point corner, std::int32_t side, const LoadedPicture& picture) {
    TextureCanvas canvas(picture.image);
    IndexThumbnail thumbnail;
    thumbnail.take(canvas, {side, side});
    if (thumbnail.isEmpty())
        return;
    const std::int32_t left = corner.x + (side - thumbnail.size().width) / 2;
    const std::int32_t top = corner.y + (side - thumbnail.size().height) / 2;
    thumbnail.colour(displayColours(picture), thumbnail.whole(),
                     sheet.pixels.data() + std::int64_t{top} * sheet.width + left, sheet.width);
}

} // namespace

Result<PixelSheet, std::string> contactSheet(const CTPFFile& project, const SheetLook& look,
                                             std::vector<MissingPicture>& missing) {
    const auto count = static_cast<std::int32_t>(std::max<std::size_t>(project.order.size(), 1));
    const std::int32_t columns =
        look.columns > 0 ? std::min(look.columns, count)
                         : static_cast<std::int32_t>(std::ceil(std::sqrt(static_cast<double>(count))));
    const std::int32_t rows = (count + columns - 1) / columns;
    const std::int64_t step = look.side + kGap;
    const std::int64_t width = kGap + step * columns;
    const std::int64_t height = kGap + step * rows;
    PixelSheet sheet;
    if (!isPictureSize(width, height) ||
        !sheet.make({static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)}, kGround))
        return say(CliText::ImageTooLarge);
    PictureFiles files(project);
    std::int32_t place = 0;
    for (const std::string& name : project.order) {
        const Point corner{static_cast<std::int32_t>(kGap + step * (place % columns)),
                           static_cast<std::int32_t>(kGap + step * (place / columns))};
        ++place;
        const Result<LoadedPicture, MissingPicture> picture = load(files, project.pictures.at(name));
        if (picture)
            put(sheet, corner, look.side, picture.value());
        else
            missing.push_back(picture.error());
    }
    return sheet;
}

} // namespace dyeworks
