#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace dyeworks {

// Fields of the bitmap headers. The field must lie inside the bytes.

[[nodiscard]] inline std::uint16_t readU16(std::span<const std::byte> bytes, std::size_t offset) {
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[offset]) |
                                      std::to_integer<unsigned>(bytes[offset + 1]) << 8U);
}

[[nodiscard]] inline std::uint32_t readU32(std::span<const std::byte> bytes, std::size_t offset) {
    return readU16(bytes, offset) | static_cast<std::uint32_t>(readU16(bytes, offset + 2)) << 16U;
}

[[nodiscard]] inline std::int32_t readI32(std::span<const std::byte> bytes, std::size_t offset) {
    return static_cast<std::int32_t>(readU32(bytes, offset));
}

inline void writeU16(std::span<std::byte> bytes, std::size_t offset, std::uint32_t value) {
    bytes[offset] = static_cast<std::byte>(value & 0xFFU);
    bytes[offset + 1] = static_cast<std::byte>(value >> 8U & 0xFFU);
}

inline void writeU32(std::span<std::byte> bytes, std::size_t offset, std::uint32_t value) {
    writeU16(bytes, offset, value);
    writeU16(bytes, offset + 2, value >> 16U);
}

} // namespace dyeworks
