#include "cli/thumbnailer/ProjectSheet.h"

#include "cli/ProjectFile.h"
#include "cli/thumbnailer/PaletteChoice.h"
#include "cli/thumbnailer/PalettePicture.h"
#include "cli/thumbnailer/ReducedImage.h"
#include "paint/CanvasDepth.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::int32_t kLeastSide = 24; ///< Of a picture that can be told from others.
constexpr std::int32_t kMostColumns = 8;
/// To look for a file that is not there takes its whole folder.
constexpr std::size_t kMostMissing = 500;

/// Where a picture's files are.
struct Place {
    std::string image;
    std::string palette; ///< Empty: it has none.
    std::int32_t bank = 0;
};

std::vector<Place> placesOf(const CTPFFile& project, std::size_t most) {
    PictureFiles files(project);
    std::vector<Place> places;
    std::size_t missing = 0;
    for (const std::string& name : project.order) {
        if (places.size() == most || missing == kMostMissing)
            break;
        const PictureEntry& entry = project.pictures.at(name);
        const FoundFile image = files.image(entry.tmfFile);
        if (image.stamp)
            places.push_back({image.path, entry.tlfFile.empty() ? "" : files.palette(entry.tlfFile).path,
                              entry.paletteNo});
        else
            ++missing;
    }
    return places;
}

std::optional<Picture> shown(const Place& place, std::int32_t side) {
    const auto file = openHostFile(place.image);
    if (!file)
        return std::nullopt;
    std::array<std::byte, kTmfHeaderSize> header;
    Result<TexelRows, std::string> rows =
        TexelRows::behind(std::span(header).first(file.value()->read(header)), *file.value());
    if (!rows)
        return std::nullopt;
    const std::optional<TlutData> palette = readPalette(place.palette);
    const std::int32_t bits = rows.value().bits();
    const bool hasBank = palette && bits == 4 && place.bank > 0 && place.bank < palette->count / kBankSize;
    const TexelColours colours = texelColours(palette, bits, hasBank ? kBankSize * place.bank : 0);
    Result<Picture, std::string> picture = reduced(std::move(rows).value(), colours, {side, side});
    return picture ? std::optional(std::move(picture).value()) : std::nullopt;
}

/// In the middle of a square.
void put(Picture& sheet, Point corner, std::int32_t side, const Picture& picture) {
    const std::int32_t left = corner.x + (side - picture.width) / 2;
    const std::int32_t top = corner.y + (side - picture.height) / 2;
    for (std::int32_t y = 0; y < picture.height; ++y)
        std::copy_n(picture.pixels.begin() + std::int64_t{y} * picture.width, picture.width,
                    sheet.pixels.begin() + std::int64_t{top + y} * sheet.width + left);
}

} // namespace

std::optional<Picture> projectSheet(const CTPFFile& project, std::int32_t side) {
    const std::int32_t gap = side >= 64 ? 2 : 0;
    const auto most =
        static_cast<std::size_t>(std::clamp((side + gap) / (kLeastSide + gap), 1, kMostColumns));
    const std::vector<Place> places = placesOf(project, most * most);
    if (places.empty())
        return std::nullopt;
    const auto count = static_cast<std::int32_t>(places.size());
    const auto columns = static_cast<std::int32_t>(std::ceil(std::sqrt(static_cast<double>(count))));
    const std::int32_t rows = (count + columns - 1) / columns;
    const std::int32_t cell = (side + gap) / columns - gap;
    Picture sheet;
    sheet.width = columns * (cell + gap) - gap;
    sheet.height = rows * (cell + gap) - gap;
    sheet.pixels.assign(static_cast<std::size_t>(std::int64_t{sheet.width} * sheet.height), {0, 0, 0, 0});
    bool isEmpty = true;
    for (std::int32_t place = 0; place < count; ++place) {
        const std::optional<Picture> picture = shown(places[static_cast<std::size_t>(place)], cell);
        if (!picture)
            continue;
        put(sheet, {place % columns * (cell + gap), place / columns * (cell + gap)}, cell, *picture);
        isEmpty = false;
    }
    return isEmpty ? std::nullopt : std::optional(std::move(sheet));
}

} // namespace dyeworks
