#include "viewer/ViewerPicture.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace dyeworks::plugins {

namespace {

constexpr std::array<std::uint8_t, 4> kBeyondPalette{0, 0, 0, 255};

bool canBeShown(const PlugInPicture& picture) {
    const TmfImage* const image = picture.image;
    const TlutData* const palette = picture.palette;
    return image != nullptr && image->texels != nullptr && (image->bits == 4 || image->bits == 8) &&
           image->height > 0 && image->height <= 65536 && image->width > 0 &&
           DW_stride(image->width, image->bits) > 0 && palette != nullptr && palette->entries != nullptr;
}

ViewerPicture::Colours coloursOf(const PlugInPicture& picture) {
    ViewerPicture::Colours colours;
    const std::int64_t first = picture.image->bits == 4 ? picture.paletteNumber : 0;
    for (std::size_t value = 0; value < colours.size(); ++value) {
        const std::int64_t entry = first + static_cast<std::int64_t>(value);
        if (entry >= 0 && entry < picture.palette->count)
            DW_colour(picture.palette, static_cast<std::int32_t>(entry), colours[value].data());
        else
            colours[value] = kBeyondPalette;
    }
    return colours;
}

} // namespace

std::optional<ViewerPicture::Rows> ViewerPicture::take(const PlugInPicture& picture) {
    if (!canBeShown(picture))
        return std::nullopt;
    const TmfImage& image = *picture.image;
    Rows changed{0, image.height - 1};
    const Colours colours = coloursOf(picture);
    if (image.width != image_.width || image.height != image_.height || image.bits != image_.bits)
        takeAll(image);
    else if (const Rows rows = takeDifference(image); colours == colours_)
        changed = rows;
    colours_ = colours;
    return changed;
}

void ViewerPicture::takeAll(const TmfImage& image) {
    const std::size_t size = DW_stride(image.width, image.bits) * static_cast<std::size_t>(image.height);
    std::vector<std::uint8_t> texels(image.texels, image.texels + size);
    texels_ = std::move(texels);
    image_ = image;
    image_.texels = texels_.data();
}

ViewerPicture::Rows ViewerPicture::takeDifference(const TmfImage& image) {
    const std::size_t stride = DW_stride(image.width, image.bits);
    Rows changed{image.height, -1};
    for (int y = 0; y < image.height; ++y) {
        const std::uint8_t* const row = DW_row(&image, y);
        std::uint8_t* const kept = DW_row(&image_, y);
        if (std::memcmp(kept, row, stride) == 0)
            continue;
        std::memcpy(kept, row, stride);
        changed = {std::min(changed.first, y), y};
    }
    return changed;
}

void ViewerPicture::readRow(int x, int y, std::span<std::uint8_t> values) const {
    const std::uint8_t* const row = DW_row(&image_, y);
    if (image_.bits == 8) {
        std::copy_n(row + x, values.size(), values.data());
        return;
    }
    auto at = static_cast<std::size_t>(x);
    for (std::uint8_t& value : values) {
        const unsigned pair = row[at / 2];
        value = static_cast<std::uint8_t>(at % 2 == 0 ? pair >> 4 : pair & 0x0Fu);
        ++at;
    }
}

} // namespace dyeworks::plugins
