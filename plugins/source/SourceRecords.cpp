#include "source/SourceRecords.h"

#include "dyeworks/plugin.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace dyeworks::plugins {

std::optional<SourceRecords> recordsOf(const ::PlugInPicture& picture) {
    SourceRecords records;
    const ::TmfImage& image = *picture.image;
    if (!records.image.create(image.width, image.height, image.bits))
        return std::nullopt;
    const std::span<std::byte> block = records.image.block();
    std::ranges::copy(std::as_bytes(std::span(image.texels, block.size())), block.begin());
    if (picture.palette != nullptr) {
        TlutData& palette = records.palette.emplace();
        if (!palette.create(picture.palette->count, static_cast<ColourType>(picture.palette->colourType)))
            return std::nullopt;
        std::copy_n(picture.palette->entries, palette.count, palette.entries);
    }
    records.firstEntry = picture.paletteNumber;
    return records;
}

} // namespace dyeworks::plugins
