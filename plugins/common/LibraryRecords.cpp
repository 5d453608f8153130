#include "common/LibraryRecords.h"

#include "dyeworks/plugin.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace dyeworks::plugins {

std::optional<LibraryRecords> recordsOf(const ::PlugInPicture& picture) {
    LibraryRecords records;
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

ImageRecord recordOf(const TmfImage& image) {
    ImageRecord record(DW_newImage(image.width, image.height, image.bits));
    if (record != nullptr) {
        const std::span<const std::byte> block = image.block();
        std::ranges::copy(block, std::as_writable_bytes(std::span(record->texels, block.size())).begin());
    }
    return record;
}

} // namespace dyeworks::plugins
