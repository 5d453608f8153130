#include "paint/BackgroundPicture.h"

#include "paint/BmpFormat.h"
#include "paint/PixelAccess.h"
#include "paint/TextureCanvas.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <new>

namespace dyeworks {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000;
/// Of 4 bytes each; a bitmap of few colours can have far more in a small file.
constexpr std::int64_t kMostPixels = TextureCanvas::kMaxBlockSize / 4;

std::uint32_t colourOf(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return kOpaque | red << 16U | green << 8U | blue;
}

/// The display colours of the bitmap's table; a value beyond a short table is black.
std::vector<std::uint32_t> tableOf(const BmpImage& bitmap) {
    std::vector<std::uint32_t> table(bmp::fullColourCount(bitmap.bitsPerPixel), kOpaque);
    const auto channel = [&](std::size_t at) { return std::to_integer<std::uint32_t>(bitmap.colours[at]); };
    for (std::size_t i = 0; i < table.size() && (i + 1) * bitmap.colourSize <= bitmap.colours.size(); ++i) {
        const std::size_t at = i * bitmap.colourSize;
        table[i] = colourOf(channel(at + 2), channel(at + 1), channel(at));
    }
    return table;
}

/// The display colour of a pixel that holds its colour itself.
std::uint32_t directColour(std::uint32_t value, std::uint16_t bits) {
    if (bits != 16)
        return kOpaque | (value & 0xFFFFFFU);
    // Five bits a channel; the upper ones repeated below make full white of 31.
    const auto channel = [value](unsigned shift) {
        const std::uint32_t five = value >> shift & 31U;
        return five << 3U | five >> 2U;
    };
    return colourOf(channel(10), channel(5), channel(0));
}

std::vector<std::uint32_t> pixelsOf(const BmpImage& bitmap) {
    std::vector<std::uint32_t> pixels;
    visitDepth<PixelAccess>(bitmap.bitsPerPixel, [&](auto access) {
        if (access.kMask == 0)
            return;
        pixels.reserve(static_cast<std::size_t>(std::int64_t{bitmap.width} * bitmap.height));
        const std::vector<std::uint32_t> table = tableOf(bitmap);
        const std::int64_t stride = bmp::stride(bitmap.width, bitmap.bitsPerPixel);
        const auto* rows = reinterpret_cast<const std::uint8_t*>(bitmap.rows.data());
        for (std::int64_t y = 0; y < bitmap.height; ++y) {
            const std::uint8_t* row = rows + stride * (bitmap.topDown ? y : bitmap.height - 1 - y);
            for (std::int64_t x = 0; x < bitmap.width; ++x) {
                const std::uint32_t value = access.get(row, x);
                pixels.push_back(table.empty() ? directColour(value, bitmap.bitsPerPixel) : table[value]);
            }
        }
    });
    return pixels;
}

} // namespace

BackgroundPicture BackgroundPicture::read(const std::string& path) {
    const Result<ByteBuffer, FileError> file = platform().files().read(path);
    if (!file)
        return {};
    const Result<BmpImage, BmpError> bitmap = parseBmp(file.value().bytes());
    if (!bitmap) {
        if (bitmap.error() == BmpError::Compressed)
            platform().messages().show({text(StringId::BmpErrorCompressed), "", MessageButtons::Ok,
                                        MessageIcon::None, MessageOwner::None});
        return {};
    }
    if (std::int64_t{bitmap.value().width} * bitmap.value().height > kMostPixels)
        return {};
    try {
        return {bitmap.value().width, bitmap.value().height, pixelsOf(bitmap.value())};
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace dyeworks
