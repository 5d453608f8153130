#include "cli/PictureWork.h"

#include "cli/CliTexts.h"
#include "cli/FormatFaults.h"
#include "interchange/EntryColour.h"
#include "interchange/ReductionState.h"
#include "paint/CanvasDepth.h"
#include "paint/TexelCounts.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <memory>
#include <utility>

namespace dyeworks {

namespace {

using Fault = std::optional<std::string>;

/// A canvas of the image, or of 32 bits with a colour in each pixel.
std::unique_ptr<TextureCanvas> canvasOf(const LoadedPicture& picture) {
    if (!picture.isDirect())
        return std::make_unique<TextureCanvas>(picture.image);
    const Picture& direct = picture.direct;
    auto canvas = std::make_unique<TextureCanvas>();
    if (!canvas->Create(direct.width, direct.height, 1, 32))
        return canvas;
    for (std::int32_t y = 0; y < direct.height; ++y) {
        for (std::int32_t x = 0; x < direct.width; ++x)
            canvas->SetPixel(
                x, y,
                std::bit_cast<std::uint32_t>(
                    direct.pixels[static_cast<std::size_t>(std::int64_t{y} * direct.width + x)]));
    }
    return canvas;
}

/// Puts what was made of `canvasOf` back.
bool takeCanvas(LoadedPicture& picture, const TextureCanvas& canvas) {
    if (!picture.isDirect()) {
        std::unique_ptr<TmfImage> image = canvas.ToImage();
        if (image == nullptr)
            return false;
        picture.image = std::move(*image);
        return true;
    }
    Picture direct;
    direct.width = canvas.width();
    direct.height = canvas.height();
    direct.pixels.reserve(static_cast<std::size_t>(std::int64_t{direct.width} * direct.height));
    for (std::int32_t y = 0; y < direct.height; ++y) {
        for (std::int32_t x = 0; x < direct.width; ++x)
            direct.pixels.push_back(std::bit_cast<Colour>(canvas.GetPixel(x, y)));
    }
    picture.direct = std::move(direct);
    return true;
}

Fault transform(LoadedPicture& picture, const PictureWork& work) {
    if (!work.crop && !work.size && !work.turn)
        return std::nullopt;
    std::unique_ptr<TextureCanvas> canvas = canvasOf(picture);
    if (canvas->block().empty())
        return say(CliText::ImageTooLarge);
    if (work.crop) {
        const Rect& part = *work.crop;
        if (part.right >= canvas->width() || part.bottom >= canvas->height())
            return say(CliText::CropOutside,
                       {std::to_string(canvas->width()), std::to_string(canvas->height())});
        canvas = canvas->CopyRect(part.left, part.top, part.right, part.bottom);
    }
    if (canvas != nullptr && work.size)
        canvas = scaled(*canvas, *work.size);
    if (canvas != nullptr && work.turn)
        canvas = turned(*canvas, *work.turn);
    if (canvas == nullptr || !takeCanvas(picture, *canvas))
        return say(CliText::ImageTooLarge);
    return std::nullopt;
}

TexelCounts::Values countsOf(const TmfImage& image) {
    return TexelCounts::of(TextureCanvas(image));
}

/// The image in its colours.
Picture coloursOf(const LoadedPicture& picture) {
    const TmfImage& image = picture.image;
    const std::int32_t first = image.bits == 4 ? picture.firstEntry : 0;
    std::array<Colour, 256> colours;
    for (std::int32_t i = 0; i < 256; ++i)
        colours[static_cast<std::size_t>(i)] = colourOf(*picture.palette, first + i);
    Picture shown;
    shown.width = image.width;
    shown.height = image.height;
    shown.pixels.reserve(static_cast<std::size_t>(std::int64_t{image.width} * image.height));
    for (std::int32_t y = 0; y < image.height; ++y) {
        for (std::int32_t x = 0; x < image.width; ++x)
            shown.pixels.push_back(colours[image.getTexel(x, y) & 255U]);
    }
    return shown;
}

/// Whether the texels show the same in the other palette.
bool showsSameIn(const LoadedPicture& picture, const TlutData& palette, std::int32_t firstEntry) {
    const auto counts = countsOf(picture.image);
    const std::int32_t own = picture.image.bits == 4 ? picture.firstEntry : 0;
    const std::int32_t other = picture.image.bits == 4 ? firstEntry : 0;
    for (std::int32_t i = 0; i < 256; ++i) {
        if (counts[static_cast<std::size_t>(i)] > 0 &&
            (other + i >= palette.count || palette.colourType != picture.palette->colourType ||
             colourOf(*picture.palette, own + i) != colourOf(palette, other + i)))
            return false;
    }
    return true;
}

/// Gives a picture of colours texels, in the palette that is given or in one that is made.
Fault reduce(LoadedPicture& picture, const PictureWork& work) {
    const bool isGiven = work.palette.has_value();
    const std::int32_t bank = work.bank.value_or(0);
    ReductionState state(isGiven ? *work.palette : TlutData(), kBankSize * bank);
    ReductionChoices choices;
    const std::int32_t most = isGiven && work.bank ? kBankSize
                              : isGiven            ? work.palette->count
                                                   : work.colours.value_or(256);
    choices.bits = work.bits.value_or(most <= kBankSize ? 4 : 8);
    choices.colours = std::min(work.colours.value_or(256), choices.bits == 4 ? kBankSize : 256);
    choices.colourType = work.type.value_or(ColourType::Rgba);
    choices.dither = work.dither;
    choices.bank = bank;
    if (isGiven)
        choices.target = choices.bits == 4 && work.palette->count > kBankSize
                             ? ReductionTarget::CurrentBank
                             : ReductionTarget::CurrentPalette;
    state.choose(choices);
    const Result<ReducedPicture, InterchangeError> reduced =
        isGiven ? matchColours(picture.direct, state.givenEntries(), state.options())
                : reduceColours(picture.direct, state.options());
    if (!reduced)
        return describe(reduced.error());
    TmfImage image = imageOf(picture.direct.width, picture.direct.height, state.choices().bits,
                             reduced.value().indices.data());
    if (!image.holdsTexels())
        return say(CliText::OutOfMemory);
    picture.palette = isGiven ? *work.palette : state.paletteOf(reduced.value());
    picture.firstEntry = isGiven ? state.firstEntry() : 0;
    picture.image = std::move(image);
    picture.direct = {};
    return std::nullopt;
}

Fault takeDepth(LoadedPicture& picture, std::unique_ptr<TextureCanvas> canvas) {
    std::unique_ptr<TmfImage> image = canvas == nullptr ? nullptr : canvas->ToImage();
    if (image == nullptr)
        return say(CliText::OutOfMemory);
    picture.image = std::move(*image);
    return std::nullopt;
}

Fault toFourBits(LoadedPicture& picture, std::optional<std::int32_t> wished) {
    const TextureCanvas canvas(picture.image);
    const IndexCounts counts = countIndexes(canvas);
    const bool hasPalette = picture.palette.has_value();
    const std::int32_t banks = hasPalette ? std::max(picture.palette->count / kBankSize, 1) : 16;
    const std::int32_t bank = wished.value_or(fullestBank(counts, banks));
    if (!hasPalette && countOutside(counts, bank) > 0)
        return say(CliText::DepthNeedsPalette);
    std::array<ShownColour, 256> colours;
    for (std::int32_t i = 0; hasPalette && i < 256; ++i) {
        const Colour colour = colourOf(*picture.palette, i);
        colours[static_cast<std::size_t>(i)] = {colour.red, colour.green, colour.blue, colour.alpha};
    }
    picture.firstEntry = kBankSize * bank;
    return takeDepth(picture, inFourBits(canvas, nearestInBank(colours, bank), bank));
}

Fault toDepth(LoadedPicture& picture, const PictureWork& work) {
    if (!work.bits || *work.bits == picture.image.bits)
        return std::nullopt;
    if (*work.bits == 4)
        return toFourBits(picture, work.bank);
    const std::int32_t bank = picture.firstEntry / kBankSize;
    picture.firstEntry = 0;
    return takeDepth(picture, inEightBits(TextureCanvas(picture.image), bank));
}

/// Whether an image has to be made anew from its colours.
bool needsReduction(const LoadedPicture& picture, const PictureWork& work) {
    if (!picture.palette)
        return false;
    if (work.palette)
        return !showsSameIn(picture, *work.palette, kBankSize * work.bank.value_or(0));
    const auto counts = countsOf(picture.image);
    return work.colours && std::ranges::count_if(counts, [](std::uint64_t count) { return count > 0; }) >
                               std::int64_t{*work.colours};
}

std::optional<std::int32_t> takeNumber(std::string_view& text) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

bool takeLetter(std::string_view& text, char letter) {
    if (text.empty() || text.front() != letter)
        return false;
    text.remove_prefix(1);
    return true;
}

} // namespace

Fault workOn(LoadedPicture& picture, const PictureWork& work) {
    if (Fault fault = transform(picture, work))
        return fault;
    if (!picture.isDirect() && needsReduction(picture, work))
        picture.direct = coloursOf(picture);
    if (picture.isDirect())
        return reduce(picture, work);
    if (work.palette) {
        picture.palette = work.palette;
        picture.firstEntry = kBankSize * work.bank.value_or(0);
    }
    return toDepth(picture, work);
}

std::optional<Size> parseSize(std::string_view text) {
    const std::optional<std::int32_t> width = takeNumber(text);
    if (!width || !takeLetter(text, 'x'))
        return std::nullopt;
    const std::optional<std::int32_t> height = takeNumber(text);
    if (!height || !text.empty() || !canHaveSize({*width, *height}, 8))
        return std::nullopt;
    return Size{*width, *height};
}

std::optional<Rect> parsePart(std::string_view text) {
    const std::optional<std::int32_t> left = takeNumber(text);
    if (!left || *left > kLongestSide || !takeLetter(text, ','))
        return std::nullopt;
    const std::optional<std::int32_t> top = takeNumber(text);
    if (!top || *top > kLongestSide || !takeLetter(text, ','))
        return std::nullopt;
    const std::optional<Size> size = parseSize(text);
    if (!size)
        return std::nullopt;
    return Rect{*left, *top, *left + size->width - 1, *top + size->height - 1};
}

} // namespace dyeworks
