#include "core/TlfFormat.h"

#include "core/ByteCursor.h"

#include <cstdint>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::size_t kTlfHeaderSize = 64;
constexpr std::size_t kTlfReservedSize = 52;

/// The tag of a file with `count` entries, or 0 when no file has that many.
std::uint32_t tagFor(std::int32_t count) {
    switch (count) {
    case 16:
        return 0x00200100;
    case 256:
        return 0x00200200;
    default:
        return 0;
    }
}

} // namespace

Result<TlutData, TlfError> parseTlf(std::span<const std::byte> file) {
    if (file.size() < kTlfHeaderSize)
        return TlfError::ShortHeader;
    ByteReader header(file.first(kTlfHeaderSize));
    const std::uint32_t tag = header.be32();
    const std::int32_t count = header.signed32();
    const auto colourType = static_cast<ColourType>(header.be32());
    if (tagFor(count) == 0 || tag != tagFor(count) ||
        (colourType != ColourType::Rgba && colourType != ColourType::Ia))
        return TlfError::BadHeader;

    TlutData table;
    if (!table.create(count, colourType))
        return TlfError::NoMemory;

    ByteReader body(file.subspan(kTlfHeaderSize));
    if (body.left() < static_cast<std::size_t>(count) * sizeof(std::uint16_t))
        return TlfError::ShortBody;
    for (std::int32_t i = 0; i < count; ++i)
        table.setEntry(i, body.be16());
    return table;
}

std::optional<ByteBuffer> serialiseTlf(const TlutData& table) {
    const std::uint32_t tag = tagFor(table.count);
    if (tag == 0 || table.entries == nullptr)
        return std::nullopt;

    const auto count = static_cast<std::size_t>(table.count);
    ByteBuffer file(kTlfHeaderSize + count * sizeof(std::uint16_t));
    ByteWriter writer(file.bytes());
    writer.be32(tag);
    writer.be32(static_cast<std::uint32_t>(table.count));
    writer.be32(static_cast<std::uint32_t>(table.colourType));
    writer.zeroes(kTlfReservedSize);
    for (std::int32_t i = 0; i < table.count; ++i)
        writer.be16(table.getEntry(i));
    return file;
}

} // namespace dyeworks
