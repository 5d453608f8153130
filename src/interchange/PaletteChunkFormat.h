#pragma once

#include "interchange/PngFile.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

/// Type of the chunk: ancillary, private, and not to be copied by a program that changes the picture and does
/// not know it.
inline constexpr char kPaletteChunkType[] = "dwPL";

/// The chunk's data, big-endian: colour type, first entry, count, entries, 16 bits each (docs/png-chunk.md).
/// Nothing for a palette that is none of a file (16 or 256 entries of a known colour type), and for a first
/// entry that is not that of a bank of it.
[[nodiscard]] std::optional<std::vector<std::byte>> serialisePaletteChunk(const TlutData& palette,
                                                                          std::int32_t firstEntry);

/// The same backwards. Nothing for data of any other length, and when there is no memory.
[[nodiscard]] std::optional<PaletteChunk> parsePaletteChunk(std::span<const std::byte> data);

} // namespace dyeworks
