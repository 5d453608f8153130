#include "recovery/PackedPalette.h"

#include <cstdint>

namespace dyeworks {

namespace {

constexpr std::size_t kHeader = 4;
constexpr std::size_t kMostEntries = 65536;

} // namespace

std::vector<std::byte> packPalette(const TlutData& table) {
    std::vector<std::byte> bytes;
    const auto type = static_cast<std::uint32_t>(table.colourType);
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::byte>(type >> shift & 255U));
    for (std::int32_t i = 0; i < table.count; ++i) {
        const std::uint16_t entry = table.getEntry(i);
        bytes.push_back(static_cast<std::byte>(entry >> 8U));
        bytes.push_back(static_cast<std::byte>(entry & 255U));
    }
    return bytes;
}

std::optional<TlutData> unpackPalette(std::span<const std::byte> bytes) {
    if (bytes.size() < kHeader || bytes.size() % 2 != 0 || bytes.size() > kHeader + 2 * kMostEntries)
        return std::nullopt;
    std::uint32_t type = 0;
    for (const std::byte byte : bytes.first(kHeader))
        type = type << 8U | std::to_integer<std::uint32_t>(byte);
    bytes = bytes.subspan(kHeader);
    TlutData table;
    const auto count = static_cast<std::int32_t>(bytes.size() / 2);
    if (!table.create(count, static_cast<ColourType>(type)))
        return std::nullopt;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::span<const std::byte> pair = bytes.subspan(2 * static_cast<std::size_t>(i), 2);
        table.setEntry(i, static_cast<std::uint16_t>(std::to_integer<unsigned>(pair[0]) << 8U |
                                                     std::to_integer<unsigned>(pair[1])));
    }
    return table;
}

} // namespace dyeworks
