#pragma once

#include "core/TlutData.h"
#include "platform/ByteBuffer.h"
#include "platform/Result.h"

#include <cstddef>
#include <optional>
#include <span>

namespace dyeworks {

/// Why the bytes are no TLF file.
enum class TlfError {
    ShortHeader, ///< Fewer than 64 bytes.
    BadHeader,   ///< Tag, count and colour type do not belong together.
    NoMemory,    ///< The entries could not be allocated.
    ShortBody    ///< Fewer entries than the header declares.
};

/// Bytes of the largest TLF file, one of 256 entries; whatever follows them is ignored.
inline constexpr std::size_t kLargestTlfSize = 64 + 2 * 256;

/// The table in a TLF file: a 64-byte header and 16 or 256 entries, all big-endian. The header's reserved
/// bytes and what follows the last entry are ignored.
Result<TlutData, TlfError> parseTlf(std::span<const std::byte> file);

/// The file that holds `table`, its colour type unchecked. Nothing for a table that does not hold exactly 16
/// or 256 entries.
[[nodiscard]] std::optional<ByteBuffer> serialiseTlf(const TlutData& table);

} // namespace dyeworks
