#include "interchange/RawTexture.h"

#include <algorithm>
#include <new>
#include <span>
#include <utility>

namespace dyeworks {

namespace {

bool hasTexels(const TmfImage& image) {
    return (image.bits == 4 || image.bits == 8) && image.width > 0 && image.height > 0 && image.holdsTexels();
}

InterchangeError errorOf(InterchangeError::Kind kind) {
    return {kind, {}, 0, 0};
}

} // namespace

ChosenEntries chosenEntries(const TmfImage& image, const TlutData* palette, std::int32_t firstEntry,
                            const SourceOptions& options) {
    if (!options.withPalette || palette == nullptr || palette->entries == nullptr || palette->count <= 0)
        return {};
    if (options.wholePalette || image.bits != 4)
        return {0, palette->count};
    // A palette without such a bank shows its first.
    const std::int32_t first = firstEntry >= 0 && firstEntry < palette->count ? firstEntry : 0;
    return {first, std::min(palette->count - first, kBankSize)};
}

Result<std::vector<std::byte>, InterchangeError> rawTexels(const TmfImage& image) {
    if (!hasTexels(image))
        return errorOf(InterchangeError::Kind::NoTexels);
    try {
        std::vector<std::byte> bytes;
        const auto row = static_cast<std::size_t>(rawRowBytes(image));
        const auto stride = static_cast<std::size_t>(image.stride());
        const std::span<const std::byte> block = image.block();
        bytes.reserve(row * static_cast<std::size_t>(image.height));
        for (auto y = static_cast<std::size_t>(image.height); y-- > 0;) {
            const auto texels = block.subspan(y * stride, row);
            bytes.insert(bytes.end(), texels.begin(), texels.end());
            // What stands behind the last texel of an odd row in memory is anybody's.
            if (image.bits == 4 && image.width % 2 != 0)
                bytes.back() &= std::byte{0xF0};
        }
        return bytes;
    } catch (const std::bad_alloc&) {
        return errorOf(InterchangeError::Kind::NoMemory);
    }
}

std::vector<std::byte> rawPalette(const TlutData& palette, std::int32_t first, std::int32_t count) {
    std::vector<std::byte> bytes;
    for (std::int32_t i = first; i < first + count; ++i) {
        const std::uint16_t entry = palette.getEntry(i);
        bytes.push_back(static_cast<std::byte>(entry >> 8U));
        bytes.push_back(static_cast<std::byte>(entry));
    }
    return bytes;
}

Result<std::vector<std::byte>, InterchangeError> rawBytes(const TmfImage& image, const TlutData* palette,
                                                          std::int32_t firstEntry,
                                                          const SourceOptions& options) {
    std::vector<std::byte> bytes;
    if (options.withTexels) {
        auto texels = rawTexels(image);
        if (!texels)
            return texels.error();
        bytes = std::move(texels).value();
    }
    const ChosenEntries range = chosenEntries(image, palette, firstEntry, options);
    if (bytes.empty() && range.count == 0)
        return errorOf(InterchangeError::Kind::NoColours);
    if (range.count == 0)
        return bytes;
    try {
        const auto alignment = static_cast<std::size_t>(std::max(options.alignment, 1));
        bytes.resize((bytes.size() + alignment - 1) / alignment * alignment);
        const std::vector<std::byte> entries = rawPalette(*palette, range.first, range.count);
        bytes.insert(bytes.end(), entries.begin(), entries.end());
        return bytes;
    } catch (const std::bad_alloc&) {
        return errorOf(InterchangeError::Kind::NoMemory);
    }
}

} // namespace dyeworks
