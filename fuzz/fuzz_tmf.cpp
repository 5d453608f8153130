#include "Require.h"
#include "core/TmfFormat.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

using namespace dyeworks;

namespace {

// A damaged header may ask for 1 GiB of texels, and gets them; filling it thousands of times finds nothing.
constexpr std::int64_t kMaxTexels = 1 << 17;

void requireSameTexels(const TmfImage& a, const TmfImage& b) {
    require(a.width == b.width && a.height == b.height && a.bits == b.bits, "sides and depth come back");
    for (std::int32_t y = 0; y < a.height; ++y)
        for (std::int32_t x = 0; x < a.width; ++x)
            require(a.getTexel(x, y) == b.getTexel(x, y), "every texel comes back");
}

std::vector<std::byte> fileOf(const TmfImage& image) {
    const auto file = layOutTmf(image);
    require(file.has_value(), "an image that was read can be written");
    std::vector<std::byte> bytes(file->header.size() + file->body.size());
    std::ranges::copy(file->body, std::ranges::copy(file->header, bytes.begin()).out);
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = std::as_bytes(std::span(data, size));
    const auto header = parseTmfHeader(input);
    if (header && std::int64_t{header.value().width} * header.value().height > kMaxTexels)
        return 0;
    const auto image = parseTmf(input);
    require(!image || header, "an image is read only behind a good header");
    if (!image)
        return 0;

    const std::vector<std::byte> file = fileOf(image.value());
    const auto again = parseTmf(file);
    require(again.ok(), "a file that was written can be read");
    if (std::int64_t{image.value().width} * image.value().height <= 4096)
        requireSameTexels(image.value(), again.value());
    require(fileOf(again.value()) == file, "written files stay as they are");
    return 0;
}
