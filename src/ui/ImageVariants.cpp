#include "ui/ImageVariants.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "palette/PaletteCells.h"
#include "platform/StringId.h"
#include "platform/Text.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr std::int32_t kBanks = kLastBank + 1;
constexpr std::uint32_t kOpaque = 0xff000000;

/// What the values of an image show from an entry on; black where the palette has ended.
IndexThumbnail::Colours coloursFrom(const TextureLookupTable& palette, std::int32_t first,
                                    std::uint32_t count) {
    IndexThumbnail::Colours colours;
    colours.fill(kOpaque);
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint8_t blue = 0;
        std::uint8_t green = 0;
        std::uint8_t red = 0;
        std::uint8_t reserved = 0;
        if (palette.toRgbQuad(first + static_cast<std::int32_t>(i), blue, green, red, reserved))
            colours[i] = kOpaque | std::uint32_t{red} << 16U | std::uint32_t{green} << 8U | blue;
    }
    return colours;
}

std::uint32_t valuesOf(const CDyeworksDoc& image) {
    return std::min(image.canvas().GetColorCount(), std::uint32_t{256});
}

/// The first entry of the image's bank, or 0 where the palette does not reach that far.
std::int32_t firstEntryIn(const TextureLookupTable& palette, const CDyeworksDoc& image) {
    const auto values = static_cast<std::int32_t>(valuesOf(image));
    const std::int32_t first = values == kBankSize ? image.paletteValue() : 0;
    return first >= 0 && first <= palette.table.count - values ? first : 0;
}

} // namespace

std::optional<StringId> noPalettesReason(const CDyeworksDoc* image) {
    if (image == nullptr)
        return StringId::BanksNoImage;
    if (!image->IsAttached())
        return StringId::BanksNoPalette;
    return std::nullopt;
}

std::optional<StringId> noBanksReason(const CDyeworksDoc* image) {
    if (const auto reason = noPalettesReason(image))
        return reason;
    if (valuesOf(*image) != static_cast<std::uint32_t>(kBankSize))
        return StringId::BanksEightBits;
    if (image->GetAttachedPalette()->table.count < kBanks * kBankSize)
        return StringId::BanksSmallPalette;
    return std::nullopt;
}

std::vector<ImageVariant> bankVariants(const CDyeworksDoc& image, const ShownPalettes& palettes) {
    const TextureLookupTable& stored = *image.GetAttachedPalette();
    const TextureLookupTable& palette = palettes.shown(stored);
    const std::int32_t own = image.firstEntryFor(palette);
    std::vector<ImageVariant> variants;
    for (std::int32_t bank = 0; bank < kBanks; ++bank) {
        const std::int32_t first = bank * kBankSize;
        const std::string number = std::to_string(bank);
        variants.push_back(
            {number, text(StringId::BankName, {number}),
             text(StringId::BankTip, {number, std::to_string(first), std::to_string(first + kBankSize - 1)}),
             stored.path, coloursFrom(palette, first, valuesOf(image)), first == own});
    }
    return variants;
}

std::vector<ImageVariant> paletteVariants(const CDyeworksDoc& image, const ShownPalettes& palettes) {
    std::vector<ImageVariant> variants;
    for (const auto& [key, stored] : palettes.set.palettes) {
        const TextureLookupTable& palette = palettes.shown(*stored);
        const bool isOwn = stored.get() == image.GetAttachedPalette();
        const std::int32_t first = isOwn ? image.firstEntryFor(palette) : firstEntryIn(palette, image);
        variants.push_back({stored->title, stored->title, text(StringId::BankPaletteTip, {stored->title}),
                            key, coloursFrom(palette, first, valuesOf(image)), isOwn});
    }
    return variants;
}

} // namespace dyeworks
