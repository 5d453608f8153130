#include "core/TmfImage.h"

#include "core/PlainArray.h"
#include "core/Report.h"
#include "core/TmfFormat.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <cstdio>
#include <optional>
#include <type_traits>
#include <utility>

namespace dyeworks {

static_assert(std::is_standard_layout_v<TmfImage> && offsetof(TmfImage, width) == 0 &&
                  offsetof(TmfImage, height) == 4 && offsetof(TmfImage, bits) == 8 &&
                  offsetof(TmfImage, texels) == 16,
              "plug-ins rely on this layout");

namespace {

constexpr std::int64_t kMaxBlockSize = std::int64_t{1} << 30;

/// Rows are made of 32-bit words, and no texel lies across two of them; one of 24 bits fills a word.
std::int64_t strideOf(std::int64_t width, std::int32_t bits) {
    if (width < 0)
        return 0;
    switch (bits) {
    case 4:
        return (width + 7) / 8 * 4;
    case 8:
        return (width + 3) / 4 * 4;
    case 16:
        return (width + 1) / 2 * 4;
    case 24:
    case 32:
        return width * 4;
    default:
        return 0;
    }
}

/// Nothing for an image that is refused: a side or depth that none has, or a block beyond the limit.
std::optional<std::int64_t> blockSizeOf(std::int32_t width, std::int32_t height, std::int32_t bits) {
    if (width < 0 || width > TmfImage::kMaxSide || height < 0 || height > TmfImage::kMaxSide)
        return std::nullopt;
    if (bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
        return std::nullopt;
    const std::int64_t size = strideOf(width, bits) * height;
    if (size > kMaxBlockSize)
        return std::nullopt;
    return size;
}

bool contains(const TmfImage& image, std::int32_t x, std::int32_t y) {
    return image.texels != nullptr && x >= 0 && x < image.width && y >= 0 && y < image.height;
}

/// Start of the row `y`, counted from the top, in a block that begins with the bottom row.
std::uint8_t* rowOf(const TmfImage& image, std::int32_t y) {
    return image.texels + image.stride() * (std::int64_t{image.height} - 1 - y);
}

std::string hexadecimal(std::uint32_t value) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned>(value));
    return digits;
}

} // namespace

TmfImage::TmfImage(TmfImage&& other) noexcept
    : width(std::exchange(other.width, 0))
    , height(std::exchange(other.height, 0))
    , bits(std::exchange(other.bits, 0))
    , texels(std::exchange(other.texels, nullptr)) {}

TmfImage& TmfImage::operator=(TmfImage&& other) noexcept {
    if (this == &other)
        return *this;
    clear();
    width = std::exchange(other.width, 0);
    height = std::exchange(other.height, 0);
    bits = std::exchange(other.bits, 0);
    texels = std::exchange(other.texels, nullptr);
    return *this;
}

TmfImage::~TmfImage() {
    clear();
}

bool TmfImage::create(std::int32_t newWidth, std::int32_t newHeight, std::int32_t newBits) {
    return createWith(allocatePlainArray<std::uint8_t>, newWidth, newHeight, newBits);
}

bool TmfImage::createUnfilled(std::int32_t newWidth, std::int32_t newHeight, std::int32_t newBits) {
    return createWith(allocateUnfilledPlainArray<std::uint8_t>, newWidth, newHeight, newBits);
}

bool TmfImage::createWith(Allocate allocate, std::int32_t newWidth, std::int32_t newHeight,
                          std::int32_t newBits) {
    clear();
    const auto size = blockSizeOf(newWidth, newHeight, newBits);
    if (!size)
        return false;
    texels = allocate(static_cast<std::size_t>(*size));
    if (texels == nullptr)
        return false;
    width = newWidth;
    height = newHeight;
    bits = newBits;
    return true;
}

void TmfImage::clear() {
    freePlainArray(texels);
    width = height = bits = 0;
}

