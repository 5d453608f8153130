#include "interchange/ExifTurn.h"

#include <cstdint>
#include <cstring>
#include <utility>

namespace dyeworks {

namespace {

/// The numbers of a TIFF block, in the order of bytes that it tells; 0 beyond its end.
class TiffBlock {
public:
    explicit TiffBlock(std::span<const std::byte> bytes) noexcept
        : bytes_(bytes)
        , isBigEndian_(!bytes.empty() && bytes[0] == std::byte{'M'}) {}

    [[nodiscard]] std::uint32_t number(std::size_t at, std::size_t size) const noexcept {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t place = at + (isBigEndian_ ? i : size - 1 - i);
            value =
                value << 8U | (place < bytes_.size() ? std::to_integer<std::uint32_t>(bytes_[place]) : 0U);
        }
        return value;
    }

private:
    std::span<const std::byte> bytes_;
    bool isBigEndian_;
};

} // namespace

int exifTurn(std::span<const std::byte> segment) noexcept {
    constexpr std::size_t kEntrySize = 12;
    constexpr std::uint32_t kOrientation = 0x0112;
    if (segment.size() < 14 || std::memcmp(segment.data(), "Exif\0", 6) != 0)
        return 1;
    const TiffBlock block(segment.subspan(6));
    const std::size_t table = block.number(4, 4);
    const std::uint32_t count = block.number(table, 2);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t entry = table + 2 + kEntrySize * i;
        if (block.number(entry, 2) != kOrientation)
            continue;
        const std::uint32_t turn = block.number(entry + 8, 2);
        return turn >= 1 && turn <= 8 ? static_cast<int>(turn) : 1;
    }
    return 1;
}

Picture turned(Picture picture, int turn) {
    if (turn <= 1)
        return picture;
    const bool fromRight = turn == 2 || turn == 3 || turn == 7 || turn == 8;
    const bool fromBelow = turn == 3 || turn == 4 || turn == 6 || turn == 7;
    const bool isTransposed = turn >= 5;
    Picture seen;
    seen.width = isTransposed ? picture.height : picture.width;
    seen.height = isTransposed ? picture.width : picture.height;
    seen.pixels.reserve(picture.pixels.size());
    for (std::int32_t y = 0; y < seen.height; ++y) {
        for (std::int32_t x = 0; x < seen.width; ++x) {
            const std::int32_t column = isTransposed ? y : x;
            const std::int32_t row = isTransposed ? x : y;
            const std::int64_t from =
                std::int64_t{fromBelow ? picture.height - 1 - row : row} * picture.width +
                (fromRight ? picture.width - 1 - column : column);
            seen.pixels.push_back(picture.pixels[static_cast<std::size_t>(from)]);
        }
    }
    return seen;
}

} // namespace dyeworks
