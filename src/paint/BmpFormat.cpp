#include "paint/BmpFormat.h"

#include "paint/LittleEndian.h"

#include <algorithm>
#include <limits>

namespace dyeworks {

namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kVersion4HeaderSize = 108;
constexpr std::uint32_t kVersion5HeaderSize = 124;

/// What the info header tells; offsets count from its first byte.
struct InfoHeader {
    std::uint32_t size = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::uint16_t planes = 0;
    std::uint16_t bits = 0;
    std::uint32_t horizontalResolution = 0;
    std::uint32_t verticalResolution = 0;
    std::uint32_t coloursUsed = 0;

    [[nodiscard]] bool isCore() const noexcept { return size == kCoreHeaderSize; }
    [[nodiscard]] std::size_t colourSize() const noexcept { return isCore() ? 3 : 4; }
    [[nodiscard]] std::int64_t colourCount() const noexcept {
        return coloursUsed != 0 ? coloursUsed : bmp::fullColourCount(bits);
    }
};

Result<InfoHeader, BmpError> parseInfoHeader(std::span<const std::byte> bitmap) {
    constexpr std::size_t kCompression = 16;
    if (bitmap.size() < sizeof(std::uint32_t))
        return BmpError::Truncated;
    InfoHeader header;
    header.size = readU32(bitmap, 0);
    if (header.isCore()) {
        if (bitmap.size() < kCoreHeaderSize)
            return BmpError::Truncated;
        header.width = readU16(bitmap, 4);
        header.height = readU16(bitmap, 6);
        header.planes = readU16(bitmap, 8);
        header.bits = readU16(bitmap, 10);
        return header;
    }
    if (header.size < bmp::kInfoHeaderSize)
        return BmpError::NotABitmap;
    if (bitmap.size() < header.size)
        return BmpError::Truncated;
    // Every longer header begins like the one of 40 bytes, so a compressed bitmap is recognised in any.
    if (readU32(bitmap, kCompression) != 0)
        return BmpError::Compressed;
    if (header.size != bmp::kInfoHeaderSize && header.size != kVersion4HeaderSize &&
        header.size != kVersion5HeaderSize)
        return BmpError::NotABitmap;
    const auto field = [](std::size_t inFile) { return inFile - bmp::kFileHeaderSize; };
    header.width = readI32(bitmap, field(bmp::kWidth));
    header.height = readI32(bitmap, field(bmp::kHeight));
    header.planes = readU16(bitmap, field(bmp::kPlanes));
    header.bits = readU16(bitmap, field(bmp::kBits));
    header.horizontalResolution = readU32(bitmap, field(bmp::kHorizontalResolution));
    header.verticalResolution = readU32(bitmap, field(bmp::kVerticalResolution));
    header.coloursUsed = readU32(bitmap, field(bmp::kColoursUsed));
    return header;
}

/// Cuts colours and rows out of the bitmap. `tableCount` colours follow the header; `rowsAt` is where the
/// rows begin.
Result<BmpImage, BmpError> cutOut(std::span<const std::byte> bitmap, const InfoHeader& header,
                                  std::int64_t tableCount, std::int64_t rowsAt) {
    const std::int64_t height = header.height < 0 ? -header.height : header.height;
    if (header.width < 0 || height > std::numeric_limits<std::int32_t>::max())
        return BmpError::BadSize;

    const auto size = static_cast<std::int64_t>(bitmap.size());
    const auto colourSize = static_cast<std::int64_t>(header.colourSize());
    if (tableCount > (size - header.size) / colourSize)
        return BmpError::Truncated;
    const std::int64_t stride = bmp::stride(header.width, header.bits);
    const std::int64_t room = size - rowsAt;
    if (room < 0 || (height > 0 && stride > room / height))
        return BmpError::Truncated;

    BmpImage image;
    image.width = static_cast<std::int32_t>(header.width);
    image.height = static_cast<std::int32_t>(height);
    image.planes = header.planes;
    image.bitsPerPixel = header.bits;
    image.horizontalResolution = header.horizontalResolution;
    image.verticalResolution = header.verticalResolution;
    image.topDown = header.height < 0;
    image.colourSize = header.colourSize();
    const std::int64_t kept = std::min<std::int64_t>(tableCount, bmp::fullColourCount(header.bits));
    image.colours = bitmap.subspan(header.size, static_cast<std::size_t>(kept * colourSize));
    image.rows = bitmap.subspan(static_cast<std::size_t>(rowsAt), static_cast<std::size_t>(stride * height));
    return image;
}

} // namespace

Result<BmpImage, BmpError> parseBmp(std::span<const std::byte> file) {
    if (file.size() < bmp::kFileHeaderSize)
        return BmpError::Truncated;
    const std::int64_t fileSize = readI32(file, bmp::kFileSize);
    if (readU16(file, bmp::kType) != bmp::kFileType || fileSize <= 0)
        return BmpError::NotABitmap;
    if (fileSize < static_cast<std::int64_t>(bmp::kFileHeaderSize) ||
        fileSize > static_cast<std::int64_t>(file.size()))
        return BmpError::Truncated;

    const std::span<const std::byte> bitmap =
        file.subspan(bmp::kFileHeaderSize, static_cast<std::size_t>(fileSize) - bmp::kFileHeaderSize);
    const Result<InfoHeader, BmpError> parsed = parseInfoHeader(bitmap);
    if (!parsed)
        return parsed.error();
    const InfoHeader& header = parsed.value();
    std::int64_t colours = header.bits <= 8 ? header.colourCount() : 0;
    if (header.size == bmp::kInfoHeaderSize)
        return cutOut(bitmap, header, colours, header.size + 4 * colours);

    const std::int64_t rowsAt =
        std::int64_t{readU32(file, bmp::kPixelOffset)} - static_cast<std::int64_t>(bmp::kFileHeaderSize);
    if (rowsAt < header.size)
        return BmpError::Truncated;
    // Without a number of their own the colours are those that stand before the rows.
    const std::int64_t before = (rowsAt - header.size) / static_cast<std::int64_t>(header.colourSize());
    if (header.coloursUsed == 0)
        colours = std::min(colours, before);
    if (colours > before)
        return BmpError::Truncated;
    return cutOut(bitmap, header, colours, rowsAt);
}

Result<BmpImage, BmpError> parsePackedBitmap(std::span<const std::byte> bitmap) {
    const Result<InfoHeader, BmpError> parsed = parseInfoHeader(bitmap);
    if (!parsed)
        return parsed.error();
    const InfoHeader& header = parsed.value();
    const auto colourSize = static_cast<std::int64_t>(header.colourSize());
    // Deeper bitmaps may carry a table as well, for displays of few colours; it is there to be passed over.
    return cutOut(bitmap, header, header.colourCount(), header.size + colourSize * header.colourCount());
}

} // namespace dyeworks
