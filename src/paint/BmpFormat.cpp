#include "paint/BmpFormat.h"

#include "platform/LittleEndian.h"

#include <algorithm>
#include <cstdlib>

namespace dyeworks {

namespace {

/// Cuts colours and rows out of the bitmap. `tableCount` colours follow the header; `rowsAt` is where the
/// rows begin.
Result<BmpImage, BmpError> cutOut(std::span<const std::byte> bitmap, const BitmapHeader& header,
                                  std::int64_t tableCount, std::int64_t rowsAt) {
    const std::int64_t height = std::abs(header.height);
    if (header.width < 0 || header.width > BmpImage::kLongestSide || height > BmpImage::kLongestSide)
        return BmpError::BadSize;

    const auto size = static_cast<std::int64_t>(bitmap.size());
    if (tableCount > (size - header.size) / header.colourSize())
        return BmpError::Truncated;
    const std::int64_t stride = bmp::stride(header.width, header.bitsPerPixel);
    const std::int64_t room = size - rowsAt;
    if (room < 0 || (height > 0 && stride > room / height))
        return BmpError::Truncated;

    BmpImage image;
    image.width = static_cast<std::int32_t>(header.width);
    image.height = static_cast<std::int32_t>(height);
    image.planes = header.planes;
    image.bitsPerPixel = header.bitsPerPixel;
    image.horizontalResolution = header.horizontalResolution;
    image.verticalResolution = header.verticalResolution;
    image.topDown = header.height < 0;
    image.colourSize = static_cast<std::size_t>(header.colourSize());
    const std::int64_t kept = std::min<std::int64_t>(tableCount, bmp::fullColourCount(header.bitsPerPixel));
    image.colours = bitmap.subspan(header.size, static_cast<std::size_t>(kept * header.colourSize()));
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
    const Result<BitmapHeader, BmpError> parsed = readBitmapHeader(bitmap);
    if (!parsed)
        return parsed.error();
    const BitmapHeader& header = parsed.value();
    std::int64_t colours = header.bitsPerPixel <= 8 ? header.colourCount() : 0;
    if (header.size == bmp::kInfoHeaderSize)
        return cutOut(bitmap, header, colours, header.size + header.colourSize() * colours);

    const std::int64_t rowsAt =
        std::int64_t{readU32(file, bmp::kPixelOffset)} - static_cast<std::int64_t>(bmp::kFileHeaderSize);
    if (rowsAt < header.size)
        return BmpError::Truncated;
    // Without a number of their own the colours are those that stand before the rows.
    const std::int64_t before = (rowsAt - header.size) / header.colourSize();
    if (header.coloursUsed == 0)
        colours = std::min(colours, before);
    if (colours > before)
        return BmpError::Truncated;
    return cutOut(bitmap, header, colours, rowsAt);
}

Result<BmpImage, BmpError> parsePackedBitmap(std::span<const std::byte> bitmap) {
    const Result<BitmapHeader, BmpError> parsed = readBitmapHeader(bitmap);
    if (!parsed)
        return parsed.error();
    const BitmapHeader& header = parsed.value();
    return cutOut(bitmap, header, header.colourCount(), header.size + header.tableSize());
}

} // namespace dyeworks
