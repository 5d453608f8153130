#include "platform/PackedDib.h"

#include "platform/BitmapHeader.h"
#include "platform/LittleEndian.h"

#include <algorithm>
#include <limits>

namespace dyeworks {

namespace {

constexpr auto kFileHeaderSize = static_cast<std::int64_t>(bmp::kFileHeaderSize);

/// Where the rows begin behind the file header: right after the colours, unless the header is of a kind whose
/// files tell it.
std::int64_t rowsOf(std::span<const std::byte> file, const BitmapHeader& header) {
    if (header.size == bmp::kInfoHeaderSize)
        return header.size + (header.bitsPerPixel <= 8 ? header.tableSize() : 0);
    return readU32(file, bmp::kPixelOffset) - kFileHeaderSize;
}

} // namespace

std::optional<std::vector<std::byte>> bmpFromDib(std::span<const std::byte> dib) {
    const Result<BitmapHeader, BmpError> header = readBitmapHeader(dib);
    const auto size = static_cast<std::int64_t>(dib.size());
    if (!header || size > std::numeric_limits<std::int32_t>::max() - kFileHeaderSize)
        return std::nullopt;
    const std::int64_t rows = header.value().size + header.value().tableSize();
    if (rows > size)
        return std::nullopt;
    std::vector<std::byte> file;
    file.reserve(bmp::kFileHeaderSize + dib.size());
    file.resize(bmp::kFileHeaderSize);
    writeU16(file, bmp::kType, bmp::kFileType);
    writeU32(file, bmp::kFileSize, static_cast<std::uint32_t>(kFileHeaderSize + size));
    writeU32(file, bmp::kPixelOffset, static_cast<std::uint32_t>(kFileHeaderSize + rows));
    file.insert(file.end(), dib.begin(), dib.end());
    return file;
}

std::optional<std::vector<std::byte>> dibFromBmp(std::span<const std::byte> bmp) {
    if (bmp.size() < bmp::kFileHeaderSize || readU16(bmp, bmp::kType) != bmp::kFileType)
        return std::nullopt;
    const std::span<const std::byte> bitmap = bmp.subspan(bmp::kFileHeaderSize);
    const Result<BitmapHeader, BmpError> parsed = readBitmapHeader(bitmap);
    if (!parsed)
        return std::nullopt;
    const BitmapHeader& header = parsed.value();
    const std::int64_t rows = rowsOf(bmp, header);
    if (rows < header.size || rows > static_cast<std::int64_t>(bitmap.size()))
        return std::nullopt;
    const std::int64_t whole = (rows - header.size) / header.colourSize() * header.colourSize();
    const std::int64_t colours = std::min(header.tableSize(), whole);
    const std::int64_t missing = header.tableSize() - colours;
    // More is no table that was left out but a damaged header.
    constexpr std::int64_t kLargestTable = std::int64_t{4} * 256;
    if (missing > kLargestTable)
        return std::nullopt;

    std::vector<std::byte> dib;
    dib.reserve(bitmap.size() + static_cast<std::size_t>(missing));
    dib.assign(bitmap.begin(), bitmap.begin() + header.size + colours);
    dib.resize(dib.size() + static_cast<std::size_t>(missing));
    dib.insert(dib.end(), bitmap.begin() + rows, bitmap.end());
    return dib;
}

} // namespace dyeworks
