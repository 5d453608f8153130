#include "platform/BitmapHeader.h"

#include "platform/LittleEndian.h"

namespace dyeworks {

namespace {

/// The field at this place in a file, in a bitmap that is no file.
constexpr std::size_t packed(std::size_t inFile) {
    return inFile - bmp::kFileHeaderSize;
}

BitmapHeader readCoreHeader(std::span<const std::byte> bitmap) {
    BitmapHeader header;
    header.size = bmp::kCoreHeaderSize;
    header.width = readU16(bitmap, 4);
    header.height = readU16(bitmap, 6);
    header.planes = readU16(bitmap, 8);
    header.bitsPerPixel = readU16(bitmap, 10);
    return header;
}

} // namespace

Result<BitmapHeader, BmpError> readBitmapHeader(std::span<const std::byte> bitmap) {
    if (bitmap.size() < sizeof(std::uint32_t))
        return BmpError::Truncated;
    BitmapHeader header;
    header.size = readU32(bitmap, packed(bmp::kHeaderSize));
    const bool core = header.size == bmp::kCoreHeaderSize;
    if (!core && header.size < bmp::kInfoHeaderSize)
        return BmpError::NotABitmap;
    if (bitmap.size() < header.size)
        return BmpError::Truncated;
    if (core)
        return readCoreHeader(bitmap);
    // Headers of other lengths have this field too, so a compressed bitmap is recognised whatever its header.
    if (readU32(bitmap, packed(bmp::kCompression)) != 0)
        return BmpError::Compressed;
    if (header.size != bmp::kInfoHeaderSize && header.size != bmp::kVersion4HeaderSize &&
        header.size != bmp::kVersion5HeaderSize)
        return BmpError::NotABitmap;
    header.width = readI32(bitmap, packed(bmp::kWidth));
    header.height = readI32(bitmap, packed(bmp::kHeight));
    header.planes = readU16(bitmap, packed(bmp::kPlanes));
    header.bitsPerPixel = readU16(bitmap, packed(bmp::kBits));
    header.horizontalResolution = readU32(bitmap, packed(bmp::kHorizontalResolution));
    header.verticalResolution = readU32(bitmap, packed(bmp::kVerticalResolution));
    header.coloursUsed = readU32(bitmap, packed(bmp::kColoursUsed));
    return header;
}

} // namespace dyeworks