std::uint32_t TmfImage::getTexel(std::int32_t x, std::int32_t y) const {
    if (!contains(*this, x, y))
        return 0;
    const std::uint8_t* const row = rowOf(*this, y);
    const auto column = static_cast<std::size_t>(x);
    const auto byteAt = [row](std::size_t index) { return std::uint32_t{row[index]}; };
    switch (bits) {
    case 4:
        return x % 2 == 0 ? byteAt(column / 2) >> 4 : byteAt(column / 2) & 0x0FU;
    case 8:
        return byteAt(column);
    case 16:
        return byteAt(2 * column) << 8 | byteAt(2 * column + 1);
    case 24:
        return byteAt(4 * column) << 16 | byteAt(4 * column + 1) << 8 | byteAt(4 * column + 2);
    case 32:
        return byteAt(4 * column) << 24 | byteAt(4 * column + 1) << 16 | byteAt(4 * column + 2) << 8 |
               byteAt(4 * column + 3);
    default:
        return 0;
    }
}

bool TmfImage::setTexel(std::int32_t x, std::int32_t y, std::uint32_t value) {
    if (!contains(*this, x, y))
        return false;
    std::uint8_t* const row = rowOf(*this, y);
    const auto column = static_cast<std::size_t>(x);
    const auto put = [row](std::size_t index, std::uint32_t byte) {
        row[index] = static_cast<std::uint8_t>(byte & 0xFFU);
    };
    switch (bits) {
    case 4: {
        const std::uint32_t pair = row[column / 2];
        put(column / 2,
            x % 2 == 0 ? (value & 0x0FU) << 4 | (pair & 0x0FU) : (pair & 0xF0U) | (value & 0x0FU));
        return true;
    }
    case 8:
        put(column, value);
        return true;
    case 16:
        put(2 * column, value >> 8);
        put(2 * column + 1, value);
        return true;
    case 24:
        value <<= 8;
        [[fallthrough]];
    case 32:
        put(4 * column, value >> 24);
        put(4 * column + 1, value >> 16);
        put(4 * column + 2, value >> 8);
        put(4 * column + 3, value);
        return true;
    default:
        return false;
    }
}

bool TmfImage::readTmf(const std::string& path) {
    clear();
    auto file = platform().files().openForReading(path);
    if (!file) {
        reportTmf(text(StringId::FormatOpenFailed, {displayPath(path)}),
                  describe(file.error()) + ' ' + adviceOnOpening(file.error()));
        return false;
    }
    auto parsed = parseTmf(*file.value());
    if (parsed) {
        *this = std::move(parsed).value();
        return true;
    }
    const TmfError& error = parsed.error();
    switch (error.kind) {
    case TmfError::Kind::ShortHeader:
        reportTmf(text(StringId::TmfReadFailed, {displayPath(path)}));
        break;
    case TmfError::Kind::ImproperTag:
        reportTmf(text(StringId::TmfImproperTag, {hexadecimal(error.tag), std::to_string(error.bits)}));
        break;
    case TmfError::Kind::NoImage:
        reportTmf(text(StringId::TmfNoMemory), adviceOnOpening(FileError::TooLarge));
        break;
    }
    return false;
}

bool TmfImage::saveTmf(const std::string& path) const {
    return !writeTmf(*this, path);
}

std::int64_t TmfImage::stride() const {
    return strideOf(width, bits);
}

std::int64_t TmfImage::blockSize() const {
    return blockSizeOf(width, height, bits).value_or(0);
}

bool TmfImage::holdsTexels() const {
    return texels != nullptr && blockSizeOf(width, height, bits);
}

std::span<std::byte> TmfImage::block() {
    if (!holdsTexels())
        return {};
    return std::as_writable_bytes(std::span(texels, static_cast<std::size_t>(blockSize())));
}

std::span<const std::byte> TmfImage::block() const {
    if (!holdsTexels())
        return {};
    return std::as_bytes(std::span(texels, static_cast<std::size_t>(blockSize())));
}

} // namespace dyeworks
