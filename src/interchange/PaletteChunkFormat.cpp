#include "interchange/PaletteChunkFormat.h"

#include "core/ByteCursor.h"

namespace dyeworks {

namespace {

constexpr std::size_t kHeaderSize = 6;

std::size_t sizeFor(std::int32_t count) {
    return kHeaderSize + static_cast<std::size_t>(count) * sizeof(std::uint16_t);
}

bool fits(ColourType type, std::int32_t firstEntry, std::int32_t count) {
    return (type == ColourType::Rgba || type == ColourType::Ia) && (count == 16 || count == 256) &&
           firstEntry >= 0 && firstEntry <= count - kBankSize && firstEntry % kBankSize == 0;
}

} // namespace

std::optional<std::vector<std::byte>> serialisePaletteChunk(const TlutData& palette,
                                                            std::int32_t firstEntry) {
    if (palette.entries == nullptr || !fits(palette.colourType, firstEntry, palette.count))
        return std::nullopt;
    std::vector<std::byte> data(sizeFor(palette.count));
    ByteWriter writer(data);
    writer.be16(static_cast<std::uint16_t>(palette.colourType));
    writer.be16(static_cast<std::uint16_t>(firstEntry));
    writer.be16(static_cast<std::uint16_t>(palette.count));
    for (std::int32_t i = 0; i < palette.count; ++i)
        writer.be16(palette.entries[i]);
    return data;
}

std::optional<PaletteChunk> parsePaletteChunk(std::span<const std::byte> data) {
    ByteReader reader(data);
    const auto type = static_cast<ColourType>(reader.be16());
    const std::int32_t firstEntry = reader.be16();
    const std::int32_t count = reader.be16();
    PaletteChunk chunk;
    if (!fits(type, firstEntry, count) || data.size() != sizeFor(count) || !chunk.palette.create(count, type))
        return std::nullopt;
    chunk.firstEntry = firstEntry;
    for (std::int32_t i = 0; i < count; ++i)
        chunk.palette.entries[i] = reader.be16();
    return chunk;
}

} // namespace dyeworks
