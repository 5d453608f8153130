#include "Require.h"
#include "interchange/PngFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>
#include <zlib.h>

using namespace dyeworks;

namespace {

constexpr std::size_t kSignature = 8;
constexpr std::size_t kAroundData = 12; ///< Length, type and check sum of a chunk.
constexpr std::uint64_t kMostPixels = 1U << 20U;

std::uint32_t number(const std::vector<std::uint8_t>& file, std::size_t at) {
    return std::uint32_t{file[at]} << 24U | std::uint32_t{file[at + 1]} << 16U |
           std::uint32_t{file[at + 2]} << 8U | file[at + 3];
}

/// With check sums that are right: else hardly a change would come further than to them.
std::vector<std::uint8_t> summedUp(std::vector<std::uint8_t> file) {
    for (std::size_t at = kSignature; at + kAroundData <= file.size();) {
        const std::size_t size = number(file, at);
        if (size > file.size() - at - kAroundData)
            break;
        const auto sum = static_cast<std::uint32_t>(crc32(0, &file[at + 4], static_cast<unsigned>(size + 4)));
        for (unsigned i = 0; i < 4; ++i)
            file[at + 8 + size + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
        at += size + kAroundData;
    }
    return file;
}

/// What a few bytes can claim takes the memory and the time of many runs.
bool isHuge(const std::vector<std::uint8_t>& file) {
    return file.size() >= 24 && std::uint64_t{number(file, 16)} * number(file, 20) > kMostPixels;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> input = summedUp({data, data + size});
    if (isHuge(input))
        return 0;
    const auto read = readPng(std::as_bytes(std::span(input)));
    if (!read)
        return 0;
    const Picture& picture = read.value().picture;
    const auto pixels = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    require(isPictureSize(picture.width, picture.height), "the sides are possible");
    if (!picture.isIndexed()) {
        require(picture.pixels.size() == pixels, "each pixel is there");
        return 0;
    }
    require(picture.indices.size() == pixels, "each index is there");
    require(*std::ranges::max_element(picture.indices) < picture.colours.size(), "each index has a colour");

    TextureReport report;
    const auto texture = textureOf(read.value(), report);
    require(texture.ok(), "a texture is made");
    const auto file = writePng(texture.value().image, &texture.value().palette, texture.value().firstEntry);
    require(file.ok(), "what was read can be written");
    const auto again = readPng(file.value());
    require(again.ok() && again.value().picture.indices == picture.indices, "the texels come back");
    const auto back = textureOf(again.value(), report);
    require(back.ok() && report.changed == 0, "nothing is taken for changed");
    require(back.value().palette == texture.value().palette, "the palette comes back");
    require(back.value().firstEntry == texture.value().firstEntry, "the bank comes back");
    return 0;
}
