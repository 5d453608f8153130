#pragma once

#include "core/TextureLookupTable.h"
#include "paint/IndexThumbnail.h"
#include "platform/Text.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

class CDyeworksDoc;
class PaletteSet;

/// A way in which an image could be shown.
struct ImageVariant {
    std::string caption; ///< Short, beneath the picture.
    std::string name;
    std::string tip;
    std::string key; ///< Of the palette.
    IndexThumbnail::Colours colours{};
    bool isOwn = false; ///< This is how the image is shown.
};

/// The open palettes, one of which may show in other colours for the time being, as while a value of it is
/// previewed.
struct ShownPalettes {
    const PaletteSet& set;
    std::string passingKey;
    const TextureLookupTable* passing = nullptr;

    /// A stored palette of the set as it shows now.
    [[nodiscard]] const TextureLookupTable& shown(const TextureLookupTable& stored) const {
        return passing != nullptr && passingKey == stored.path ? *passing : stored;
    }
};

/// Why there are no banks to choose from; nothing when there are. Without an image that has a palette there
/// are no variants at all.
[[nodiscard]] std::optional<StringId> noBanksReason(const CDyeworksDoc* image);
[[nodiscard]] std::optional<StringId> noPalettesReason(const CDyeworksDoc* image);

/// The image through each bank of its palette, in their order. There are banks.
[[nodiscard]] std::vector<ImageVariant> bankVariants(const CDyeworksDoc& image,
                                                     const ShownPalettes& palettes);
/// The image through each open palette, from the bank of the image on as far as the palette reaches there, in
/// the order of the keys.
[[nodiscard]] std::vector<ImageVariant> paletteVariants(const CDyeworksDoc& image,
                                                        const ShownPalettes& palettes);

} // namespace dyeworks
