#include "cli/RenderedPicture.h"

#include "cli/CliTexts.h"
#include "interchange/EntryColour.h"
#include "paint/TextureCanvas.h"
#include "paint/ViewRenderer.h"

#include <algorithm>
#include <array>

namespace dyeworks {

namespace {

using Alphas = std::array<std::uint8_t, 256>;

constexpr std::uint32_t kOpaque = 0xff000000;

std::int32_t firstOf(const LoadedPicture& picture) {
    return picture.image.bits == 4 ? picture.firstEntry : 0;
}

/// Alpha by value.
Alphas alphasOf(const LoadedPicture& picture) {
    Alphas alphas;
    alphas.fill(255);
    for (std::int32_t i = 0; picture.palette && i < 256; ++i)
        alphas[static_cast<std::size_t>(i)] = colourOf(*picture.palette, firstOf(picture) + i).alpha;
    return alphas;
}

void giveColours(TextureCanvas& canvas, const std::array<std::uint32_t, 256>& colours) {
    const std::span<std::uint8_t> table = canvas.colourTable();
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = i % 4 == 3 ? std::uint8_t{0} : static_cast<std::uint8_t>(colours[i / 4] >> 8 * (i % 4));
}

std::uint32_t mixed(std::uint32_t over, std::uint32_t under, std::uint32_t alpha) {
    std::uint32_t result = kOpaque;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const std::uint32_t sum = (over >> shift & 255U) * alpha + (under >> shift & 255U) * (255U - alpha);
        result |= (sum + 127U) / 255U << shift;
    }
    return result;
}

/// Where the image alone and the image with its grid differ, the grid stays.
void putOverCheckerboard(PixelSheet& sheet, const std::vector<std::uint32_t>& withoutGrid,
                         const TextureCanvas& canvas, const Alphas& alphas, std::int32_t zoom) {
    std::size_t at = 0;
    for (std::int32_t y = 0; y < sheet.height; ++y) {
        for (std::int32_t x = 0; x < sheet.width; ++x, ++at) {
            const std::uint8_t alpha = alphas[canvas.GetPixel(x / zoom, y / zoom) & 255U];
            if (alpha < 255 && sheet.pixels[at] == withoutGrid[at])
                sheet.pixels[at] = mixed(sheet.pixels[at], checkerboardAt(x, y), alpha);
        }
    }
}

} // namespace

bool PixelSheet::make(Size size, std::uint32_t colour) {
    if (!isPictureSize(size.width, size.height))
        return false;
    width = size.width;
    height = size.height;
    pixels.assign(static_cast<std::size_t>(std::int64_t{width} * height), colour);
    return true;
}

std::array<std::uint32_t, 256> displayColours(const LoadedPicture& picture, bool alphaView) {
    std::array<std::uint32_t, 256> colours;
    const std::uint32_t highest = picture.image.bits == 4 ? 15 : 255;
    for (std::uint32_t i = 0; i < colours.size(); ++i) {
        const auto grey = static_cast<std::uint8_t>(std::min(i, highest) * 255 / highest);
        Colour shown{grey, grey, grey, 255};
        if (picture.palette)
            shown = colourOf(*picture.palette, firstOf(picture) + static_cast<std::int32_t>(i));
        if (alphaView)
            shown = {shown.alpha, shown.alpha, shown.alpha, 255};
        colours[i] =
            kOpaque | std::uint32_t{shown.red} << 16U | std::uint32_t{shown.green} << 8U | shown.blue;
    }
    return colours;
}

Result<PixelSheet, std::string> render(const LoadedPicture& picture, const RenderLook& look) {
    TextureCanvas canvas(picture.image);
    PixelSheet sheet;
    const std::int64_t width = std::int64_t{canvas.width()} * look.zoom;
    const std::int64_t height = std::int64_t{canvas.height()} * look.zoom;
    if (canvas.block().empty() || !isPictureSize(width, height) ||
        !sheet.make({static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)}, kOpaque))
        return say(CliText::ImageTooLarge);
    giveColours(canvas, displayColours(picture, look.alphaView));
    ViewLook viewLook;
    viewLook.zoom = look.zoom;
    viewLook.gridShown = false;
    const auto drawInto = [&](std::vector<std::uint32_t>& pixels) {
        Surface surface{pixels.data(), sheet.width, sheet.height, sheet.width, 0, 0};
        ViewRenderer(canvas, viewLook).draw(surface, {0, 0, sheet.width, sheet.height});
    };
    drawInto(sheet.pixels);
    if (!look.grid && !look.checkerboard)
        return sheet;
    const std::vector<std::uint32_t> withoutGrid = sheet.pixels;
    viewLook.gridShown = look.grid;
    drawInto(sheet.pixels);
    if (look.checkerboard)
        putOverCheckerboard(sheet, withoutGrid, canvas, alphasOf(picture), look.zoom);
    return sheet;
}

std::uint32_t checkerboardAt(std::int32_t x, std::int32_t y) noexcept {
    constexpr std::uint32_t kLight = 0xffcccccc;
    constexpr std::uint32_t kDark = 0xff999999;
    return ((x >> 3) + (y >> 3)) % 2 == 0 ? kLight : kDark;
}

} // namespace dyeworks
